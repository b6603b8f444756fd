// Small operations on texts in the system code page.
#pragma once

#include <string>
#include <string_view>

namespace Text {

inline constexpr std::string_view LineEnd = "\r\n";

// The text without the blanks at both ends. Only blanks: tabs and line ends stay.
std::string_view Trim(std::string_view text);

// The text with A to Z turned into a to z; all other bytes stay, whatever the code page.
std::string LowerAscii(std::string_view text);

// The text with every occurrence of a piece replaced, from left to right, in one pass. The
// replacement is not searched again. The piece must not be empty.
std::string Replace(std::string_view text, std::string_view piece, std::string_view replacement);

}  // namespace Text
