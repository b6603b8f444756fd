#include "platform/Executable.h"

namespace Platform {

std::string PathBesideProgram(const std::string& ending) {
  return ProgramFolder() + "\\" + ExecutableName() + ending;
}

}  // namespace Platform
