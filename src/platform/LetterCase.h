// Capital and small letters of the user's language.
#pragma once

#include <string>
#include <string_view>

namespace Platform {

// A text in the system code page with its capital letters turned into small ones, letters beyond A
// to Z included. Its length in bytes stays. A byte that is only half of a character is no letter,
// so that a path still leads to its folder.
std::string LowerCase(std::string_view text);

}  // namespace Platform
