#include "tools/FolderTree.h"

#include <algorithm>

#include "platform/Files.h"
#include "platform/Paths.h"

namespace FolderTree {

namespace {

void AddFilesIn(const std::string& folder, const std::string& prefix,
                std::vector<std::string>& files) {
  for (const Platform::FolderEntry& entry : Platform::ListFolder(folder)) {
    const std::string name = prefix + entry.name;
    if (entry.isFolder) {
      AddFilesIn(folder + "\\" + entry.name, name + "\\", files);
    } else {
      files.push_back(name);
    }
  }
}

}  // namespace

std::vector<std::string> FilesIn(const std::string& folder) {
  std::vector<std::string> files;
  AddFilesIn(folder, "", files);
  std::ranges::sort(files);
  return files;
}

void Make(const std::string& folder) {
  const std::string holder = Platform::FolderOf(folder);
  if (!holder.empty() && !Platform::FileExists(holder)) Make(holder);
  Platform::MakeFolder(folder);
}

void Remove(const std::string& folder) {
  for (const Platform::FolderEntry& entry : Platform::ListFolder(folder)) {
    const std::string path = folder + "\\" + entry.name;
    // Never what a link leads to.
    if (entry.isFolder && !entry.isLink) {
      Remove(path);
    } else {
      Platform::RemoveFile(path);
    }
  }
  Platform::RemoveFolder(folder);
}

}  // namespace FolderTree
