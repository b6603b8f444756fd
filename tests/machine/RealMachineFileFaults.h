// Stands between this program and the system's file functions: the n-th call ends the process, or
// is refused. It rewrites the program's own table of imported functions, so that the code under
// test is what ships.
#pragma once

#include <string>

#include "machine/win32/System.h"

namespace RealMachine {

class FileFaults {
 public:
  enum class What {
    EndsProcess,      // at that call, which does not happen; the exit code is EndedExitCode
    RefusesOnce,      // that call
    RefusesFromThere  // it and all later ones
  };
  static constexpr UINT EndedExitCode = 77;

  // Calls are counted from here on.
  //   calls  how many go well before it happens.
  //   error  the system's code of a refusal.
  FileFaults(What what, int calls, DWORD error = ERROR_ACCESS_DENIED);
  // The system's functions are called as ever again.
  ~FileFaults();
  FileFaults(const FileFaults&) = delete;
  FileFaults& operator=(const FileFaults&) = delete;

  // The function that was refused; empty if it did not come to that.
  const std::string& refused() const;
};

}  // namespace RealMachine
