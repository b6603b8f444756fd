#include "e2e/driver/RunningProgram.h"

#include <tlhelp32.h>

#include <optional>
#include <stdexcept>

#include "e2e/driver/Wait.h"
#include "e2e/driver/Window.h"

namespace E2e {
namespace {

// The file of a running program by its long name; empty if it may not be known.
std::string FileOf(DWORD processId) {
  const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId);
  if (!process) return "";
  char path[MAX_PATH] = "";
  DWORD size = sizeof path;
  if (!QueryFullProcessImageNameA(process, 0, path, &size)) path[0] = '\0';
  CloseHandle(process);
  return path;
}

std::string LongNameOf(const std::string& path) {
  char name[MAX_PATH] = "";
  return GetLongPathNameA(path.c_str(), name, sizeof name) ? name : path;
}

std::optional<DWORD> ProcessOf(const std::string& path) {
  const std::string wanted = LongNameOf(path);
  const HANDLE all = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  PROCESSENTRY32 entry{};
  entry.dwSize = sizeof entry;
  std::optional<DWORD> found;
  for (BOOL more = Process32First(all, &entry); more && !found; more = Process32Next(all, &entry)) {
    const std::string file = LongNameOf(FileOf(entry.th32ProcessID));
    if (lstrcmpiA(file.c_str(), wanted.c_str()) == 0) found = entry.th32ProcessID;
  }
  CloseHandle(all);
  return found;
}

}  // namespace

bool IsRunning(const std::string& path) {
  return ProcessOf(path).has_value();
}

RunningProgram::RunningProgram(const StartedByOthers& other) {
  const Window window =
      WaitFor<Window>("a window of " + other.path, [&]() -> std::optional<Window> {
        const auto id = ProcessOf(other.path);
        const std::vector<Window> windows = id ? TopWindows(*id) : std::vector<Window>();
        return windows.empty() ? std::nullopt : std::optional<Window>(windows.front());
      });
  process_.dwProcessId = window.processId();
  process_.dwThreadId = window.threadId();
  process_.hProcess = OpenProcess(PROCESS_ALL_ACCESS, FALSE, process_.dwProcessId);
  process_.hThread = OpenThread(THREAD_ALL_ACCESS, FALSE, process_.dwThreadId);
}

RunningProgram::RunningProgram(const std::string& path, const std::string& arguments, Shown shown) {
  STARTUPINFOA start{};
  start.cb = sizeof start;
  if (shown == Shown::Minimised) {
    start.dwFlags = STARTF_USESHOWWINDOW;
    start.wShowWindow = SW_SHOWMINIMIZED;
  }
  std::string command = "\"" + path + "\"";
  if (!arguments.empty()) command += " " + arguments;
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
