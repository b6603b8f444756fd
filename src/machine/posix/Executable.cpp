#include "platform/Executable.h"

#include <unistd.h>

#include <algorithm>
#include <vector>

#include "machine/posix/DiskPath.h"
#include "platform/Paths.h"

namespace Platform {

namespace {

// The path of the running program, in the code page and with "\" between folders.
std::string Path() {
  std::vector<char> path(4096);
  const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
  if (length <= 0) return "";
  std::string found = Posix::NameFromDisk({path.data(), static_cast<size_t>(length)});
  std::replace(found.begin(), found.end(), '/', '\\');
  return found;
}

}  // namespace

std::string ProgramFolder() {
  return FolderOf(Path());
}

std::string ExecutableName() {
  return NameOf(Path());
}

// Programs of this system carry no such resource.
ProgramVersion ReadProgramVersion() {
  return {};
}

}  // namespace Platform
