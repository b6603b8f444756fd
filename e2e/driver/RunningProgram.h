// A program that a test started.
#pragma once

#include <windows.h>

#include <string>

namespace E2e {

class RunningProgram {
 public:
  // Starts it in its own folder, without arguments. Throws std::runtime_error if that fails.
  explicit RunningProgram(const std::string& path);
  // Ends it, if it still runs.
  ~RunningProgram();
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;

  DWORD processId() const { return process_.dwProcessId; }
  // The thread of its windows.
  DWORD threadId() const { return process_.dwThreadId; }

  // With all rights.
  HANDLE process() const { return process_.hProcess; }

  bool IsRunning() const;
  // Waits until it has ended by itself, and returns its exit code.
  DWORD WaitForEnd() const;

 private:
  PROCESS_INFORMATION process_{};
};

}  // namespace E2e
