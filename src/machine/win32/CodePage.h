// Texts in code pages and as the wide characters of the system.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Platform {

// Between the system code page and wide characters. What the code page cannot hold becomes "?", or
// whatever character the page has for that; never a letter that only looks alike.
std::wstring Widen(std::string_view text);
std::string Narrow(std::wstring_view text);

// The same for any code page, by its number.
std::wstring WidenFrom(unsigned codePage, std::string_view text);
std::string NarrowTo(unsigned codePage, std::wstring_view text);

// As WholeCharacterLength of platform/Characters.h, for any code page.
size_t WholeCharacterLengthIn(unsigned codePage, std::string_view text);

}  // namespace Platform
