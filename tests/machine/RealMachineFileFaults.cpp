#include "tests/machine/RealMachineFileFaults.h"

#include <cstring>
#include <vector>

#include "tests/machine/RealMachineImports.h"

namespace RealMachine {

namespace {

struct Plan {
  FileFaults::What what = FileFaults::What::RefusesOnce;
  int callsLeft = 0;
  DWORD error = 0;
  std::string refused;
};

Plan& ThePlan() {
  static Plan plan;
  return plan;
}

// Counts a call. True if it must not happen.
bool Strikes(const char* function) {
  Plan& plan = ThePlan();
  if (plan.callsLeft-- > 0) return false;
  if (plan.what == FileFaults::What::EndsProcess) {
    TerminateProcess(GetCurrentProcess(), FileFaults::EndedExitCode);
  }
  const bool isFirst = plan.refused.empty();
  if (isFirst) plan.refused = function;
  if (!isFirst && plan.what == FileFaults::What::RefusesOnce) return false;
  SetLastError(plan.error);
  return true;
}

// What stands for a failure in the result of a function.
template <class Result>
Result Failure() {
  return Result{};
}
template <>
HANDLE Failure<HANDLE>() {
  return INVALID_HANDLE_VALUE;
}

// One of the system's functions and what is called in its place.
template <int Number, class Result, class... Arguments>
struct Hook {
  using Function = Result(WINAPI*)(Arguments...);
  static inline Function original = nullptr;
  static inline const char* name = "";
  static Result WINAPI Call(Arguments... arguments) {
    if (!Strikes(name)) return original(arguments...);
    // A file that could not be closed is closed all the same: what it lacks is what was written.
    if (std::strcmp(name, "CloseHandle") == 0) original(arguments...);
    return Failure<Result>();
  }
};

struct Replacement {
  const char* name;
  void* function;
  void** original;
};

template <int Number, class Result, class... Arguments>
Replacement Replacing(const char* name, Result(WINAPI*)(Arguments...)) {
  using TheHook = Hook<Number, Result, Arguments...>;
  TheHook::name = name;
  return {name, reinterpret_cast<void*>(&TheHook::Call),
          reinterpret_cast<void**>(&TheHook::original)};
}

// Waiting for others takes no time here: nobody lets go meanwhile.
void WINAPI DoNotSleep(DWORD) {}
void* sleep = nullptr;

#define SK2_REPLACING(function) Replacing<__COUNTER__>(#function, &function)
const std::vector<Replacement>& Replacements() {
  static const std::vector<Replacement> all = {
      SK2_REPLACING(CreateFileA),
      SK2_REPLACING(GetFileType),
      SK2_REPLACING(ReadFile),
      SK2_REPLACING(WriteFile),
      SK2_REPLACING(GetFileSizeEx),
      SK2_REPLACING(SetFilePointerEx),
      SK2_REPLACING(SetEndOfFile),
      SK2_REPLACING(FlushFileBuffers),
      SK2_REPLACING(SetFileTime),
      SK2_REPLACING(SetFileInformationByHandle),
      SK2_REPLACING(CloseHandle),
      SK2_REPLACING(GetFileAttributesExA),
      SK2_REPLACING(SetFileAttributesA),
      SK2_REPLACING(DeleteFileA),
      SK2_REPLACING(MoveFileExA),
      SK2_REPLACING(FindFirstFileW),
      SK2_REPLACING(FindNextFileW),
      SK2_REPLACING(CreateDirectoryA),
      {"Sleep", reinterpret_cast<void*>(&DoNotSleep), &sleep},
  };
  return all;
}
#undef SK2_REPLACING

void Install() {
  for (const Replacement& replacement : Replacements()) {
    *replacement.original = ReplaceImport(replacement.name, replacement.function);
  }
}

void Remove() {
  for (const Replacement& replacement : Replacements()) {
    ReplaceImport(replacement.name, *replacement.original);
  }
}

}  // namespace

FileFaults::FileFaults(What what, int calls, DWORD error) {
  Install();
  ThePlan() = {what, calls, error, ""};
}

FileFaults::~FileFaults() {
  Remove();
}

const std::string& FileFaults::refused() const {
  return ThePlan().refused;
}

}  // namespace RealMachine
