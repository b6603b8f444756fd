#include "machine/posix/ErrorCode.h"

#include <cerrno>

namespace Posix {

using Platform::SystemError;

SystemError LastError() {
  switch (errno) {
    case ENOENT: return SystemError::FileNotFound;
    case ENOTDIR:
    case ELOOP: return SystemError::PathNotFound;
    case EACCES:
    case EPERM:
    case EISDIR: return SystemError::AccessDenied;
    case EROFS: return SystemError::WriteProtect;
    case EBUSY:
    case ETXTBSY: return SystemError::SharingViolation;
    case EEXIST: return SystemError::AlreadyExists;
    case ENOTEMPTY: return SystemError::FolderNotEmpty;
    case ENOSPC:
    case EFBIG:
    case EDQUOT: return SystemError::DiskFull;
    case ENAMETOOLONG: return SystemError::NameTooLong;
    case ENOMEM: return SystemError::NotEnoughMemory;
    default: return SystemError::DeviceFailed;
  }
}

SystemError ResultOf(int result) {
  return result < 0 ? LastError() : SystemError::None;
}

}  // namespace Posix
