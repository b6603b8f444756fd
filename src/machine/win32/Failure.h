// From the system's error codes to the program's failures: the one place that knows both.
#pragma once

#include <string>

#include "machine/win32/System.h"

namespace Platform {

// Fails with the RuntimeError that a system error on a file stands for.
//   path    the file or folder that was asked for. Where the system says no more than "denied", its
//           attributes tell a write-protected file or a folder from one that is in use.
//   access  what was asked for: only writing is refused because of the read-only attribute.
enum class Access { Reading, Writing };
[[noreturn]] void FailWith(DWORD error, const std::string& path, Access access);

// True if another program holds the file that was to be opened, so that it may work a moment later.
// Not for want of a right, which no waiting mends.
bool IsInUse(DWORD error);

// The same where the file was to be replaced: that too is refused as "access denied" while someone
// has it open.
bool IsInUseForReplacing(DWORD error);

}  // namespace Platform
