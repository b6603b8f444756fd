#include "base/RuntimeError.h"

#include <new>

namespace {

LangText UsualCause(RuntimeError::Number number) {
  switch (number) {
    case RuntimeError::InvalidCall: return RuntimeErrorTexts.InvalidCall;
    case RuntimeError::Overflow: return RuntimeErrorTexts.Overflow;
    case RuntimeError::OutOfMemory: return RuntimeErrorTexts.OutOfMemory;
    case RuntimeError::TypeMismatch: return RuntimeErrorTexts.TypeMismatch;
    case RuntimeError::FileNotFound: return RuntimeErrorTexts.FileNotFound;
    case RuntimeError::DeviceError: return RuntimeErrorTexts.DeviceError;
    case RuntimeError::DiskFull: return RuntimeErrorTexts.DiskFull;
    case RuntimeError::PermissionDenied: return RuntimeErrorTexts.PermissionDenied;
    case RuntimeError::DiskNotReady: return RuntimeErrorTexts.DiskNotReady;
    case RuntimeError::PathFileAccess: return RuntimeErrorTexts.PathFileAccess;
    case RuntimeError::PathNotFound: return RuntimeErrorTexts.PathNotFound;
  }
  return RuntimeErrorTexts.Unexpected;
}

}  // namespace

RuntimeError::RuntimeError(Number number, const std::string& file)
    : RuntimeError(number, UsualCause(number), file) {}

RuntimeError::RuntimeError(Number number, const LangText& cause, const std::string& file)
    : std::runtime_error(cause.english), number_(number), cause_(cause), file_(file) {}

const LangText& CauseOf(const std::exception& error) {
  if (const auto* failure = dynamic_cast<const RuntimeError*>(&error)) return failure->cause();
  if (dynamic_cast<const std::bad_alloc*>(&error)) return RuntimeErrorTexts.OutOfMemory;
  return RuntimeErrorTexts.Unexpected;
}
