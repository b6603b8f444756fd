#include "platform/Files.h"

#include <algorithm>
#include <cstring>
#include <fstream>

#include "base/RuntimeError.h"
#include "machine/simulated/Machine.h"
#include "platform/Characters.h"
#include "platform/Paths.h"

namespace Platform {

using Simulated::DiskEntry;
using Simulated::TheMachine;

namespace {

Simulated::Disk& TheDisk() {
  return TheMachine().files;
}

// True if the call must fail because a test wants it to.
bool Strikes(const char* call, const std::string& path) {
  return TheMachine().faults.Strikes(std::string(call) + " " + path);
}

DiskEntry* FolderHolding(const std::string& path) {
  DiskEntry* folder = TheDisk().Find(FolderOf(path));
  return folder && folder->isFolder ? folder : nullptr;
}

// A file that can be read, or nothing if there is none.
DiskEntry* FindReadable(const std::string& path) {
  CheckName(path);
  DiskEntry* file = TheDisk().Find(path);
  if (!file) return nullptr;
  if (file->isFolder) throw RuntimeError(RuntimeError::PathFileAccess, path);
  if (file->isHeldAlone) throw RuntimeError(RuntimeError::PermissionDenied, path);
  return file;
}

// Fails if no file can be put under the name.
void RequireWritable(const std::string& path) {
  CheckName(path);
  const DiskEntry* folder = FolderHolding(path);
  if (!folder) throw RuntimeError(RuntimeError::PathNotFound, path);
  const DiskEntry* file = TheDisk().Find(path);
  if (!file && folder->refusesFiles) throw RuntimeError(RuntimeError::PermissionDenied, path);
  if (!file) return;
  if (file->isFolder || file->attributes & Simulated::ReadOnly) {
    throw RuntimeError(RuntimeError::PathFileAccess, path);
  }
  if (file->refusesWrites) throw RuntimeError(RuntimeError::PermissionDenied, path);
}

// Fails if the file is in use, though nothing else speaks against writing it.
void RequireUnused(const std::string& path) {
  const DiskEntry* file = TheDisk().Find(path);
  if (file && file->IsInUse()) throw RuntimeError(RuntimeError::PermissionDenied, path);
}

void PutInPlace(const std::string& path, std::string bytes) {
  DiskEntry& file = TheDisk().Make(path);
  file.bytes = std::move(bytes);
  file.hostPath.clear();
  TheDisk().Written(file);
}

}  // namespace

bool FileExists(const std::string& path) {
  return !Strikes("FileExists", path) && IsNameUsable(path) && TheDisk().Exists(path);
}

std::optional<FileStamp> StampOf(const std::string& path) {
  if (Strikes("StampOf", path) || !IsNameUsable(path)) return std::nullopt;
  const DiskEntry* file = TheDisk().Find(path);
  if (!file || file->isFolder) return std::nullopt;
  return FileStamp{SizeOf(*file), file->lastWrite};
}

std::optional<std::string> ReadWholeFile(const std::string& path) {
  if (Strikes("ReadWholeFile", path)) throw RuntimeError(RuntimeError::DeviceError, path);
  const DiskEntry* file = FindReadable(path);
  if (!file) return std::nullopt;
  return BytesOf(*file);
}

void WriteWholeFile(const std::string& path, std::string_view bytes) {
  if (Strikes("WriteWholeFile", path)) throw RuntimeError(RuntimeError::DiskFull, path);
  RequireWritable(path);
  RequireUnused(path);
  TheDisk().CountWrite(path);
  PutInPlace(path, std::string(bytes));
}

void AppendToFile(const std::string& path, std::string_view bytes) {
  if (Strikes("AppendToFile", path)) throw RuntimeError(RuntimeError::DiskFull, path);
  RequireWritable(path);
  const DiskEntry* file = TheDisk().Find(path);
  if (file && file->IsHeldByOthers()) throw RuntimeError(RuntimeError::PermissionDenied, path);
  TheDisk().CountWrite(path);
  PutInPlace(path, (file ? BytesOf(*file) : "").append(bytes));
  TheDisk().Find(path)->appended.append(bytes);
}

bool RemoveFile(const std::string& path) {
  if (Strikes("RemoveFile", path)) throw RuntimeError(RuntimeError::PermissionDenied, path);
  CheckName(path);
  const DiskEntry* file = TheDisk().Find(path);
  if (!file) return false;
  if (file->isFolder || file->attributes & Simulated::ReadOnly) {
    throw RuntimeError(RuntimeError::PathFileAccess, path);
  }
  if (file->IsInUse() || FolderHolding(path)->refusesFiles) {
    throw RuntimeError(RuntimeError::PermissionDenied, path);
  }
  TheDisk().Erase(path);
  return true;
}

struct FileReader::Open {
  explicit Open(DiskEntry& entry) : file(entry.shared_from_this()) {
    if (!file->hostPath.empty()) hostFile.open(file->hostPath, std::ios::binary);
    ++file->readers;
  }
  ~Open() { --file->readers; }

  std::shared_ptr<DiskEntry> file;  // a reader may outlive the machine, which then complains
  std::ifstream hostFile;
  size_t position = 0;
};

FileReader::FileReader(const std::string& path) {
  if (Strikes("FileReader", path)) throw RuntimeError(RuntimeError::PermissionDenied, path);
  DiskEntry* file = FindReadable(path);
  if (!file) {
    throw RuntimeError(
        FolderHolding(path) ? RuntimeError::FileNotFound : RuntimeError::PathNotFound, path);
  }
  open_ = std::make_unique<Open>(*file);
}

FileReader::~FileReader() = default;
FileReader::FileReader(FileReader&&) noexcept = default;

size_t FileReader::Read(char* buffer, size_t size) {
  const DiskEntry& file = *open_->file;
  if (Strikes("FileReader::Read", file.path)) {
    throw RuntimeError(RuntimeError::DeviceError, file.path);
  }
  size = std::min(size, TheDisk().LargestRead());
  if (!file.hostPath.empty()) {
    open_->hostFile.read(buffer, static_cast<std::streamsize>(size));
    return static_cast<size_t>(open_->hostFile.gcount());
  }
  const size_t left = file.bytes.size() - std::min(open_->position, file.bytes.size());
  const size_t count = std::min(size, left);
  std::memcpy(buffer, file.bytes.data() + open_->position, count);
  open_->position += count;
  return count;
}

// The file beside the one to be, seen in the folder until it takes its place.
struct FileWriter::Open {
  explicit Open(const std::string& finalPath) : path(finalPath) {
    if (FolderHolding(path)->refusesFiles) return;  // it is rewritten in place at the end
    for (int i = 0; temporaryPath.empty(); ++i) {
      const std::string free = FolderOf(path) + "\\~sk" + std::to_string(i) + ".tmp";
      if (!TheDisk().Exists(free)) temporaryPath = free;
    }
    TheDisk().Make(temporaryPath);
  }
  ~Open() {
    if (!temporaryPath.empty()) TheDisk().Erase(temporaryPath);
  }

  std::string path;
  std::string temporaryPath;
  std::string bytes;
};

FileWriter::FileWriter(const std::string& path) {
  if (Strikes("FileWriter", path)) throw RuntimeError(RuntimeError::DiskFull, path);
  RequireWritable(path);
  open_ = std::make_unique<Open>(path);
}

FileWriter::~FileWriter() = default;

void FileWriter::Write(std::string_view bytes) {
  if (Strikes("FileWriter::Write", open_->path)) {
    throw RuntimeError(RuntimeError::DiskFull, open_->path);
  }
  TheDisk().CountWrite(open_->path);
  open_->bytes.append(bytes);
}

void FileWriter::Finish() {
  const std::unique_ptr<Open> finished = std::move(open_);
  if (Strikes("FileWriter::Finish", finished->path)) {
    throw RuntimeError(RuntimeError::DiskFull, finished->path);
  }
  RequireWritable(finished->path);
  RequireUnused(finished->path);
  TheDisk().CountWrite(finished->path);
  PutInPlace(finished->path, std::move(finished->bytes));
}

}  // namespace Platform
