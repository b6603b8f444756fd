// From the codes of this system to those that every machine gives.
#pragma once

#include "platform/SystemError.h"

namespace Posix {

// What the last call of the system has set as its error.
Platform::SystemError LastError();

// The same for a call that returns a negative number where it fails.
Platform::SystemError ResultOf(int result);

}  // namespace Posix
