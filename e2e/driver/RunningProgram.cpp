#include "e2e/driver/RunningProgram.h"

#include <stdexcept>

#include "e2e/driver/Wait.h"

namespace E2e {

RunningProgram::RunningProgram(const std::string& path) {
  STARTUPINFOA start{};
  start.cb = sizeof start;
  std::string command = "\"" + path + "\"";
  const std::string folder = path.substr(0, path.rfind('\\'));
  if (!CreateProcessA(path.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                      folder.c_str(), &start, &process_)) {
    throw std::runtime_error("cannot start " + path + ", error " + std::to_string(GetLastError()));
  }
}

RunningProgram::~RunningProgram() {
  if (IsRunning()) {
    TerminateProcess(process_.hProcess, 1);
    WaitForSingleObject(process_.hProcess, 10'000);
  }
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

bool RunningProgram::IsRunning() const {
  return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT;
}

DWORD RunningProgram::WaitForEnd() const {
  WaitUntil("the end of the program", [this] { return !IsRunning(); });
  DWORD code = 0;
  GetExitCodeProcess(process_.hProcess, &code);
  return code;
}

}  // namespace E2e
