#include "e2e/driver/ConsoleProgram.h"

#include <windows.h>

#include <stdexcept>

#include "e2e/driver/Places.h"
#include "e2e/driver/Wait.h"

namespace E2e {

namespace {

// A file that the program inherits, for all that it says.
class Output {
 public:
  explicit Output(const std::string& path) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    handle_ = CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS,
                          FILE_ATTRIBUTE_NORMAL, nullptr);
  }
  ~Output() { CloseHandle(handle_); }
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  HANDLE handle() const { return handle_; }

 private:
  HANDLE handle_;
};

}  // namespace

ConsoleOutcome RunTool(const std::string& name, const std::vector<std::string>& arguments) {
  const ScratchFolder scratch;
  const std::string path = Given().pack + "\\..\\tools\\" + name + ".exe";
  std::string command = "\"" + path + "\"";
  for (const std::string& argument : arguments) command += " \"" + argument + "\"";
  const std::string saidPath = scratch.path() + "\\said.txt";
  ConsoleOutcome outcome;
  {
    const Output output(saidPath);
    STARTUPINFOA start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = output.handle();
    start.hStdError = output.handle();
    PROCESS_INFORMATION process{};
    if (!CreateProcessA(path.c_str(), command.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW,
                        nullptr, nullptr, &start, &process)) {
      throw std::runtime_error("cannot start " + path + ", error " +
                               std::to_string(GetLastError()));
    }
    WaitUntil("the end of " + name,
              [&] { return WaitForSingleObject(process.hProcess, 0) != WAIT_TIMEOUT; });
    GetExitCodeProcess(process.hProcess, &outcome.status);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
  }
  outcome.said = ReadFile(saidPath);
  return outcome;
}

}  // namespace E2e
