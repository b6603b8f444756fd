// Runs the tests of the shipped program.
#include <gmock/gmock.h>
#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "e2e/driver/Opener.h"
#include "e2e/driver/Places.h"

namespace {

bool TakeOption(const std::string& argument, const std::string& name, std::string& value) {
  const std::string start = "--" + name + "=";
  if (!argument.starts_with(start)) return false;
  char path[MAX_PATH] = "";
  GetFullPathNameA(argument.substr(start.size()).c_str(), sizeof path, path, nullptr);
  value = path;
  return true;
}

}  // namespace

int main(int count, char** arguments) {
  if (E2e::Opener::WasStartedToOpen(count, arguments)) return 0;
  testing::InitGoogleMock(&count, arguments);
  // Sizes are compared with those of the tested program, which draws for the screen as it is.
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  E2e::Places& given = E2e::Given();
  for (int i = 1; i < count; i++) {
    const std::string argument = arguments[i];
    const bool isKnown = TakeOption(argument, "pack", given.pack) ||
                         TakeOption(argument, "versions", given.versions) ||
                         TakeOption(argument, "demo", given.demo) ||
                         TakeOption(argument, "pictures", given.pictures) ||
                         TakeOption(argument, "speakers", given.speakers) ||
                         TakeOption(argument, "web", given.web) ||
                         TakeOption(argument, "installer", given.installer);
    if (!isKnown) {
      std::fprintf(stderr, "unknown option %s\n", arguments[i]);
      return 2;
    }
  }
  if (given.pack.empty() || given.versions.empty() || given.demo.empty() ||
      given.pictures.empty()) {
    std::fprintf(stderr,
                 "usage: e2e-tests --pack=FOLDER --versions=FOLDER --demo=FOLDER "
                 "--pictures=FOLDER [--speakers=FILE] [--web=FOLDER] [--installer=FILE]\n");
    return 2;
  }
  // Where the build puts it.
  if (given.installer.empty()) given.installer = given.pack + "\\..\\sk2up.exe";
  std::filesystem::create_directories(given.pictures);
  return RUN_ALL_TESTS();
}
