// The exchange of ServedFolder.h by renaming, for machines without links.
#pragma once

#include <string>
#include <vector>

namespace Platform::RenamedFolders {

std::string Next(const std::string& site);
std::vector<std::string> Unserved(const std::string& site);
void ServeNext(const std::string& site);

}  // namespace Platform::RenamedFolders
