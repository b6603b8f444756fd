// The spoken description of a track or a vehicle: a wave file beside it, with the same name.
#pragma once

#include <functional>
#include <string>

struct Description {
  // Where it is recorded to; empty while there is nothing to be described.
  std::string path;
  // Goes on once the user has kept a take.
  std::function<void()> OnKept;
};
