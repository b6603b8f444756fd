#include "platform/NamedMutex.h"

#include "base/RuntimeErrorTexts.h"
#include "machine/win32/Failure.h"
#include "machine/win32/System.h"

namespace Platform {

void HoldNamedMutex(const std::string& name) {
  // The handle is left to the system, which closes it when the process ends.
  if (!CreateMutexA(nullptr, FALSE, name.c_str())) FailAt(RuntimeErrorTexts.MakingMutex);
}

}  // namespace Platform
