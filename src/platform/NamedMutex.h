// A name by which installers see that the program runs.
#pragma once

#include <string>

namespace Platform {

// Creates a named mutex, not owned, that lives until the process ends. Another process may hold the
// same name; both then run. Fails with RuntimeError DeviceError if the system refuses the name.
void HoldNamedMutex(const std::string& name);

}  // namespace Platform
