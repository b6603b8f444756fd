#include "platform/Files.h"

#include <vector>

#include "platform/CheckedFile.h"
#include "platform/InterruptedSave.h"
#include "platform/Paths.h"
#include "platform/Patience.h"

namespace Platform {

bool FileExists(const std::string& path) {
  FileCalls::Info info;
  return IsNameUsable(path) && FileCalls::GetInfo(path, info) == SystemError::None;
}

std::optional<FileStamp> StampOf(const std::string& path) {
  FileCalls::Info info;
  if (!IsNameUsable(path) || FileCalls::GetInfo(path, info) != SystemError::None || info.isFolder) {
    return std::nullopt;
  }
  return FileStamp{info.size, info.lastWrite};
}

FileAttributes AttributesOf(const std::string& path) {
  CheckName(path);
  FileCalls::Info info;
  Require(FileCalls::GetInfo(path, info), path, FileStep::AskingAttributes);
  return info.attributes;
}

void SetAttributes(const std::string& path, FileAttributes attributes) {
  CheckName(path);
  Require(
      Patiently([&] { return FileCalls::SetAttributes(path, attributes); }, IsInUseForReplacing),
      path, FileStep::SettingAttributes);
}

uint64_t FreeSpaceIn(const std::string& folder) {
  CheckName(folder);
  uint64_t bytes = 0;
  const SystemError error = FileCalls::FreeSpace(folder, bytes);
  // Systems say in different words that there is no such folder.
  Require(IsMissing(error) ? SystemError::PathNotFound : error, folder, FileStep::AskingFreeSpace);
  return bytes;
}

std::vector<FolderEntry> ListFolder(const std::string& path) {
  CheckName(path);
  std::vector<FolderEntry> entries;
  const SystemError error = FileCalls::List(path, entries);
  if (error == SystemError::None) return entries;
  FileCalls::Info info;
  // Listing a file fails much as listing a folder that is not there.
  if (FileCalls::GetInfo(path, info) == SystemError::None && !info.isFolder) {
    throw RuntimeError(RuntimeError::PathFileAccess, path);
  }
  if (!IsMissing(error)) FailWith(error, path, FileStep::Listing);
  return {};
}

std::optional<std::string> ReadWholeFile(const std::string& path) {
  CheckName(path);
  MakeGoodInterruptedSave(path);
  OpenFile opened;
  const SystemError error = opened.Open(path, OpenFile::How::ToGlance);
  if (IsMissing(error)) return std::nullopt;
  Require(error, path, FileStep::Opening);
  CheckedFile file(std::move(opened), path);
  const uint64_t size = file.Size();
  if (size > std::string().max_size()) throw RuntimeError(RuntimeError::OutOfMemory, path);
  std::string bytes(static_cast<size_t>(size), '\0');
  // Another program may have made it shorter since it was asked for its size.
  bytes.resize(file.ReadFully(bytes.data(), bytes.size()));
  return bytes;
}

struct FileReader::Open {
  CheckedFile file;
};

FileReader::FileReader(const std::string& path) {
  CheckName(path);
  MakeGoodInterruptedSave(path);
  OpenFile file;
  // A file that another program is still writing is no missing one.
  Require(file.Open(path, OpenFile::How::ToRead), path, FileStep::Opening);
  open_ = std::make_unique<Open>(Open{CheckedFile(std::move(file), path)});
}

FileReader::~FileReader() = default;
FileReader::FileReader(FileReader&&) noexcept = default;

size_t FileReader::Read(char* buffer, size_t size) {
  return open_->file.Read(buffer, size);
}

uint64_t FileReader::Size() {
  return open_->file.Size();
}

void FileReader::Seek(uint64_t place) {
  open_->file.Seek(place);
}

void WriteWholeFile(const std::string& path, std::string_view bytes) {
  FileWriter writer(path);
  if (!bytes.empty()) writer.Write(bytes);
  writer.Finish();
}

void AppendToFile(const std::string& path, std::string_view bytes) {
  CheckName(path);
  MakeGoodInterruptedSave(path);
  RequireWritable(path);
  OpenFile opened;
  Require(opened.Open(path, OpenFile::How::ToAppend), path, FileStep::Writing);
  const bool isNew = opened.IsNew();
  CheckedFile file(std::move(opened), path);
  uint64_t length = 0;
  bool isLengthKnown = false;
  try {
    length = file.Size();
    isLengthKnown = true;
    file.Seek(length);
    // One call, so that no reader and no failure ever sees half a line.
    file.Write(bytes);
    Require(file.file().Close(), path, FileStep::Writing);
  } catch (const RuntimeError&) {
    // What the user is told is the first failure. A file that was not closed well is opened again.
    OpenFile& open = file.file();
    if (isLengthKnown && (open.IsOpen() || TryToRewrite(path, open) == SystemError::None)) {
      Patiently([&] { return open.SetLength(length); }, IsInUseForReplacing);
    }
    file = CheckedFile();
    if (isNew) Patiently([&] { return FileCalls::Delete(path); }, IsInUseForReplacing);
    throw;
  }
}

void CopyFileTo(const std::string& from, const std::string& to, IfThere ifThere) {
  // The goal first: nothing is read for a copy that cannot be made.
  FileWriter copy(to, ifThere);
  {
    FileReader original(from);
    std::vector<char> block(CheckedFile::BlockSize);
    while (const size_t count = original.Read(block.data(), block.size())) {
      copy.Write({block.data(), count});
    }
    FileCalls::Info info;
    Require(Patiently([&] { return FileCalls::GetInfo(from, info); }, IsInUseForReplacing), from,
            FileStep::AskingAttributes);
    copy.SetLastWrite(info.lastWrite);
  }
  // The original is closed: it may be the very file that is replaced.
  copy.Finish();
}

void RenameFile(const std::string& from, const std::string& to) {
  CheckName(from);
  CheckName(to);
  MakeGoodInterruptedSave(from);
  const SystemError error =
      Patiently([&] { return FileCalls::Rename(from, to); }, IsInUseForReplacing);
  const bool isAboutTheNewName =
      error == SystemError::FileExists || error == SystemError::AlreadyExists;
  Require(error, isAboutTheNewName ? to : from, FileStep::Renaming);
}

namespace {

// What came of deleting a file, as RemoveFile tells it.
bool IsRemoved(SystemError error, const std::string& path) {
  if (IsMissing(error)) return false;
  Require(error, path, FileStep::Deleting);
  // What it held must not come back for the next file of that name.
  ForgetInterruptedSave(path);
  return true;
}

}  // namespace

bool RemoveFile(const std::string& path) {
  CheckName(path);
  return IsRemoved(FileCalls::Delete(path), path);
}

bool RemoveFileOfEndingProgram(const std::string& path) {
  CheckName(path);
  // The system calls a program that runs not in use, but forbidden.
  return IsRemoved(Patiently([&] { return FileCalls::Delete(path); }, IsInUseForReplacing), path);
}

bool MakeFolder(const std::string& path) {
  CheckName(path);
  const SystemError error = FileCalls::MakeFolder(path);
  if (error != SystemError::AlreadyExists && error != SystemError::FileExists) {
    Require(error, path, FileStep::MakingFolder);
    return true;
  }
  FileCalls::Info info;
  // The same code comes where a file has the name.
  if (FileCalls::GetInfo(path, info) == SystemError::None && !info.isFolder) {
    throw RuntimeError(RuntimeError::PathFileAccess, path);
  }
  return false;
}

bool RemoveFolder(const std::string& path) {
  CheckName(path);
  const SystemError error = FileCalls::RemoveFolder(path);
  FileCalls::Info info;
  if (error == SystemError::NotADirectory && FileCalls::GetInfo(path, info) == SystemError::None &&
      !info.isFolder) {
    throw RuntimeError(RuntimeError::PathFileAccess, path);
  }
  if (IsMissing(error)) return false;
  Require(error, path, FileStep::DeletingFolder);
  return true;
}

}  // namespace Platform
