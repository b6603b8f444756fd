// The served folder is a symbolic link to one of two folders beside it. A new link takes its name
// in one step, which a power cut leaves done or not done.
#include "platform/ServedFolder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>

#include "base/RuntimeError.h"
#include "machine/posix/DiskPath.h"
#include "machine/posix/ErrorCode.h"
#include "platform/FileFailure.h"
#include "platform/Files.h"

namespace Platform {

namespace {

// Names that nobody gives a folder of their own by chance: what is under them is removed.
constexpr std::array<const char*, 2> States = {"state-1.sk2", "state-2.sk2"};
constexpr const char* NewLink = "link.sk2";

std::string PlaceOf(const std::string& path) {
  std::string place;
  Require(Posix::Find(path, place), path, FileStep::Opening);
  return place;
}

// The name of the state that is served; empty if none is.
std::string ServedState(const std::string& site) {
  const std::string path = ServedFolder(site);
  std::string place;
  // A site that is not there yet serves nothing.
  if (Posix::Find(path, place) != SystemError::None) return "";
  std::array<char, PATH_MAX> target{};
  const ssize_t length = readlink(place.c_str(), target.data(), target.size());
  if (length < 0 && errno == ENOENT) return "";
  std::string state(target.data(), length < 0 ? 0 : static_cast<size_t>(length));
  for (const char* ours : States) {
    if (state == ours) return state;
  }
  // A folder, a file, or a link that somebody else has made.
  throw RuntimeError(RuntimeError::FileAlreadyExists, path);
}

// Makes sure that all of it is on the disk, the names of the folders too.
SystemError FlushDiskOf(const std::string& place) {
  const int folder = open(place.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) return Posix::LastError();
  const SystemError error = Posix::ResultOf(syncfs(folder));
  close(folder);
  return error;
}

}  // namespace

// The folder itself is locked: so nothing is written where nothing has changed.
struct SiteLock::State {
  explicit State(int folder) : descriptor(folder) {}
  ~State() { close(descriptor); }
  State(const State&) = delete;
  State& operator=(const State&) = delete;
  int descriptor;
};

SiteLock::SiteLock(const std::string& site) {
  const int folder = open(PlaceOf(site).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  Require(Posix::ResultOf(folder), site, FileStep::Opening);
  state_ = std::make_unique<State>(folder);
  if (flock(folder, LOCK_EX | LOCK_NB) != 0)
    throw RuntimeError(RuntimeError::PermissionDenied, site);
}

SiteLock::~SiteLock() = default;

std::string NextServedFolder(const std::string& site) {
  return site + "\\" + (ServedState(site) == States[0] ? States[1] : States[0]);
}

std::vector<std::string> UnservedFolders(const std::string& site) {
  const std::string served = ServedState(site);
  const std::string link = site + "\\" + NewLink;
  std::string place;
  struct stat info;
  if (Posix::Find(link, place) == SystemError::None && lstat(place.c_str(), &info) == 0) {
    Require(Posix::ResultOf(unlink(place.c_str())), link, FileStep::Deleting);
  }
  std::vector<std::string> folders;
  for (const char* state : States) {
    const std::string folder = site + "\\" + state;
    if (state != served && FileExists(folder)) folders.push_back(folder);
  }
  return folders;
}

void ServeNextFolder(const std::string& site) {
  const std::string served = ServedFolder(site);
  const std::string next = NextServedFolder(site);
  const std::string folder = PlaceOf(site);
  const std::string link = folder + "/" + NewLink;
  Require(FlushDiskOf(folder), next, FileStep::Writing);
  const std::string target = next.substr(site.size() + 1);
  Require(Posix::ResultOf(symlink(target.c_str(), link.c_str())), served, FileStep::Writing);
  const std::string place = folder + "/" + served.substr(site.size() + 1);
  Require(Posix::ResultOf(rename(link.c_str(), place.c_str())), served, FileStep::Renaming);
  FlushDiskOf(folder);
}

}  // namespace Platform
