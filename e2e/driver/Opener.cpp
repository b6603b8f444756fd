#include "e2e/driver/Opener.h"

#include <fstream>
#include <iterator>
#include <optional>

#include "e2e/driver/Places.h"
#include "e2e/driver/Wait.h"

namespace E2e {
namespace {

constexpr const char* Option = "--opened";
constexpr const char* Classes = "Software\\Classes\\";
constexpr const char* HelpClass = "SK2PackE2eHelp";

std::string OwnPath() {
  char path[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, path, sizeof path);
  return path;
}

}  // namespace

Opener::Opener(const std::string& folder)
    : recordPath_(folder + "\\opened.txt"),
      extension_(HKEY_LOCAL_MACHINE, std::string(Classes) + ".chm", KEY_WOW64_64KEY),
      helpCommand_(HKEY_LOCAL_MACHINE, std::string(Classes) + HelpClass + "\\shell\\open\\command",
                   KEY_WOW64_64KEY),
      webCommand_(HKEY_LOCAL_MACHINE, std::string(Classes) + "http\\shell\\open\\command",
                  KEY_WOW64_64KEY) {
  const std::string command = "\"" + OwnPath() + "\" " + Option + " \"" + recordPath_ + "\" \"%1\"";
  extension_.Set("", HelpClass);
  helpCommand_.Set("", command);
  webCommand_.Set("", command);
}

std::string Opener::WaitForOpened() const {
  return WaitFor<std::string>("something opened", [this]() -> std::optional<std::string> {
    // Its name is there a moment before whoever renamed it lets go of it.
    std::ifstream file(recordPath_, std::ios::binary);
    if (!file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
  });
}

bool Opener::WasStartedToOpen(int count, char** arguments) {
  if (count < 3 || std::string(arguments[1]) != Option) return false;
  const std::string record = arguments[2];
  std::string opened;
  for (int i = 3; i < count; i++) opened += (i > 3 ? "|" : "") + std::string(arguments[i]);
  // Written beside and renamed, so that whoever waits for it finds it whole.
  WriteFile(record + ".new", opened);
  MoveFileA((record + ".new").c_str(), record.c_str());
  return true;
}

}  // namespace E2e
