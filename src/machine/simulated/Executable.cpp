#include "machine/simulated/Machine.h"

namespace Platform {

using Simulated::TheMachine;

std::string ProgramFolder() {
  return TheMachine().executable.folder;
}

std::string ExecutableName() {
  return TheMachine().executable.name;
}

ProgramVersion ReadProgramVersion() {
  if (TheMachine().faults.Strikes("ReadProgramVersion")) return {};
  return TheMachine().executable.version;
}

}  // namespace Platform
