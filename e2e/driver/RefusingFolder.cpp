#include "e2e/driver/RefusingFolder.h"

#include <algorithm>

#include "e2e/driver/Places.h"
#include "e2e/driver/Wait.h"
#include "tests/machine/RealMachine.h"
#include "tests/machine/TestMachine.h"

namespace E2e {
namespace {

bool IsHeld(const std::string& path) {
  const HANDLE file =
      CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return GetLastError() == ERROR_SHARING_VIOLATION;
  CloseHandle(file);
  return false;
}

}  // namespace

// It lies where the contract tests have theirs: what an interrupted run leaves there is found, made
// to take files again and removed by the next one.
RefusingFolder::RefusingFolder(const std::string& from)
    : path_(TestMachine::ScratchFolder() + "\\SK2Pack") {
  CopyFolder(from, path_);
  refuses_ = TestMachine::RefuseNewFiles(path_);
}

RefusingFolder::~RefusingFolder() {
  // A program that has just been ended may hold its own file for a moment.
  ComesTrue([this] {
    const std::vector<std::string> names = NamesIn(path_);
    return std::none_of(names.begin(), names.end(),
                        [this](const std::string& name) { return IsHeld(path_ + "\\" + name); });
  });
  RealMachine::PutBackFiles();
}

}  // namespace E2e
