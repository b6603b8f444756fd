// What the input devices are called.
#pragma once

#include <string>

namespace ORec {

// The number of input devices; 0 if the system does not tell in time.
int InputCount();

// The name of a device, never empty, and other than that of each device before it. Empty if there
// is no such device, or the system does not tell in time.
std::string InputName(int number);

}  // namespace ORec
