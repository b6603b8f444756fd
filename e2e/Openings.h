// The way to each window of the pack and back, for what has to hold in all of them.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "e2e/driver/Pack.h"

namespace E2e {

struct Opening {
  const char* form;  // the window's class in the program
  const char* title;
  std::function<void(Pack&)> open;   // from the main window
  std::function<void(Pack&)> leave;  // from where Escape leads, back to the main window
};

// Its form; testing::PrintToStringParamName makes the names of tests of it.
void PrintTo(const Opening& opening, std::ostream* out);

// Every window of the pack but the main one.
std::vector<Opening> Openings();

}  // namespace E2e
