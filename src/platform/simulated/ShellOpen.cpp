#include "platform/ShellOpen.h"

#include "platform/simulated/Machine.h"

namespace Platform {

void ShellOpen(const std::string& target) {
  Simulated::Machine& machine = Simulated::TheMachine();
  if (machine.faults.Strikes("ShellOpen " + target)) return;
  machine.shell.Open(target);
}

}  // namespace Platform
