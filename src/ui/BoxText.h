// A text from anywhere, such as one that quotes a damaged file, as a message box can show it.
#pragma once

#include <cstddef>
#include <string>

namespace Platform {

// More than any message of the program has by itself, and less than covers the screen.
inline constexpr size_t LongestBoxText = 1024;

// The text with "?" in place of each control character, which would end the text or not be seen.
// Tabs, CR LF and a lone LF stay: a box breaks the line at an LF, as the files of other systems do.
// Of a text of more than that many bytes the beginning and the end are left, with " ... " between
// them. No character is cut.
std::string BoxText(const std::string& text, size_t longest = LongestBoxText);

}  // namespace Platform
