// Texts of the system code page and of the system itself.
#pragma once

#include <string>

namespace ORec {

// Empty if the bytes are no text of the code page.
std::wstring Widen(const std::string& text);
// What the code page cannot hold becomes "?", or whatever it has for that.
std::string Narrow(const std::wstring& text);

}  // namespace ORec
