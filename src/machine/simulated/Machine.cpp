#include "machine/simulated/Machine.h"

#include <cstdlib>

#include "base/PerRun.h"
#include "platform/Resources.h"

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
  // A program that was built without a key for updates says so.
  executable.resources = {{Platform::DataResource, "UPDATEKEY", "none"}};
  files.PutFolder("C:");
  files.PutFolder(executable.folder);
  files.PutFolder(Disk::TemporaryFolder);
}

Machine::~Machine() {
  // First: what the program still holds after its end, it will never let go.
  RunObjects::End();
  for (const std::string& path : files.OpenFiles()) Complain("the program left open: " + path);
  if (!sound.Playing().empty()) Complain("the program left a sound playing");
  if (microphone.IsOpen()) Complain("the program left a recording open");
  user.ComplainAboutUnusedSteps();
  theMachine = nullptr;
}

void Machine::StartAnew() {
  RunObjects::End();
  // The system closes what an ended program had open; the next one finds all free.
  files.CloseAll();
  faults = {};
}

}  // namespace Simulated
