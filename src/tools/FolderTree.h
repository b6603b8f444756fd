// A folder with all that is below it.
#pragma once

#include <string>
#include <vector>

namespace FolderTree {

// The files in a folder and in those below it, as paths from the folder on, such as
// "cars\coach.zip", sorted. Nothing if there is no such folder. Fails as Platform::ListFolder does.
std::vector<std::string> FilesIn(const std::string& folder);

// Makes a folder, and those on the way to it that are not there. Fails as Platform::MakeFolder
// does.
void Make(const std::string& folder);

// Removes a folder with all that is in it. Fails as Platform::RemoveFile and RemoveFolder do, and
// leaves then what it could not remove.
void Remove(const std::string& folder);

}  // namespace FolderTree
