#include "internet/ServerLines.h"

#include "base/KeyValue.h"
#include "base/LineReader.h"
#include "base/Text.h"

namespace ServerLines {

std::optional<std::string> RowOf(std::string_view line) {
  const auto entry = KeyValue::Split(line);
  if (!entry) return std::nullopt;
  return std::string(entry->key).append(" (").append(entry->value).append(")");
}

std::string AddressOf(std::string_view row) {
  const size_t bracket = row.find('(');
  if (bracket == std::string_view::npos) return "";
  row.remove_prefix(bracket + 1);
  return std::string(row.substr(0, row.empty() ? 0 : row.size() - 1));
}

bool HasAddress(std::string_view line, std::string_view address) {
  const auto entry = KeyValue::Split(line);
  return entry && entry->value == address;
}

std::string Without(std::string_view text, std::string_view address) {
  std::string kept;
  for (const std::string& line : LinesOf(text)) {
    const auto entry = KeyValue::Split(line);
    if (entry && entry->value != address) kept.append(line).append(Text::LineEnd);
  }
  return kept;
}

std::string Addition(std::string_view text, std::string_view name, std::string_view address) {
  const bool isLastLineOpen =
      !text.empty() && !text.ends_with('\r') && !text.ends_with(Text::LineEnd);
  std::string addition(isLastLineOpen ? Text::LineEnd : "");
  return addition.append(KeyValue::Line(name, address)).append(Text::LineEnd);
}

}  // namespace ServerLines
