// Texts in a web page.
#pragma once

#include <string>
#include <string_view>

namespace Html {

// A text in UTF-8 as it is written between tags and in quoted attributes.
std::string Escaped(std::string_view text);

// A path from "/" on as it is written in an address: every byte that is not a plain letter, digit
// or one of "/-._~" as "%" and two digits.
std::string Address(std::string_view path);

}  // namespace Html
