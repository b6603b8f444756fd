#include "internet/ComponentRecords.h"

#include "base/LineReader.h"
#include "base/Text.h"

namespace ComponentRecords {

namespace {

// The pieces of a text between its line feeds. A text that ends in one has an empty piece behind
// it.
std::vector<std::string_view> Pieces(std::string_view text) {
  std::vector<std::string_view> pieces;
  for (;;) {
    const size_t end = text.find('\n');
    pieces.push_back(text.substr(0, end));
    if (end == std::string_view::npos) return pieces;
    text.remove_prefix(end + 1);
  }
}

}  // namespace

Lines LinesIn(std::string_view file) {
  Lines lines;
  size_t number = 0;
  for (const std::string& line : LinesOf(file)) {
    ++number;
    if (line.find(':') == std::string::npos) return {"", number};
    lines.text.append(line).append(Text::LineEnd);
  }
  return lines;
}

std::vector<std::string> DisplayNames(std::string_view text) {
  std::vector<std::string> names;
  const std::string records = Text::Replace(text, "\r", "");
  for (const std::string_view record : Pieces(records)) {
    const size_t colon = record.find(':');
    if (colon != std::string_view::npos) names.emplace_back(record.substr(0, colon));
  }
  return names;
}

std::string FileNameOf(std::string_view text, std::string_view displayName) {
  std::string fileName;
  for (const std::string_view record : Pieces(text)) {
    const size_t colon = record.find(':');
    if (colon != std::string_view::npos && record.starts_with(displayName)) {
      fileName = record.substr(colon + 1);
    }
  }
  return fileName;
}

bool MayBePart(std::string_view text) {
  return !text.empty() && text.find_first_of(":\r\n") == std::string_view::npos;
}

std::string ListOf(const std::vector<Record>& records) {
  std::string list;
  for (const Record& record : records) {
    list += record.displayName + ":" + record.fileName + "\n";
  }
  return list;
}

}  // namespace ComponentRecords
