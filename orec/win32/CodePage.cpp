#include "orec/win32/CodePage.h"

#include <algorithm>

#include "orec/CharacterCut.h"
#include "orec/win32/System.h"

namespace ORec {

std::wstring Widen(const std::string& text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  const int count =
      MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, text.data(), size, wide.data(), size);
  wide.resize(static_cast<size_t>(count));
  return wide;
}

std::string Narrow(const std::wstring& text) {
  const int size = static_cast<int>(text.size());
  const int count = WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<size_t>(count), '\0');
  WideCharToMultiByte(CP_ACP, 0, text.data(), size, narrow.data(), count, nullptr, nullptr);
  return narrow;
}

// The system steps through a text by characters for the pages of two bytes a character; of UTF-8 it
// knows nothing. Both are met by going back until what is left is a text.
size_t WholeCharacters(const std::string& text, size_t atMost) {
  size_t length = std::min(text.size(), atMost);
  constexpr size_t LongestCharacter = 4;
  for (size_t back = 0; back < LongestCharacter && back < length; ++back) {
    if (!Widen(text.substr(0, length - back)).empty()) return length - back;
  }
  return 0;
}

}  // namespace ORec
