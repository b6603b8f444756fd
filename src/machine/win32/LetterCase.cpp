#include "platform/LetterCase.h"

#include "machine/win32/CodePage.h"
#include "machine/win32/System.h"
#include "platform/Characters.h"

namespace Platform {

// Letter by letter: in UTF-8 a small letter may take more or fewer bytes than its capital, and such
// a capital stays, as the length is promised to.
std::string LowerCase(std::string_view text) {
  std::string lower;
  lower.reserve(text.size());
  while (!text.empty()) {
    const size_t length = CharacterLength(text);
    const std::string_view letter = text.substr(0, length);
    std::wstring wide = Widen(letter);
    CharLowerBuffW(wide.data(), static_cast<DWORD>(wide.size()));
    const std::string small = Narrow(wide);
    const bool isLetter = WholeCharacterLength(letter) > 0 && small.size() == length;
    lower.append(isLetter ? std::string_view(small) : letter);
    text.remove_prefix(length);
  }
  return lower;
}

}  // namespace Platform
