#include "platform/Launch.h"

#include "base/RuntimeError.h"
#include "machine/simulated/Machine.h"

namespace Platform {

void LaunchMinimised(const std::string& path, const std::string& arguments) {
  Simulated::Machine& machine = Simulated::TheMachine();
  const SystemCause cause{RuntimeErrorTexts.StartingProgram, 2};
  const Simulated::DiskEntry* const program = machine.files.Find(path);
  if (!program) throw RuntimeError(RuntimeError::FileNotFound, path, cause);
  if (program->held && !program->held->letsRead) {
    throw RuntimeError(RuntimeError::PermissionDenied, path,
                       {RuntimeErrorTexts.StartingProgram, 32});
  }
  const std::string bytes = Simulated::BytesOf(*program);
  // With these letters every program of the system begins.
  if (!bytes.starts_with("MZ") || machine.faults.Strikes("LaunchMinimised " + path)) {
    throw RuntimeError(RuntimeError::DeviceError, RuntimeErrorTexts.NoProgram, path,
                       {RuntimeErrorTexts.StartingProgram, 193});
  }
  machine.launches.Add({path, arguments, bytes});
}

}  // namespace Platform
