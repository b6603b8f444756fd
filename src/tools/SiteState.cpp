#include "tools/SiteState.h"

#include <algorithm>
#include <set>

#include "base/RuntimeError.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tools/FolderTree.h"

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

SiteState::SiteState(const std::string& site) : site_(site), served_(Platform::ServedFolder(site)) {
  if (Platform::FileExists(site)) Take();
}

bool SiteState::IsServed(const SiteFiles::Files& files) const {
  const std::vector<std::string> there = FolderTree::FilesIn(served_);
  const auto isAt = [](const std::string& path, const auto& file) { return path == file.first; };
  if (!std::ranges::equal(there, files, isAt)) return false;
  return std::ranges::all_of(files, [&](const auto& file) {
    const std::string path = served_ + "\\" + file.first;
    const auto stamp = Platform::StampOf(path);
    return stamp && stamp->size == file.second.sum.size && SumOfFile(path) == file.second.sum;
  });
}

std::string SiteState::ServedText(const std::string& path) const {
  return Platform::ReadWholeFile(served_ + "\\" + path).value_or("");
}

void SiteState::Serve(const SiteFiles::Files& files) {
  if (!lock_) {
    FolderTree::Make(site_);
    Take();
  }
  const std::string next = Platform::NextServedFolder(site_);
  std::set<std::string> folders;
  for (const auto& [path, file] : files) {
    const std::string target = next + "\\" + path;
    const std::string folder = Platform::FolderOf(target);
    if (folders.insert(folder).second) FolderTree::Make(folder);
    Write(target, file);
  }
  Platform::ServeNextFolder(site_);
  try {
    CleanUp();
  } catch (const RuntimeError&) {
    // It is published, and that is what is told. The next run removes what is left.
  }
}

void SiteState::Take() {
  lock_.emplace(site_);
  CleanUp();
}

void SiteState::CleanUp() const {
  for (const std::string& folder : Platform::UnservedFolders(site_)) FolderTree::Remove(folder);
}
