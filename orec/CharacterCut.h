// Cutting texts of the system code page, where a character may have several bytes. Implemented by
// win32/CharacterCut.cpp, and by the tests.
#pragma once

#include <cstddef>
#include <string>

namespace ORec {

// The most bytes, up to so many, that end with a whole character.
size_t WholeCharacters(const std::string& text, size_t atMost);

}  // namespace ORec
