#include "update/Updater.h"

#include "platform/Executable.h"
#include "platform/Files.h"

namespace Updater {

std::string UpdaterPath() {
  return Platform::ProgramFolder() + "\\orv" + Platform::ExecutableName() + "updater.exe";
}

void RemoveLeftOverUpdater() {
  Platform::RemoveFile(UpdaterPath());
}

}  // namespace Updater
