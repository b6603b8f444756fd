#include "platform/simulated/Disk.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include "base/File.h"
#include "base/Text.h"
#include "platform/simulated/Complaints.h"

namespace Simulated {

std::string FoldCase(std::string_view text) {
  std::string folded(text);
  for (char& c : folded) {
    const unsigned char byte = static_cast<unsigned char>(c);
    const bool isCapital = (byte >= 'A' && byte <= 'Z') ||
                           (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7);  // 0xD7 multiplies
    if (isCapital) c = static_cast<char>(byte + 0x20);
  }
  return folded;
}

namespace {

bool EndsInSeparator(const std::string& path) {
  return path.ends_with('\\') || path.ends_with('/');
}

// Under what a path is found: letter case does not count, "." and ".." are resolved by their words
// alone, and dots and blanks at the path's end are dropped.
std::string KeyOf(const std::string& path) {
  std::string folded = FoldCase(path);
  std::replace(folded.begin(), folded.end(), '/', '\\');
  std::vector<std::string> names;
  for (const std::string& name : Text::Split(folded, "\\")) {
    if (name == "..") {
      if (names.size() > 1) names.pop_back();
    } else if (!name.empty() && name != ".") {
      names.push_back(name);
    }
  }
  std::string key;
  for (const std::string& name : names) key.append(key.empty() ? "" : "\\").append(name);
  if (!EndsInSeparator(path)) key.erase(key.find_last_not_of(" .\\") + 1);
  return key;
}

}  // namespace

std::string BytesOf(const DiskEntry& entry) {
  if (entry.hostPath.empty()) return entry.bytes;
  std::ifstream file(entry.hostPath, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

uint64_t SizeOf(const DiskEntry& entry) {
  return entry.hostPath.empty() ? entry.bytes.size() : std::filesystem::file_size(entry.hostPath);
}

Disk::Disk() {
  PutFolder("C:");
}

void Disk::Put(const std::string& path, std::string_view bytes) {
  PutFolder(File::FolderOf(path));
  DiskEntry& file = Make(path);
  file.bytes = bytes;
  file.hostPath.clear();
  Written(file);
}

void Disk::PutFolder(const std::string& path) {
  if (path.empty() || Find(path)) return;
  PutFolder(File::FolderOf(path));
  Make(path).isFolder = true;
}

void Disk::MountHostFile(const std::string& path, const std::string& hostPath) {
  Put(path, "");
  Find(path)->hostPath = hostPath;
}

void Disk::Delete(const std::string& path) {
  if (MustFind(path).IsInUse()) return Complain("a file in use cannot be deleted: " + path);
  Erase(path);
}

std::string Disk::Appended(const std::string& path) const {
  const DiskEntry* file = Find(path);
  return file ? file->appended : "";
}

std::string Disk::Text(const std::string& path) const {
  const DiskEntry* file = Find(path);
  if (file && !file->isFolder) return BytesOf(*file);
  Complain("there is no file " + path);
  return "";
}

std::vector<std::string> Disk::Names(const std::string& folder) const {
  std::vector<std::string> names;
  const std::string start = KeyOf(folder) + "\\";
  for (auto at = entries_.lower_bound(start); at != entries_.end(); ++at) {
    if (!at->first.starts_with(start)) break;
    if (at->first.find('\\', start.size()) == std::string::npos) {
      names.push_back(File::NameOf(at->second->path));
    }
  }
  return names;
}

void Disk::SetAttributes(const std::string& path, int attributes) {
  MustFind(path).attributes = attributes;
}

int Disk::Attributes(const std::string& path) const {
  const DiskEntry* entry = Find(path);
  if (!entry) Complain("there is no file " + path);
  return entry ? entry->attributes : 0;
}

void Disk::Hold(const std::string& path) {
  MustFind(path).isHeld = true;
}

void Disk::HoldAlone(const std::string& path) {
  MustFind(path).isHeldAlone = true;
}

void Disk::Release(const std::string& path) {
  DiskEntry& entry = MustFind(path);
  entry.isHeld = entry.isHeldAlone = false;
}

void Disk::RefuseNewFiles(const std::string& folder) {
  MustFind(folder).refusesFiles = true;
}

void Disk::RefuseWrites(const std::string& path) {
  MustFind(path).refusesWrites = true;
}

void Disk::FailWrites(After after, RuntimeError::Number number) {
  writesLeft_ = after.calls;
  writeFault_ = number;
}

void Disk::CountWrite(const std::string& path) {
  if (writeFault_ && writesLeft_-- <= 0) throw RuntimeError(*writeFault_, path);
}

const DiskEntry* Disk::Find(const std::string& path) const {
  const auto found = entries_.find(KeyOf(path));
  if (found == entries_.end()) return nullptr;
  // A separator at the end of a path says that it leads to a folder.
  const DiskEntry& entry = *found->second;
  return entry.isFolder || !EndsInSeparator(path) ? &entry : nullptr;
}

DiskEntry* Disk::Find(const std::string& path) {
  return const_cast<DiskEntry*>(std::as_const(*this).Find(path));
}

DiskEntry& Disk::Make(const std::string& path) {
  std::shared_ptr<DiskEntry>& entry = entries_[KeyOf(path)];
  if (!entry) {
    entry = std::make_shared<DiskEntry>();
    entry->path = path;
    Written(*entry);
  }
  return *entry;
}

void Disk::Erase(const std::string& path) {
  entries_.erase(KeyOf(path));
}

std::vector<std::string> Disk::OpenFiles() const {
  std::vector<std::string> paths;
  for (const auto& [key, entry] : entries_) {
    if (entry->readers > 0) paths.push_back(entry->path);
  }
  return paths;
}

DiskEntry& Disk::MustFind(const std::string& path) {
  if (!Find(path)) {
    Complain("there is no file " + path);
    Put(path, "");
  }
  return *Find(path);
}

}  // namespace Simulated
