#include "platform/ServedFolder.h"

#include "platform/RenamedFolders.h"

namespace Platform {

struct SiteLock::State {
  explicit State(const std::string& site) : lock(site) {}
  RenamedFolders::Lock lock;
};

SiteLock::SiteLock(const std::string& site) {
  state_ = std::make_unique<State>(site);
}

SiteLock::~SiteLock() = default;

std::string NextServedFolder(const std::string& site) {
  return RenamedFolders::Next(site);
}

std::vector<std::string> UnservedFolders(const std::string& site) {
  return RenamedFolders::Unserved(site);
}

void ServeNextFolder(const std::string& site) {
  RenamedFolders::ServeNext(site);
}

}  // namespace Platform
