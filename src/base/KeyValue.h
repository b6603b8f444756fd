// Lines of the form "key=value", as the game and the pack write them: in vehicles, records, the
// language file, the game's configuration and the settings.
//
// The key is what stands before the first "="; a value may hold further ones. Letter case and
// blanks count in both.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace KeyValue {

struct Pair {
  std::string_view key;
  std::string_view value;
};

// The two sides of a line's first "="; nothing if there is none. They are valid as long as the
// line.
inline std::optional<Pair> Split(std::string_view line) {
  const size_t equals = line.find('=');
  if (equals == std::string_view::npos) return std::nullopt;
  return Pair{line.substr(0, equals), line.substr(equals + 1)};
}

// True if the line begins with the key and has "=" directly behind it.
inline bool HasKey(std::string_view line, std::string_view key) {
  return line.size() > key.size() && line[key.size()] == '=' && line.starts_with(key);
}

// A line as it is written, without its end.
std::string Line(std::string_view key, std::string_view value);

// Gives each line with that key another value; there may be several, or none. The others stay.
void Replace(std::vector<std::string>& lines, std::string_view key, std::string_view value);

}  // namespace KeyValue
