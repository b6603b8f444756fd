// Starting other programs.
#pragma once

#include <string>

namespace Platform {

// Starts a program and does not wait for it. Its first window is minimised, and in use all the
// same.
//   path       full path of the program. Blanks in it have no meaning.
//   arguments  what follows the program in its command line; may be empty.
// Fails with RuntimeError FileNotFound, PermissionDenied (no right, or it wants to be run by an
// administrator) or DeviceError (not a program, any other refusal), with the path.
void LaunchMinimised(const std::string& path, const std::string& arguments);

}  // namespace Platform
