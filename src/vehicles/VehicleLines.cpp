#include "vehicles/VehicleLines.h"

#include <vector>

#include "base/KeyValue.h"
#include "base/LineReader.h"
#include "base/Text.h"

namespace VehicleLines {

namespace {

std::string_view NameOf(VehicleVariable variable) {
  return VehicleVariableNames[static_cast<size_t>(variable)];
}

}  // namespace

std::string OfNewVehicle() {
  std::string lines;
  for (const std::string_view name : VehicleVariableNames) {
    if (!lines.empty()) lines += Text::LineEnd;
    lines += KeyValue::Line(name, "");
  }
  return lines;
}

std::string WithValue(const std::string& lines, VehicleVariable variable,
                      const std::string& value) {
  std::vector<std::string> changed = LinesOf(lines);
  KeyValue::Replace(changed, NameOf(variable), value);
  std::string joined;
  for (const std::string& line : changed) {
    if (!joined.empty()) joined += Text::LineEnd;
    joined += line;
  }
  return joined;
}

std::string ValueOf(const std::string& lines, VehicleVariable variable) {
  for (const std::string& line : LinesOf(lines)) {
    if (KeyValue::HasKey(line, NameOf(variable))) return line.substr(NameOf(variable).size() + 1);
  }
  return "";
}

std::string ForFile(const std::string& lines) {
  std::string bytes;
  for (const std::string& line : LinesOf(lines)) {
    // A line that ends so has no value: a name with "=" in it is refused before it is set.
    if (!line.empty() && !line.ends_with('=')) bytes.append(line) += Text::LineEnd;
  }
  return bytes;
}

}  // namespace VehicleLines
