// What the pack changes in the text of the game's configuration file. No file is touched here.
#pragma once

#include <string>
#include <string_view>

namespace Configuration {

// The text of the configuration with a setting changed: every line that begins with "name=" becomes
// "name=value"; all others stay, in their order. Where no line has the name, the setting is added
// as the last line. The text ends in one CR LF.
//   text   with lines that end in CR LF or CR. Empty for a configuration of that one setting.
//   name   letter case counts.
//
// The game has been given its configuration in just this form for years, oddities included:
// - Empty lines between two others disappear. Of those that begin the text one stays, as does one
//   of those that end it, if there were several; a new setting then stands behind it.
// - A name anywhere in the text counts as a setting, even in the middle of a line: nothing is added
//   beside "OldLanguage=x" for "Language", and the game goes without the setting.
std::string WithSetting(std::string_view text, std::string_view name, std::string_view value);

}  // namespace Configuration
