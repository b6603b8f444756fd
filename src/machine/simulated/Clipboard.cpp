#include "platform/Clipboard.h"

#include "base/RuntimeError.h"
#include "machine/simulated/Machine.h"
#include "platform/Patience.h"

namespace Platform {

void SetClipboardText(const std::string& text) {
  Simulated::Machine& machine = Simulated::TheMachine();
  const bool isStruck = machine.faults.Strikes("SetClipboardText " + text);
  const SystemError error = Patiently(
      [&] {
        return !isStruck && machine.clipboard.Open() ? SystemError::None
                                                     : SystemError::AccessDenied;
      },
      IsInUseForReplacing);
  if (error != SystemError::None) {
    throw RuntimeError(RuntimeError::PermissionDenied, RuntimeErrorTexts.ClipboardInUse, "",
                       {RuntimeErrorTexts.OpeningClipboard, static_cast<uint32_t>(error)});
  }
  machine.clipboard.SetText(text);
}

}  // namespace Platform
