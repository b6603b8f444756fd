#include "platform/NamedMutex.h"

#include "base/PerRun.h"
#include "base/RuntimeError.h"
#include "machine/simulated/Machine.h"

namespace Platform {

void HoldNamedMutex(const std::string& name) {
  Simulated::Machine& machine = Simulated::TheMachine();
  // A backslash stands between the parts of a name in the system's name space, which has none.
  const bool isRefused = name.find('\\') != std::string::npos;
  if (machine.faults.Strikes("HoldNamedMutex " + name) || isRefused) {
    throw RuntimeError(RuntimeError::DeviceError, "", {RuntimeErrorTexts.MakingMutex, 6});
  }
  machine.mutexes.Hold(name);
  RunObjects::OnEnd([name] { Simulated::TheMachine().mutexes.Release(name); });
}

}  // namespace Platform
