// The track checker once more, written without regard to speed or memory.
#pragma once

#include "platform/Numbers.h"
#include "tests/ReferenceCheck.h"

namespace Reference {

inline Verdict CheckTrack(const std::string& path, const std::string& bytes) {
  const std::vector<std::string> lines = Lines(bytes);
  const Verdict unreadable{-1, -5, "(General): " + path + " doesn't exist."};
  const auto whole = [](const std::string& line) {
    const auto parsed = Platform::ParseNumber(line);
    if (!parsed) throw Unreadable();
    return Whole(*parsed);
  };
  // A fault in the n-th line of a part, both counted from 1.
  const auto inPart = [](size_t at, int32_t code, size_t n, size_t part, const std::string& text) {
    return Verdict{static_cast<int32_t>(at + 1), code,
                   "(L" + std::to_string(n) + "P" + std::to_string(part) + "): " + text};
  };
  try {
    size_t at = 0;
    size_t part = 1;
    for (;; ++part) {
      for (size_t n = 1; n <= 3; ++n, ++at) {
        if (at == lines.size()) {
          return {static_cast<int32_t>(at), 4, "(End): No track end available."};
        }
        // The first line of a later part stands where the end might, and is only converted.
        const bool isTested = n > 1 || part == 1;
        if (isTested && !Platform::ParseNumber(lines[at])) {
          const char* const kinds[] = {"curve", "surface type", "section length"};
          return inPart(at, static_cast<int32_t>(n), n, part,
                        std::string("Invalid track ") + kinds[n - 1] +
                            " format. All track lines must be a number.");
        }
        const int32_t value = whole(lines[at]);
        if (n == 1 && (value < 0 || value > 12)) {
          return inPart(at, -1, n, part,
                        "Track part out of range, value must be between 0 and 12.");
        }
        if (n == 2 && (value < 0 || value > 3)) {
          return inPart(at, -2, n, part,
                        "Surface type out of range, value must be between 0 and 3.");
        }
        if (n == 3 && value < 5000) {
          return inPart(at, -3, n, part, "Track length out of range. Value is to be 5000 or more.");
        }
      }
      if (at < lines.size() && whole(lines[at]) == -1) break;
    }
    ++at;
    if (at < lines.size()) {
      const int32_t weather = whole(lines[at]);
      if (weather != 0 && weather != 1) {
        return {static_cast<int32_t>(at + 1), -4, "(End): Weather out of range, must be 0 or 1."};
      }
    }
    return {0, 0,
            std::to_string(lines.size()) + " lines, " + std::to_string(part) +
                " parts, track file was checked successfully with no errors."};
  } catch (const Unreadable&) {
    return unreadable;
  }
}

}  // namespace Reference
