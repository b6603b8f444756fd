#include "platform/ServedFolder.h"

#include "base/RuntimeError.h"
#include "machine/simulated/Machine.h"
#include "platform/RenamedFolders.h"

namespace Platform {

namespace {

void FailIfStruck(const char* call, const std::string& site) {
  if (!Simulated::TheMachine().faults.Strikes(std::string(call) + " " + site)) return;
  throw RuntimeError(RuntimeError::PermissionDenied, site);
}

}  // namespace

struct SiteLock::State {
  explicit State(const std::string& site) : lock(site) {}
  RenamedFolders::Lock lock;
};

SiteLock::SiteLock(const std::string& site) {
  FailIfStruck("SiteLock", site);
  state_ = std::make_unique<State>(site);
}

SiteLock::~SiteLock() = default;

std::string NextServedFolder(const std::string& site) {
  return RenamedFolders::Next(site);
}

std::vector<std::string> UnservedFolders(const std::string& site) {
  FailIfStruck("UnservedFolders", site);
  return RenamedFolders::Unserved(site);
}

void ServeNextFolder(const std::string& site) {
  FailIfStruck("ServeNextFolder", site);
  RenamedFolders::ServeNext(site);
}

}  // namespace Platform
