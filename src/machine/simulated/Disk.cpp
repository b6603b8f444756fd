#include "machine/simulated/Disk.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include "machine/simulated/Machine.h"
#include "platform/Characters.h"
#include "platform/Paths.h"

namespace Simulated {

std::string FoldCase(std::string_view text) {
  const LocaleSettings& locale = TheMachine().locale;
  std::string folded(text);
  for (size_t i = 0; i < folded.size(); ++i) {
    const auto byte = static_cast<unsigned char>(folded[i]);
    const bool isWestern = locale.codePage == 1252;
    const bool isCapital =
        (byte >= 'A' && byte <= 'Z') ||
        (isWestern && byte >= 0xC0 && byte <= 0xDE && byte != 0xD7);  // 0xD7 multiplies
    if (isCapital) folded[i] = static_cast<char>(byte + 0x20);
    if (locale.IsLeadByte(folded[i])) ++i;
  }
  return folded;
}

namespace {

bool EndsInSeparator(const std::string& path) {
  return Platform::NameOf(path).empty() || path.ends_with('/');
}

// The names on the way to a file, letter case folded.
std::vector<std::string> NamesOn(const std::string& path) {
  std::vector<std::string> names(1);
  const std::string folded = FoldCase(path);
  for (size_t i = 0; i < folded.size(); ++i) {
    if (folded[i] == '\\' || folded[i] == '/') {
      names.emplace_back();
      continue;
    }
    names.back() += folded[i];
    if (Platform::IsLeadByte(folded[i]) && i + 1 < folded.size()) names.back() += folded[++i];
  }
  return names;
}

// Under what a path is found: letter case does not count, "." and ".." are resolved by their words
// alone, and dots and blanks at the path's end are dropped.
std::string KeyOf(const std::string& path) {
  std::vector<std::string> names;
  for (const std::string& name : NamesOn(path)) {
    if (name == "..") {
      if (names.size() > 1) names.pop_back();
    } else if (!name.empty() && name != ".") {
      names.push_back(name);
    }
  }
  while (!EndsInSeparator(path) && !names.empty()) {
    std::string& last = names.back();
    last.erase(last.find_last_not_of(" .") + 1);
    if (!last.empty()) break;
    names.pop_back();
  }
  std::string key;
  for (const std::string& name : names) key.append(key.empty() ? "" : "\\").append(name);
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

void Disk::Put(const std::string& path, std::string_view bytes) {
  PutFolder(Platform::FolderOf(path));
  DiskEntry& file = Make(path);
  file.bytes = bytes;
  file.hostPath.clear();
  Written(file);
}

void Disk::PutFolder(const std::string& path) {
  if (path.empty() || Find(path)) return;
  PutFolder(Platform::FolderOf(path));
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
  const std::string key = KeyOf(folder);
  for (const auto& [place, entry] : entries_) {
    if (Platform::FolderOf(place) == key) names.push_back(Platform::NameOf(entry->path));
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
