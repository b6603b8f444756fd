// The code page is 1252 on this machine, whatever the user's language is: the one in which nearly
// all of the game's files are written.
#include "platform/Characters.h"

#include <algorithm>

#include "base/Utf8.h"
#include "base/WesternPage.h"
#include "platform/LetterCase.h"

namespace Platform {

size_t WholeCharacterLength(std::string_view text) {
  return text.empty() ? 0 : 1;
}

std::string ToUtf8(std::string_view text) {
  std::string utf8;
  for (const char c : text) {
    Utf8::Append(WesternPage::CharacterOf(static_cast<unsigned char>(c)), utf8);
  }
  return utf8;
}

std::string FromUtf8(std::string_view utf8) {
  std::string text;
  while (!utf8.empty()) {
    const size_t length = Utf8::CharacterLength(utf8);
    const auto byte = length > 0 ? WesternPage::ByteOf(Utf8::FirstCharacter(utf8)) : std::nullopt;
    text += byte.value_or('?');
    utf8.remove_prefix(std::max<size_t>(length, 1));
  }
  return text;
}

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), WesternPage::SmallLetter);
  return lower;
}

}  // namespace Platform
