#include "machine/simulated/Faults.h"

namespace Simulated {

void Faults::FailAnyCall(After after, const std::string& kind) {
  callsLeft_ = after.calls;
  kind_ = kind;
  failedCall_.clear();
}

bool Faults::Strikes(const std::string& call) {
  if (!callsLeft_ || !call.starts_with(kind_) || (*callsLeft_)-- > 0) return false;
  callsLeft_.reset();
  failedCall_ = call;
  return true;
}

void Faults::RefuseFileCallsFrom(After after, Platform::SystemError error) {
  fileCallsLeft_ = after.calls;
  // To a program that has been ended no answer matters; this one it does not wait and ask again
  // for.
  refusal_ = error == Platform::SystemError::None ? Platform::SystemError::DeviceFailed : error;
}

std::optional<Platform::SystemError> Faults::RefusalOf(const std::string& fileCall,
                                                       Platform::SystemError usual) {
  if (fileCallsLeft_ && (*fileCallsLeft_ <= 0 || (*fileCallsLeft_)-- <= 0)) {
    // Later calls are refused too; the first one is where the program was ended.
    if (endedAt_.empty()) endedAt_ = fileCall;
    return refusal_;
  }
  if (Strikes(fileCall)) return usual;
  return std::nullopt;
}

}  // namespace Simulated
