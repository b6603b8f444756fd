#include "platform/ServedFolder.h"

#include "platform/RenamedFolders.h"

namespace Platform {

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
