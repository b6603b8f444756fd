// Texts in the system code page and as the wide characters of the system.
#pragma once

#include <string>
#include <string_view>

namespace Platform {

std::wstring Widen(std::string_view text);
// What the code page cannot hold becomes "?", or whatever character the page has for that; never a
// letter that only looks alike.
std::string Narrow(std::wstring_view text);

}  // namespace Platform
