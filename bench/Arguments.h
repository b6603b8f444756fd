// What the benchmark programs can be told.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <string>

struct Arguments {
  size_t megabytes = 100;  // --megabytes=N
  int rounds = 9;          // --rounds=N

  // --brief: just enough to show that the program runs.
  Arguments(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
      const std::string argument = argv[i];
      const std::string value = argument.substr(argument.find('=') + 1);
      if (argument == "--brief") {
        megabytes = 1;
        rounds = 1;
      } else if (argument.starts_with("--megabytes=")) {
        megabytes = std::strtoul(value.c_str(), nullptr, 10);
      } else if (argument.starts_with("--rounds=")) {
        rounds = std::max(1, std::atoi(value.c_str()));
      }
    }
  }
};
