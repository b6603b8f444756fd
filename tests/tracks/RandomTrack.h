// A track file at random, good or nearly so, for whoever judges tracks.
#pragma once

#include <string>
#include <vector>

#include "tests/RandomText.h"

namespace RandomFiles {

inline std::string Track(RandomText& random) {
  const std::vector<std::string> odd{
      "-1",          "0",          "1",    "2",    "4",     "12",     "13",
      "12.5",        "12.4",       "-0.5", "4999", "5000",  "4999.5", "2147483647.5",
      "99999999999", "sunny",      "",     " 3 ",  "5,000", "&H1",    "(1)",
      "1e4",         "2147483647", "-1.5", "--1",  "- 1",   "$2"};
  const auto line = [&](const std::string& usual) {
    return (random.OneIn(60) ? random.OneOf(odd) : usual) + random.LineEnd();
  };
  std::string text;
  for (size_t parts = random.Below(6); parts > 0; --parts) {
    text += line(std::to_string(random.Below(13)));
    text += line(std::to_string(random.Below(4)));
    text += line(std::to_string(5000 + random.Below(20000)));
  }
  if (!random.OneIn(10)) text += line("-1");
  if (!random.OneIn(10)) text += line(std::to_string(random.Below(2)));
  while (random.OneIn(4)) text += line(random.OneOf(odd));
  return random.OneIn(2) ? text : random.Mutated(text);
}

}  // namespace RandomFiles
