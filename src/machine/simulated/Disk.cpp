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

namespace {

// The small letter of one that lies between "À" and "Þ" of the Western code page and of Unicode.
constexpr unsigned char WesternStart = 0xC0;
constexpr unsigned char WesternEnd = 0xDE;
constexpr unsigned char Multiplication = 0xD7;

bool IsWesternCapital(unsigned char number) {
  return number >= WesternStart && number <= WesternEnd && number != Multiplication;
}

}  // namespace

std::string FoldCase(std::string_view text) {
  const int codePage = TheMachine().locale.codePage;
  std::string folded(text);
  for (size_t i = 0; i < folded.size();) {
    const size_t length = Platform::CharacterLength(std::string_view(folded).substr(i));
    // In UTF-8 those letters have C3 before them, and stand 0x40 lower.
    char& last = folded[i + length - 1];
    const auto byte = static_cast<unsigned char>(last);
    const bool isOfTwo = codePage == 65001 && length == 2 && folded[i] == '\xC3';
    const bool isCapital = (length == 1 && byte >= 'A' && byte <= 'Z') ||
                           (length == 1 && codePage == 1252 && IsWesternCapital(byte)) ||
                           (isOfTwo && IsWesternCapital(static_cast<unsigned char>(byte + 0x40)));
    if (isCapital) last = static_cast<char>(byte + 0x20);
    i += length;
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
  for (size_t i = 0; i < folded.size();) {
    const size_t length = Platform::CharacterLength(std::string_view(folded).substr(i));
    if (folded[i] == '\\' || folded[i] == '/') {
      names.emplace_back();
    } else {
      names.back().append(folded, i, length);
    }
    i += length;
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
  // Windows drops them, so "hill.trk." is the file "hill.trk".
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

bool DiskEntry::Allows(const Opening& wanted) const {
  const auto allows = [&](const Opening& other) {
    // Each must let the other do what it does, as the system asks of both.
    return (!wanted.reads || other.letsRead) && (!wanted.writes || other.letsWrite) &&
           (!other.reads || wanted.letsRead) && (!other.writes || wanted.letsWrite);
  };
  return (!held || allows(*held)) &&
         std::all_of(openings.begin(), openings.end(),
                     [&](const Opening* opening) { return allows(*opening); });
}

bool DiskEntry::AllowsToGo() const {
  return (!held || held->letsDelete) &&
         std::all_of(openings.begin(), openings.end(),
                     [](const Opening* opening) { return opening->letsDelete; });
}

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
  if (MustFind(path).IsOpen()) return Complain("a file in use cannot be deleted: " + path);
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
  MustFind(path).held = Opening{.reads = true, .writes = true, .letsRead = true};
}

void Disk::HoldAlone(const std::string& path) {
  MustFind(path).held = Opening{.reads = true, .writes = true};
}

void Disk::HoldShared(const std::string& path) {
  MustFind(path).held = Opening{.reads = true, .writes = true, .letsRead = true, .letsWrite = true};
}

void Disk::Release(const std::string& path) {
  MustFind(path).held.reset();
}

void Disk::ReleaseAfterWaits(const std::string& path, int waits) {
  waitsLeft_[path] = waits;
}

void Disk::Waited() {
  for (auto& [path, left] : waitsLeft_) {
    if (--left == 0) Release(path);
  }
}

void Disk::CloseAll() {
  for (auto& [key, entry] : entries_) entry->openings.clear();
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

Platform::SystemError Disk::CountWrite() {
  if (!writeFault_ || writesLeft_-- > 0) return Platform::SystemError::None;
  switch (*writeFault_) {
    case RuntimeError::DiskFull: return Platform::SystemError::DiskFull;
    case RuntimeError::PermissionDenied: return Platform::SystemError::AccessDenied;
    case RuntimeError::DiskNotReady: return Platform::SystemError::NotReady;
    default: return Platform::SystemError::DeviceFailed;
  }
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
    entry->made = ++made_;
    Written(*entry);
  }
  return *entry;
}

void Disk::Erase(const std::string& path) {
  entries_.erase(KeyOf(path));
}

void Disk::Move(const std::string& from, const std::string& to) {
  const std::string start = KeyOf(from);
  const std::string end = KeyOf(to);
  std::vector<std::pair<std::string, std::shared_ptr<DiskEntry>>> moved;
  for (auto entry = entries_.begin(); entry != entries_.end();) {
    const auto& [key, file] = *entry;
    if (key == start || key.starts_with(start + "\\")) {
      moved.emplace_back(end + key.substr(start.size()), file);
      file->path = to + file->path.substr(from.size());
      entry = entries_.erase(entry);
    } else {
      ++entry;
    }
  }
  for (auto& [key, file] : moved) entries_[key] = std::move(file);
}

std::vector<const DiskEntry*> Disk::Inside(const std::string& folder) const {
  std::vector<const DiskEntry*> inside;
  const std::string key = KeyOf(folder);
  for (const auto& [place, entry] : entries_) {
    if (Platform::FolderOf(place) == key) inside.push_back(entry.get());
  }
  // As they were made: who counts on an order by name, which no system promises, is found out.
  std::sort(inside.begin(), inside.end(),
            [](const DiskEntry* a, const DiskEntry* b) { return a->made < b->made; });
  return inside;
}

std::vector<std::string> Disk::OpenFiles() const {
  std::vector<std::string> paths;
  for (const auto& [key, entry] : entries_) {
    if (!entry->openings.empty()) paths.push_back(entry->path);
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
