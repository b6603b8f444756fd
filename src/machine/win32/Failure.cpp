#include "machine/win32/Failure.h"

#include "base/RuntimeError.h"

namespace Platform {

void FailAt(const LangText& step, DWORD code) {
  throw RuntimeError(RuntimeError::DeviceError, "", {step, code});
}

}  // namespace Platform
