#include "game/ConfigurationText.h"

#include <vector>

#include "base/KeyValue.h"
#include "base/LineReader.h"
#include "base/Text.h"

namespace Configuration {

namespace {

using Text::LineEnd;

// Each line with its end behind it.
std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append(LineEnd);
  return text;
}

void DropLastLineEnd(std::string& text) {
  if (text.ends_with(LineEnd)) text.resize(text.size() - LineEnd.size());
}

// The lines without the empty ones among them. They go in pairs of line ends, as two ends that
// follow each other become one: an empty line at the beginning has but one end, and stays. So does
// one at the end, whose own line end has been dropped before.
std::vector<std::string> WithoutEmptyLines(const std::vector<std::string>& lines) {
  std::string text = Joined(lines);
  DropLastLineEnd(text);
  const std::string twoEnds = std::string(LineEnd) + std::string(LineEnd);
  while (text.find(twoEnds) != std::string::npos) text = Text::Replace(text, twoEnds, LineEnd);
  std::vector<std::string> kept = LinesOf(text);
  // LinesOf takes a line end for the end of a line; here it stands between two.
  if (text.ends_with(LineEnd)) kept.emplace_back();
  return kept;
}

}  // namespace

std::string WithSetting(std::string_view text, std::string_view name, std::string_view value) {
  std::vector<std::string> lines = WithoutEmptyLines(LinesOf(text));
  KeyValue::Replace(lines, name, value);
  std::string changed = Joined(lines);
  // Asked of the whole text, not of the lines that were replaced: see the header.
  if (changed.find(std::string(name) + "=") == std::string::npos) {
    changed += KeyValue::Line(name, value);
  } else {
    DropLastLineEnd(changed);
  }
  return changed.append(LineEnd);
}

}  // namespace Configuration
