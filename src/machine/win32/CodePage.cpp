#include "machine/win32/CodePage.h"

#include "machine/win32/System.h"

namespace Platform {

std::wstring Widen(std::string_view text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  // No code page makes more wide characters than it has bytes.
  std::wstring wide(text.size(), L'\0');
  const int count = MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), size);
  wide.resize(static_cast<size_t>(count));
  return wide;
}

std::string Narrow(std::wstring_view text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  // A letter that only looks like the right one would name another file. Some code pages, such as
  // UTF-8, take no flags: they have every character.
  DWORD flags = WC_NO_BEST_FIT_CHARS;
  int count = WideCharToMultiByte(CP_ACP, flags, text.data(), size, nullptr, 0, nullptr, nullptr);
  if (count == 0) {
    flags = 0;
    count = WideCharToMultiByte(CP_ACP, flags, text.data(), size, nullptr, 0, nullptr, nullptr);
  }
  std::string narrow(static_cast<size_t>(count), '\0');
  WideCharToMultiByte(CP_ACP, flags, text.data(), size, narrow.data(), count, nullptr, nullptr);
  return narrow;
}

}  // namespace Platform
