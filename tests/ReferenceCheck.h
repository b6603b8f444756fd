// What the reference checkers share. They hold the whole file in memory and say everything plainly,
// in English, so that they can stand beside the real ones.
#pragma once

#include <cmath>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace Reference {

struct Verdict {
  int32_t result;
  int32_t code;
  std::string message;
  bool operator==(const Verdict&) const = default;
};

inline void PrintTo(const Verdict& verdict, std::ostream* out) {
  *out << "result " << verdict.result << ", code " << verdict.code << ", " << verdict.message;
}

// What ends a check where no line is at fault.
struct Unreadable {};

inline std::vector<std::string> Lines(const std::string& bytes) {
  std::vector<std::string> lines;
  std::string line;
  for (size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] != '\r') {
      line += bytes[i];
      continue;
    }
    lines.push_back(line);
    line.clear();
    if (i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
  }
  if (!line.empty()) lines.push_back(line);
  return lines;
}

inline int32_t Whole(double value) {
  if (!(value > -3e9 && value < 3e9)) throw Unreadable();
  const double below = std::floor(value);
  const double over = value - below;
  auto whole = static_cast<int64_t>(below);
  if (over > 0.5 || (over == 0.5 && whole % 2 != 0)) ++whole;
  if (whole < INT32_MIN || whole > INT32_MAX) throw Unreadable();
  return static_cast<int32_t>(whole);
}

}  // namespace Reference
