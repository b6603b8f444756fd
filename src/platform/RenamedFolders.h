// The exchange of ServedFolder.h by renaming, for machines without links.
#pragma once

#include <string>
#include <vector>

#include "platform/FileCalls.h"

namespace Platform::RenamedFolders {

// A file that nobody else can have open, beside the folders.
class Lock {
 public:
  explicit Lock(const std::string& site);
  ~Lock();
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;

 private:
  std::string path_;
  OpenFile file_;
};

std::string Next(const std::string& site);
std::vector<std::string> Unserved(const std::string& site);
void ServeNext(const std::string& site);

}  // namespace Platform::RenamedFolders
