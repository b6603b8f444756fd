#include "base/KeyValue.h"

namespace KeyValue {

std::string Line(std::string_view key, std::string_view value) {
  return std::string(key).append("=").append(value);
}

void Replace(std::vector<std::string>& lines, std::string_view key, std::string_view value) {
  for (std::string& line : lines) {
    if (HasKey(line, key)) line = Line(key, value);
  }
}

}  // namespace KeyValue
