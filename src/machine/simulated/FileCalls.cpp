#include "platform/FileCalls.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <optional>

#include "machine/simulated/Machine.h"
#include "platform/Paths.h"

namespace Platform {

using Simulated::DiskEntry;
using Simulated::Opening;
using Simulated::TheMachine;

namespace {

Simulated::Disk& TheDisk() {
  return TheMachine().files;
}

// See Faults::RefusalOf.
std::optional<SystemError> Refusal(const char* call, const std::string& path, SystemError usual) {
  return TheMachine().faults.RefusalOf(std::string(call) + " " + path, usual);
}

DiskEntry* FolderHolding(const std::string& path) {
  DiskEntry* folder = TheDisk().Find(FolderOf(path));
  return folder && folder->isFolder ? folder : nullptr;
}

// Why there is nothing under a name.
SystemError Missing(const std::string& path) {
  return FolderHolding(path) ? SystemError::FileNotFound : SystemError::PathNotFound;
}

bool RefusesChange(const std::string& path) {
  const DiskEntry* folder = FolderHolding(path);
  return !folder || folder->refusesFiles;
}

FileAttributes FromNumber(int attributes) {
  return {(attributes & Simulated::ReadOnly) != 0, (attributes & Simulated::Hidden) != 0,
          (attributes & Simulated::System) != 0};
}

int ToNumber(FileAttributes attributes) {
  return (attributes.isReadOnly ? Simulated::ReadOnly : 0) |
         (attributes.isHidden ? Simulated::Hidden : 0) |
         (attributes.isSystem ? Simulated::System : 0);
}

Opening OpeningFor(OpenFile::How how) {
  using How = OpenFile::How;
  switch (how) {
    case How::ToRead: return {.reads = true, .letsRead = true, .letsWrite = true};
    case How::ToGlance:
      return {.reads = true, .letsRead = true, .letsWrite = true, .letsDelete = true};
    case How::ToGuard: return {.reads = true, .letsRead = true};
    case How::ToAppend: return {.writes = true, .letsRead = true};
    case How::ToRewriteShared:
      return {.reads = true, .writes = true, .letsRead = true, .letsWrite = true};
    case How::ToRewrite:
    case How::New: return {.reads = true, .writes = true, .letsRead = true};
  }
  return {};
}

}  // namespace

struct OpenFile::State {
  State(DiskEntry& entry, How how, bool wasMade)
      : file(entry.shared_from_this()),
        opening(OpeningFor(how)),
        isNew(wasMade),
        appends(how == How::ToAppend) {
    file->openings.push_back(&opening);
    if (!file->hostPath.empty()) hostFile.open(file->hostPath, std::ios::binary);
  }
  ~State() { std::erase(file->openings, &opening); }
  State(const State&) = delete;
  State& operator=(const State&) = delete;

  // The bytes, to be changed: they are in memory from now on, and on the disk at once.
  std::string& Bytes() {
    if (!file->hostPath.empty()) {
      file->bytes = Simulated::BytesOf(*file);
      file->hostPath.clear();
    }
    return file->bytes;
  }

  std::shared_ptr<DiskEntry> file;  // may outlive the machine, which then complains
  Opening opening;
  bool isNew;
  bool appends;
  std::ifstream hostFile;
  size_t place = 0;
};

OpenFile::OpenFile() = default;
OpenFile::~OpenFile() = default;
OpenFile::OpenFile(OpenFile&&) noexcept = default;
OpenFile& OpenFile::operator=(OpenFile&&) noexcept = default;

SystemError OpenFile::Open(const std::string& path, How how) {
  state_ = nullptr;
  const bool isRead = how == How::ToRead || how == How::ToGlance || how == How::ToGuard;
  const char* call = isRead ? "Open" : how == How::New ? "Make" : "OpenToWrite";
  if (const auto refused = Refusal(call, path, SystemError::AccessDenied)) return *refused;
  DiskEntry* file = TheDisk().Find(path);
  const bool makes = how == How::New || how == How::ToAppend;
  if (file && how == How::New) return SystemError::FileExists;
  if (!file) {
    if (!makes || !FolderHolding(path)) return Missing(path);
    if (RefusesChange(path)) return SystemError::AccessDenied;
    state_ = std::make_unique<State>(TheDisk().Make(path), how, true);
    return SystemError::None;
  }
  // The code that Windows has for opening a folder as a file.
  if (file->isFolder) return SystemError::AccessDenied;
  if (!isRead && (file->refusesWrites || file->attributes & Simulated::ReadOnly)) {
    return SystemError::AccessDenied;
  }
  if (!file->Allows(OpeningFor(how))) return SystemError::SharingViolation;
  state_ = std::make_unique<State>(*file, how, false);
  return SystemError::None;
}

bool OpenFile::IsNew() const {
  return state_ && state_->isNew;
}

SystemError OpenFile::Read(char* buffer, size_t size, size_t& count) {
  DiskEntry& file = *state_->file;
  if (const auto refused = Refusal("Read", file.path, SystemError::DeviceFailed)) return *refused;
  // A read may give less than was asked for, as those of network drives do.
  size = std::min(size, TheDisk().LargestRead());
  if (!file.hostPath.empty()) {
    state_->hostFile.clear();
    state_->hostFile.seekg(static_cast<std::streamoff>(state_->place));
    state_->hostFile.read(buffer, static_cast<std::streamsize>(size));
    count = static_cast<size_t>(state_->hostFile.gcount());
  } else {
    count = std::min(size, file.bytes.size() - std::min(state_->place, file.bytes.size()));
    std::memcpy(buffer, file.bytes.data() + std::min(state_->place, file.bytes.size()), count);
  }
  state_->place += count;
  return SystemError::None;
}

SystemError OpenFile::Write(std::string_view bytes) {
  DiskEntry& file = *state_->file;
  if (const auto refused = Refusal("Write", file.path, SystemError::DiskFull)) return *refused;
  if (const SystemError error = TheDisk().CountWrite(); error != SystemError::None) return error;
  std::string& all = state_->Bytes();
  if (all.size() < state_->place + bytes.size()) all.resize(state_->place + bytes.size());
  all.replace(state_->place, bytes.size(), bytes);
  state_->place += bytes.size();
  if (state_->appends) file.appended.append(bytes);
  TheDisk().Written(file);
  return SystemError::None;
}

SystemError OpenFile::Size(uint64_t& size) {
  if (const auto refused = Refusal("Size", state_->file->path, SystemError::DeviceFailed)) {
    return *refused;
  }
  size = SizeOf(*state_->file);
  return SystemError::None;
}

SystemError OpenFile::Seek(uint64_t place) {
  if (const auto refused = Refusal("Seek", state_->file->path, SystemError::DeviceFailed)) {
    return *refused;
  }
  state_->place = static_cast<size_t>(place);
  return SystemError::None;
}

SystemError OpenFile::SetLength(uint64_t length) {
  if (const auto refused = Refusal("SetLength", state_->file->path, SystemError::DiskFull)) {
    return *refused;
  }
  if (length > SizeOf(*state_->file)) {
    if (const SystemError error = TheDisk().CountWrite(); error != SystemError::None) return error;
  }
  state_->Bytes().resize(static_cast<size_t>(length));
  state_->place = static_cast<size_t>(length);
  TheDisk().Written(*state_->file);
  return SystemError::None;
}

SystemError OpenFile::Flush() {
  if (const auto refused = Refusal("Flush", state_->file->path, SystemError::DiskFull)) {
    return *refused;
  }
  return TheDisk().CountWrite();
}

SystemError OpenFile::SetAttributes(FileAttributes attributes) {
  DiskEntry& file = *state_->file;
  if (const auto refused = Refusal("SetAttributes", file.path, SystemError::AccessDenied)) {
    return *refused;
  }
  file.attributes = ToNumber(attributes);
  return SystemError::None;
}

SystemError OpenFile::SetLastWrite(uint64_t time) {
  DiskEntry& file = *state_->file;
  if (const auto refused = Refusal("SetLastWrite", file.path, SystemError::AccessDenied)) {
    return *refused;
  }
  file.lastWrite = time;
  return SystemError::None;
}

SystemError OpenFile::Rename(const std::string& path, IfThere ifThere) {
  const std::string from = state_->file->path;
  if (const auto refused = Refusal("Rename", from, SystemError::AccessDenied)) return *refused;
  if (!FolderHolding(path)) return SystemError::PathNotFound;
  const DiskEntry* there = TheDisk().Find(path);
  if (there && ifThere == IfThere::Fail) return SystemError::AlreadyExists;
  if (RefusesChange(path)) return SystemError::AccessDenied;
  // A file that somebody has open is not replaced, whatever they share.
  if (there && (there->isFolder || there->IsOpen() || there->refusesWrites ||
                there->attributes & Simulated::ReadOnly)) {
    return SystemError::AccessDenied;
  }
  TheDisk().Move(from, path);
  return SystemError::None;
}

SystemError OpenFile::Close() {
  const auto refused = Refusal("Close", state_->file->path, SystemError::DiskFull);
  state_ = nullptr;
  return refused.value_or(SystemError::None);
}

namespace FileCalls {

SystemError GetInfo(const std::string& path, Info& info) {
  if (const auto refused = Refusal("GetInfo", path, SystemError::AccessDenied)) return *refused;
  const DiskEntry* entry = TheDisk().Find(path);
  if (!entry) return Missing(path);
  info = {entry->isFolder, FromNumber(entry->attributes), SizeOf(*entry), entry->lastWrite};
  return SystemError::None;
}

SystemError SetAttributes(const std::string& path, FileAttributes attributes) {
  if (const auto refused = Refusal("SetAttributes", path, SystemError::AccessDenied)) {
    return *refused;
  }
  DiskEntry* entry = TheDisk().Find(path);
  if (!entry) return Missing(path);
  if (entry->refusesWrites) return SystemError::AccessDenied;
  entry->attributes = ToNumber(attributes);
  return SystemError::None;
}

SystemError Delete(const std::string& path) {
  if (const auto refused = Refusal("Delete", path, SystemError::AccessDenied)) return *refused;
  const DiskEntry* file = TheDisk().Find(path);
  if (!file) return Missing(path);
  if (file->isFolder || file->attributes & Simulated::ReadOnly || RefusesChange(path)) {
    return SystemError::AccessDenied;
  }
  if (!file->AllowsToGo()) return SystemError::SharingViolation;
  TheDisk().Erase(path);
  return SystemError::None;
}

SystemError Rename(const std::string& from, const std::string& to) {
  if (const auto refused = Refusal("Rename", from, SystemError::AccessDenied)) return *refused;
  DiskEntry* entry = TheDisk().Find(from);
  if (!entry) return Missing(from);
  if (!FolderHolding(to)) return SystemError::PathNotFound;
  const DiskEntry* there = TheDisk().Find(to);
  if (there && there != entry) return SystemError::AlreadyExists;
  if (RefusesChange(from) || RefusesChange(to)) return SystemError::AccessDenied;
  if (!entry->AllowsToGo()) return SystemError::SharingViolation;
  TheDisk().Move(from, to);
  return SystemError::None;
}

SystemError MakeFolder(const std::string& path) {
  if (const auto refused = Refusal("MakeFolder", path, SystemError::AccessDenied)) return *refused;
  if (TheDisk().Find(path)) return SystemError::AlreadyExists;
  if (!FolderHolding(path)) return SystemError::PathNotFound;
  if (RefusesChange(path)) return SystemError::AccessDenied;
  TheDisk().Make(path).isFolder = true;
  return SystemError::None;
}

SystemError RemoveFolder(const std::string& path) {
  if (const auto refused = Refusal("RemoveFolder", path, SystemError::AccessDenied)) {
    return *refused;
  }
  const DiskEntry* folder = TheDisk().Find(path);
  if (!folder) return Missing(path);
  if (!folder->isFolder) return SystemError::NotADirectory;
  if (!TheDisk().Inside(path).empty()) return SystemError::FolderNotEmpty;
  if (folder->attributes & Simulated::ReadOnly || RefusesChange(path)) {
    return SystemError::AccessDenied;
  }
  TheDisk().Erase(path);
  return SystemError::None;
}

SystemError FreeSpace(const std::string& folder, uint64_t& bytes) {
  if (const auto refused = Refusal("FreeSpace", folder, SystemError::DeviceFailed)) return *refused;
  const DiskEntry* entry = TheDisk().Find(folder);
  if (!entry) return SystemError::PathNotFound;
  if (!entry->isFolder) return SystemError::NotADirectory;
  bytes = TheDisk().FreeSpace();
  return SystemError::None;
}

SystemError List(const std::string& folder, std::vector<FolderEntry>& entries) {
  if (const auto refused = Refusal("List", folder, SystemError::AccessDenied)) return *refused;
  const DiskEntry* entry = TheDisk().Find(folder);
  if (!entry || !entry->isFolder) return SystemError::PathNotFound;
  for (const DiskEntry* inside : TheDisk().Inside(folder)) {
    entries.push_back({NameOf(inside->path), inside->isFolder});
  }
  return SystemError::None;
}

std::string TemporaryFolder() {
  return TheDisk().HasTemporaryFolder() ? Simulated::Disk::TemporaryFolder : "";
}

bool WaitForOthers(int waits) {
  // As often as the real machine within its patience.
  constexpr int MostWaits = 20;
  if (waits >= MostWaits) return false;
  TheDisk().Waited();
  return true;
}

}  // namespace FileCalls

}  // namespace Platform
