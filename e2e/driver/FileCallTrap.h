// Ends a running program at one of its calls of the system's file functions, as a power cut would.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "e2e/driver/RunningProgram.h"

namespace E2e {

// Set from outside: the program's file stays as it is shipped. In the memory of the process its
// table of imported functions is made to lead through a few instructions that count the calls.
class FileCallTrap {
 public:
  // The program must have started. Throws std::runtime_error if its memory cannot be changed.
  explicit FileCallTrap(const RunningProgram& program);

  // Counted from now on, so many calls go well. At the next one, before it happens, the program is
  // ended with ExitCode.
  void EndAfter(int calls);

  static constexpr DWORD ExitCode = 77;

 private:
  // Writes the instructions that stand between the program and a function. Returns where they are.
  DWORD64 PutInstructions(DWORD64 function);
  void LeadThrough(DWORD64 slot);

  HANDLE process_;
  DWORD64 room_ = 0;  // of our own in the program's memory: the counter, and instructions
  DWORD64 next_ = 0;  // where there is still place in it
};

}  // namespace E2e
