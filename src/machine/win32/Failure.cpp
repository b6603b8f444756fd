#include "machine/win32/Failure.h"

#include "base/RuntimeError.h"

namespace Platform {

namespace {

RuntimeError::Number NumberOf(DWORD error) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND: return RuntimeError::FileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_INVALID_DRIVE:
    case ERROR_DIRECTORY: return RuntimeError::PathNotFound;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_DELETE_PENDING:
    case ERROR_NETWORK_ACCESS_DENIED: return RuntimeError::PermissionDenied;
    case ERROR_WRITE_PROTECT: return RuntimeError::PathFileAccess;
    case ERROR_NOT_READY:
    case ERROR_NO_MEDIA_IN_DRIVE: return RuntimeError::DiskNotReady;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_NOT_ENOUGH_QUOTA: return RuntimeError::DiskFull;
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY: return RuntimeError::OutOfMemory;
    default: return RuntimeError::DeviceError;
  }
}

}  // namespace

void FailWith(DWORD error, const std::string& path, Access access) {
  switch (error) {
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
      throw RuntimeError(RuntimeError::PathFileAccess, RuntimeErrorTexts.NameNotUsable, path);
    default: break;
  }
  if (error == ERROR_ACCESS_DENIED) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES) {
      const DWORD refused = access == Access::Writing
                                ? FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY
                                : FILE_ATTRIBUTE_DIRECTORY;
      if (attributes & refused) throw RuntimeError(RuntimeError::PathFileAccess, path);
    }
  }
  throw RuntimeError(NumberOf(error), path);
}

bool IsInUse(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
         error == ERROR_USER_MAPPED_FILE || error == ERROR_DELETE_PENDING;
}

bool IsInUseForReplacing(DWORD error) {
  return IsInUse(error) || error == ERROR_ACCESS_DENIED;
}

}  // namespace Platform
