#include "platform/simulated/Machine.h"

#include <cstdlib>

#include "base/PerRun.h"

namespace Simulated {

namespace {
Machine* theMachine = nullptr;
}

Machine& TheMachine() {
  if (!theMachine) {
    Complain("the program runs without a machine");
    std::abort();
  }
  return *theMachine;
}

Machine::Machine() {
  if (theMachine) Complain("there is a machine already");
  theMachine = this;
  files.PutFolder("C:");
  files.PutFolder(executable.folder);
}

Machine::~Machine() {
  RunObjects::End();
  for (const std::string& path : files.OpenFiles()) Complain("the program left open: " + path);
  user.ComplainAboutUnusedSteps();
  theMachine = nullptr;
}

void Machine::InstallGame(const std::string& folder) {
  for (const char* name : {"vehicles", "tracks", "sounds"}) files.PutFolder(folder + "\\" + name);
  const auto put = [this](const char* name, const std::string& text) {
    registry.PutString(Platform::RegistryRoot::LocalMachine, Platform::RegistryView::Of32Bit,
                       "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"
                       "{7A3C51E2-94D0-4B6F-A1C8-2E5D90F4B317}_is1",
                       name, text + '\0');
  };
  put("InstallLocation", folder + "\\");
  put("Publisher", "Gloamworks");
  put("DisplayVersion", "1.0");
  put("Contact", "support@gloamworks.example");
}

}  // namespace Simulated
