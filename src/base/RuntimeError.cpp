#include "base/RuntimeError.h"

#include <new>

namespace {

LangText UsualCause(RuntimeError::Number number) {
  switch (number) {
    case RuntimeError::InvalidCall:
    case RuntimeError::SubscriptOutOfRange: return RuntimeErrorTexts.InvalidCall;
    case RuntimeError::Overflow: return RuntimeErrorTexts.Overflow;
    case RuntimeError::OutOfMemory: return RuntimeErrorTexts.OutOfMemory;
    case RuntimeError::TypeMismatch: return RuntimeErrorTexts.TypeMismatch;
    case RuntimeError::FileNotFound: return RuntimeErrorTexts.FileNotFound;
    case RuntimeError::DeviceError: return RuntimeErrorTexts.DeviceError;
    case RuntimeError::FileAlreadyExists: return RuntimeErrorTexts.FileAlreadyExists;
    case RuntimeError::DiskFull: return RuntimeErrorTexts.DiskFull;
    case RuntimeError::PermissionDenied: return RuntimeErrorTexts.PermissionDenied;
    case RuntimeError::DiskNotReady: return RuntimeErrorTexts.DiskNotReady;
    case RuntimeError::PathFileAccess: return RuntimeErrorTexts.PathFileAccess;
    case RuntimeError::PathNotFound: return RuntimeErrorTexts.PathNotFound;
  }
  return RuntimeErrorTexts.Unexpected;
}

}  // namespace

RuntimeError::RuntimeError(Number number, const std::string& file, const SystemCause& system)
    : RuntimeError(number, UsualCause(number), file, system) {}

RuntimeError::RuntimeError(Number number, const LangText& cause, const std::string& file,
                           const SystemCause& system)
    : std::runtime_error(cause.english),
      number_(number),
      cause_(cause),
      file_(file),
      system_(system) {}

RuntimeError RuntimeError::WithCopy(const RuntimeError& failure, const std::string& copy) {
  RuntimeError damaging(failure.number(), RuntimeErrorTexts.SaveHalfDone, failure.file(),
                        failure.system());
  damaging.copy_ = copy;
  return damaging;
}

const LangText& CauseOf(const std::exception& error) {
  if (const auto* failure = dynamic_cast<const RuntimeError*>(&error)) return failure->cause();
  if (dynamic_cast<const std::bad_alloc*>(&error)) return RuntimeErrorTexts.OutOfMemory;
  return RuntimeErrorTexts.Unexpected;
}
