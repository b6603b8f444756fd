#include "platform/Resources.h"

#include "base/Text.h"
#include "machine/simulated/Machine.h"

namespace Platform {

std::optional<std::string> ReadResource(int type, const std::string& name) {
  Simulated::Machine& machine = Simulated::TheMachine();
  if (machine.faults.Strikes("ReadResource " + name)) return std::nullopt;
  for (const Simulated::Resource& resource : machine.executable.resources) {
    if (resource.type == type && Text::LowerAscii(resource.name) == Text::LowerAscii(name)) {
      return resource.bytes;
    }
  }
  return std::nullopt;
}

}  // namespace Platform
