#include "platform/FileFailure.h"

#include "platform/FileCalls.h"

namespace Platform {

namespace {

RuntimeError::Number NumberOf(SystemError error) {
  switch (error) {
    case SystemError::FileNotFound: return RuntimeError::FileNotFound;
    case SystemError::PathNotFound:
    case SystemError::BadNetPath:
    case SystemError::BadNetName:
    case SystemError::InvalidDrive:
    case SystemError::NotADirectory: return RuntimeError::PathNotFound;
    case SystemError::AccessDenied:
    case SystemError::SharingViolation:
    case SystemError::LockViolation:
    case SystemError::UserMappedFile:
    case SystemError::DeletePending:
    case SystemError::NetworkAccessDenied: return RuntimeError::PermissionDenied;
    case SystemError::FolderNotEmpty:
    case SystemError::WriteProtect: return RuntimeError::PathFileAccess;
    case SystemError::NotReady:
    case SystemError::NoMedia: return RuntimeError::DiskNotReady;
    case SystemError::FileExists:
    case SystemError::AlreadyExists: return RuntimeError::FileAlreadyExists;
    case SystemError::DiskFull:
    case SystemError::HandleDiskFull:
    case SystemError::NotEnoughQuota: return RuntimeError::DiskFull;
    case SystemError::NotEnoughMemory:
    case SystemError::OutOfMemory: return RuntimeError::OutOfMemory;
    default: return RuntimeError::DeviceError;
  }
}

const LangText& TextOf(FileStep step) {
  const RuntimeErrorTextTable& texts = RuntimeErrorTexts;
  switch (step) {
    case FileStep::Opening: return texts.OpeningFile;
    case FileStep::Reading: return texts.ReadingFile;
    case FileStep::Writing: return texts.WritingFile;
    case FileStep::Replacing: return texts.ReplacingFile;
    case FileStep::Rewriting: return texts.RewritingFile;
    case FileStep::Restoring: return texts.RestoringFile;
    case FileStep::Renaming: return texts.RenamingFile;
    case FileStep::Deleting: return texts.DeletingFile;
    case FileStep::AskingAttributes: return texts.AskingAttributes;
    case FileStep::SettingAttributes: return texts.SettingAttributes;
    case FileStep::Listing: return texts.ListingFolder;
    case FileStep::MakingFolder: return texts.MakingFolder;
    case FileStep::DeletingFolder: return texts.DeletingFolder;
    case FileStep::AskingFreeSpace: return texts.AskingFreeSpace;
  }
  return texts.Unexpected;
}

// True if a folder, or a file that is read-only, stands in the way of what was to be done.
bool IsRefusedByKind(const std::string& path, FileStep step) {
  FileCalls::Info info;
  if (FileCalls::GetInfo(path, info) != SystemError::None) return false;
  switch (step) {
    case FileStep::Opening:
    case FileStep::Reading: return info.isFolder;
    case FileStep::Writing:
    case FileStep::Replacing:
    case FileStep::Rewriting:
    case FileStep::Deleting: return info.isFolder || info.attributes.isReadOnly;
    case FileStep::DeletingFolder: return !info.isFolder || info.attributes.isReadOnly;
    default: return false;
  }
}

}  // namespace

RuntimeError FailureOf(SystemError error, const std::string& path, FileStep step) {
  const SystemCause system{TextOf(step), static_cast<uint32_t>(error)};
  switch (error) {
    case SystemError::InvalidName:
    case SystemError::BadPathName:
    case SystemError::NameTooLong:
      return RuntimeError(RuntimeError::PathFileAccess, RuntimeErrorTexts.NameNotUsable, path,
                          system);
    case SystemError::AccessDenied:
      // One code for many refusals; what stands there tells which it was.
      if (IsRefusedByKind(path, step)) {
        return RuntimeError(RuntimeError::PathFileAccess, path, system);
      }
      break;
    default: break;
  }
  return RuntimeError(NumberOf(error), path, system);
}

void FailWith(SystemError error, const std::string& path, FileStep step) {
  throw FailureOf(error, path, step);
}

void Require(SystemError error, const std::string& path, FileStep step) {
  if (error != SystemError::None) FailWith(error, path, step);
}

// Asked for before anything is tried, since not every system minds a file's read-only mark.
void RequireWritable(const std::string& path, IfThere ifThere) {
  FileCalls::Info info;
  if (FileCalls::GetInfo(path, info) != SystemError::None) return;
  if (info.isFolder) throw RuntimeError(RuntimeError::PathFileAccess, path);
  if (ifThere == IfThere::Fail) throw RuntimeError(RuntimeError::FileAlreadyExists, path);
  if (info.attributes.isReadOnly) throw RuntimeError(RuntimeError::PathFileAccess, path);
}

}  // namespace Platform
