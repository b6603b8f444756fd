// Texts in UTF-8, for code that meets them on every machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Utf8 {

// The bytes of the character with which a text begins: 1 to 4; 0 if it begins with no whole one. A
// longer form than needed, half of a surrogate pair and what lies beyond U+10FFFF are none.
size_t CharacterLength(std::string_view text);

// True if the text consists of whole characters.
bool IsWhole(std::string_view text);

// The number of the character with which a text begins, which must be a whole one.
char32_t FirstCharacter(std::string_view text);

void Append(char32_t character, std::string& text);

}  // namespace Utf8
