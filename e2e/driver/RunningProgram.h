// A program that a test started, or has found running.
#pragma once

#include <windows.h>

#include <string>

namespace E2e {

class RunningProgram {
 public:
  // How its first window is to be shown.
  enum class Shown { Normally, Minimised };

  // Starts it in its own folder. Throws std::runtime_error if that fails.
  //   arguments  what stands behind the program in its command line.
  explicit RunningProgram(const std::string& path, const std::string& arguments = "",
                          Shown shown = Shown::Normally);
  // One that another program starts: waits until it runs, and has its main thread told by a window.
  struct StartedByOthers {
    std::string path;
  };
  explicit RunningProgram(const StartedByOthers& other);
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

// True if a program of that file runs.
bool IsRunning(const std::string& path);

}  // namespace E2e
