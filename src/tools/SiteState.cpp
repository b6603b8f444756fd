#include "tools/SiteState.h"

#include <algorithm>
#include <set>

#include "base/RuntimeError.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/ServedFolder.h"
#include "tools/FolderTree.h"

namespace SiteState {

namespace {

constexpr LangText ChangedMeanwhile{"", "The file was changed while it was published. Try again."};

void Write(const std::string& path, const SiteFiles::SiteFile& file) {
  if (file.source.empty()) return Platform::WriteWholeFile(path, file.text);
  Platform::CopyFileTo(file.source, path);
  // What is served must be what was judged.
  if (SumOfFile(path) != file.sum) {
    throw RuntimeError(RuntimeError::InvalidCall, ChangedMeanwhile, file.source);
  }
}

}  // namespace

bool IsServed(const std::string& site, const SiteFiles::Files& files) {
  const std::string served = Platform::ServedFolder(site);
  const std::vector<std::string> there = FolderTree::FilesIn(served);
  const auto isAt = [](const std::string& path, const auto& file) { return path == file.first; };
  if (!std::ranges::equal(there, files, isAt)) return false;
  return std::ranges::all_of(files, [&](const auto& file) {
    const auto stamp = Platform::StampOf(served + "\\" + file.first);
    return stamp && stamp->size == file.second.sum.size &&
           SumOfFile(served + "\\" + file.first) == file.second.sum;
  });
}

std::string ServedText(const std::string& site, const std::string& path) {
  return Platform::ReadWholeFile(Platform::ServedFolder(site) + "\\" + path).value_or("");
}

void CleanUp(const std::string& site) {
  for (const std::string& folder : Platform::UnservedFolders(site)) FolderTree::Remove(folder);
}

void Serve(const std::string& site, const SiteFiles::Files& files) {
  FolderTree::Make(site);
  CleanUp(site);
  const std::string next = Platform::NextServedFolder(site);
  std::set<std::string> folders;
  for (const auto& [path, file] : files) {
    const std::string target = next + "\\" + path;
    const std::string folder = Platform::FolderOf(target);
    if (folders.insert(folder).second) FolderTree::Make(folder);
    Write(target, file);
  }
  Platform::ServeNextFolder(site);
  try {
    CleanUp(site);
  } catch (const RuntimeError&) {
    // It is published, and that is what is told. The next run removes what is left.
  }
}

}  // namespace SiteState
