#include "platform/ShellOpen.h"

#include "machine/simulated/Machine.h"
#include "platform/LongStep.h"
#include "ui/MsgBox.h"

namespace Platform {

namespace {

bool CanBeOpened(const std::string& target) {
  Simulated::Machine& machine = Simulated::TheMachine();
  if (machine.faults.Strikes("ShellOpen " + target)) return false;
  const bool isAddress = target.find("://") != std::string::npos;
  return isAddress || machine.files.Exists(target);
}

}  // namespace

void ShellOpen(const std::string& target) {
  const LongStep step;
  if (CanBeOpened(target)) return Simulated::TheMachine().shell.Open(target);
  MsgBox("Windows cannot find '" + target + "'.", target, Icon::Critical);
}

}  // namespace Platform
