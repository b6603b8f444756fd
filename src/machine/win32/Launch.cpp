#include "platform/Launch.h"

#include "base/RuntimeError.h"
#include "machine/win32/Handle.h"
#include "machine/win32/System.h"
#include "platform/Paths.h"

namespace Platform {

namespace {

// The program asks for an administrator. The system's header leaves this code out.
constexpr DWORD ElevationRequired = 740;

[[noreturn]] void Fail(const std::string& path, DWORD code) {
  const SystemCause cause{RuntimeErrorTexts.StartingProgram, code};
  switch (code) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_DIRECTORY:  // the folder in which it is to run, which is its own
      throw RuntimeError(RuntimeError::FileNotFound, path, cause);
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ElevationRequired: throw RuntimeError(RuntimeError::PermissionDenied, path, cause);
    default:
      throw RuntimeError(RuntimeError::DeviceError, RuntimeErrorTexts.NoProgram, path, cause);
  }
}

}  // namespace

void LaunchMinimised(const std::string& path, const std::string& arguments) {
  // The program reads its own path as the first of the arguments, and a blank would end that.
  const bool hasBlank = path.find(' ') != std::string::npos;
  std::string line = hasBlank ? "\"" + path + "\"" : path;
  if (!arguments.empty()) line += " " + arguments;
  STARTUPINFOA how{};
  how.cb = sizeof how;
  how.dwFlags = STARTF_USESHOWWINDOW;
  how.wShowWindow = SW_SHOWMINIMIZED;
  PROCESS_INFORMATION process{};
  const std::string folder = FolderOf(path);
  // The program is named by itself as well: of the line alone the system would try every beginning
  // that ends at a blank.
  if (!CreateProcessA(path.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                      folder.c_str(), &how, &process)) {
    Fail(path, GetLastError());
  }
  const Handle running(process.hProcess);
  const Handle thread(process.hThread);
  // It comes from us, who are in use now, and may take the foreground when it wants to be seen.
  AllowSetForegroundWindow(process.dwProcessId);
}

}  // namespace Platform
