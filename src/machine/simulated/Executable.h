// The program's own file on the simulated machine.
#pragma once

#include <string>
#include <vector>

#include "platform/Executable.h"

namespace Simulated {

// What the executable carries with it.
struct Resource {
  int type = 0;
  std::string name;
  std::string bytes;
};

struct Executable {
  std::string folder = "C:\\Program Files\\SK2Pack";
  std::string name = "sk2pack";
  Platform::ProgramVersion version{.major = 1,
                                   .minor = 0,
                                   .revision = 0,
                                   .productName = "Skidrun2 Utility Pack",
                                   .fileDescription = "Skidrun2 Utility Pack"};
  std::vector<Resource> resources;
};

}  // namespace Simulated
