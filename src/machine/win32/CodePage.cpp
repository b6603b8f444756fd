#include "machine/win32/CodePage.h"

#include "base/Utf8.h"
#include "machine/win32/System.h"

namespace Platform {

std::wstring Widen(std::string_view text) {
  return WidenFrom(CP_ACP, text);
}

std::string Narrow(std::wstring_view text) {
  return NarrowTo(CP_ACP, text);
}

std::wstring WidenFrom(unsigned codePage, std::string_view text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  // No code page makes more wide characters than it has bytes.
  std::wstring wide(text.size(), L'\0');
  const int count = MultiByteToWideChar(codePage, 0, text.data(), size, wide.data(), size);
  wide.resize(static_cast<size_t>(count));
  return wide;
}

std::string NarrowTo(unsigned codePage, std::wstring_view text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  // A letter that only looks like the right one would name another file. Some code pages, such as
  // UTF-8, take no flags: they have every character.
  DWORD flags = WC_NO_BEST_FIT_CHARS;
  int count = WideCharToMultiByte(codePage, flags, text.data(), size, nullptr, 0, nullptr, nullptr);
  if (count == 0) {
    flags = 0;
    count = WideCharToMultiByte(codePage, flags, text.data(), size, nullptr, 0, nullptr, nullptr);
  }
  std::string narrow(static_cast<size_t>(count), '\0');
  WideCharToMultiByte(codePage, flags, text.data(), size, narrow.data(), count, nullptr, nullptr);
  return narrow;
}

// The system tells lead bytes for the pages of two bytes a character only; of UTF-8 it knows none.
size_t WholeCharacterLengthIn(unsigned codePage, std::string_view text) {
  if (codePage == CP_UTF8) return Utf8::CharacterLength(text);
  if (text.empty()) return 0;
  if (!IsDBCSLeadByteEx(codePage, static_cast<BYTE>(text[0]))) return 1;
  // No character has a control character as its second byte.
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; };
  return text.size() > 1 && !isControl(text[1]) ? 2 : 0;
}

}  // namespace Platform
