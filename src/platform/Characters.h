// The characters of the system code page, where one may take two bytes.
#pragma once

namespace Platform {

// True if a byte that begins a character is the first of two. The second may look like "\", "|" or
// a letter, so a text is searched for such bytes character by character.
bool IsLeadByte(char byte);

}  // namespace Platform
