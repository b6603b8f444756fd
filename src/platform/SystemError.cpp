#include "platform/SystemError.h"

namespace Platform {

bool IsInUse(SystemError error) {
  return error == SystemError::SharingViolation || error == SystemError::LockViolation ||
         error == SystemError::UserMappedFile || error == SystemError::DeletePending;
}

bool IsInUseForReplacing(SystemError error) {
  return IsInUse(error) || error == SystemError::AccessDenied;
}

bool IsMissing(SystemError error) {
  return error == SystemError::FileNotFound || error == SystemError::PathNotFound;
}

}  // namespace Platform
