#include "platform/NamedMutex.h"

#include "base/RuntimeError.h"
#include "machine/win32/System.h"

namespace Platform {

void HoldNamedMutex(const std::string& name) {
  // The handle is left to the system, which closes it when the process ends.
  if (!CreateMutexA(nullptr, FALSE, name.c_str())) throw RuntimeError(RuntimeError::DeviceError);
}

}  // namespace Platform
