// Failures on demand: for sweeps that let the first call of an action fail, then the second, until
// none is left that could.
#pragma once

#include <optional>
#include <string>

namespace Simulated {

// How many calls go well before the first one fails.
struct After {
  int calls = 0;
};

class Faults {
 public:
  // One call, the one after the given number of them, fails in the way that its contract names. A
  // call that cannot throw returns its failing result. Only calls that can fail are counted.
  void FailAnyCall(After after);

  // True once that call has come and failed.
  bool HasHappened() const { return !failedCall_.empty(); }
  // The call that failed, such as "ReadWholeFile C:\a.txt"; empty if none did.
  const std::string& FailedCall() const { return failedCall_; }

  // For the services: counts a call that can fail. True if it must fail now.
  bool Strikes(const std::string& call);

 private:
  std::optional<int> callsLeft_;
  std::string failedCall_;
};

}  // namespace Simulated
