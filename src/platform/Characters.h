// The characters of the system code page, where one may take several bytes: two in the pages of
// East Asia, up to four where the page is UTF-8.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Platform {

// The bytes of the character with which a text begins: 1 to 4; 0 if the text is empty or begins
// with a piece of a character. Its later bytes may look like "\", "|" or a letter, so a text is
// searched for such bytes, and cut, character by character.
size_t WholeCharacterLength(std::string_view text);

// The same for walking through a text that is not empty: a piece of a character counts as one byte.
size_t CharacterLength(std::string_view text);

// A text of the code page in UTF-8, and back, as archives keep their names. A piece of a character
// becomes U+FFFD; what the code page lacks becomes "?", never a letter that only looks alike.
std::string ToUtf8(std::string_view text);
std::string FromUtf8(std::string_view utf8);

}  // namespace Platform
