// What the checkers of the game's files find.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

struct Fault {
  int64_t line = 0;     // the first is 1
  int32_t code = 0;     // the checker's own number for what it is; never 0
  std::string message;  // what to tell the user, in the user's language
};

// Is told of each fault, in the order of the lines. Returns whether the checker goes on behind it:
// the pack stops at the first one, and a console program may want them all.
using FaultTaker = std::function<bool(const Fault&)>;
