#include "platform/Console.h"

#include "machine/posix/DiskPath.h"

namespace Platform {

std::vector<std::string> StartConsole(int count, char** arguments) {
  std::vector<std::string> texts;
  // Most of them are names of files.
  for (int i = 1; i < count; ++i) texts.push_back(Posix::NameFromDisk(arguments[i]));
  return texts;
}

}  // namespace Platform
