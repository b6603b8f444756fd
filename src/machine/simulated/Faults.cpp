#include "machine/simulated/Faults.h"

namespace Simulated {

void Faults::FailAnyCall(After after) {
  callsLeft_ = after.calls;
  failedCall_.clear();
}

bool Faults::Strikes(const std::string& call) {
  if (!callsLeft_ || (*callsLeft_)-- > 0) return false;
  callsLeft_.reset();
  failedCall_ = call;
  return true;
}

}  // namespace Simulated
