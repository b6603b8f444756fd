// The Western code page of Windows, 1252, for machines that cannot ask a Windows for it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace WesternPage {

// The number of the character for which a byte stands. Five bytes stand for control characters, as
// on Windows.
char32_t CharacterOf(unsigned char byte);
// The byte of a character; nothing if the page lacks it.
std::optional<char> ByteOf(char32_t character);

// The small letter of a capital one; any other byte stays.
char SmallLetter(char byte);

}  // namespace WesternPage
