// Trying again while another program, such as a virus scanner, holds a file.
#pragma once

#include "platform/FileCalls.h"

namespace Platform {

// Runs an attempt again and again, for up to a second, while its error says that another holds the
// file. Returns the last error.
template <class Attempt>
SystemError Patiently(const Attempt& attempt, bool (*isInUse)(SystemError) = IsInUse) {
  for (int waits = 0;; ++waits) {
    const SystemError error = attempt();
    if (!isInUse(error) || !FileCalls::WaitForOthers(waits)) return error;
  }
}

}  // namespace Platform
