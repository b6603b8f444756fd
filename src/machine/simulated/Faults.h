// Failures on demand: for sweeps that let the first call of an action fail, then the second, until
// none is left that could.
#pragma once

#include <optional>
#include <string>

#include "platform/SystemError.h"

namespace Simulated {

// How many calls go well before the first one fails.
struct After {
  int calls = 0;
};

class Faults {
 public:
  // One call, the one after the given number of them, fails in the way that its contract names. A
  // call that cannot throw returns its failing result. Only calls that can fail are counted.
  //   kind  with what the names of the calls begin that count; all if it is empty.
  void FailAnyCall(After after, const std::string& kind = "");

  // True once that call has come and failed.
  bool HasHappened() const { return !failedCall_.empty(); }
  // The call that failed, such as "ReadWholeFile C:\a.txt"; empty if none did.
  const std::string& FailedCall() const { return failedCall_; }

  // The program is ended at a file call, the one after the given number of them: neither it nor any
  // later one does anything, until Machine::StartAnew.
  void EndProgramAtFileCall(After after) { RefuseFileCallsFrom(after, {}); }
  // From such a call on every file call is refused with that error.
  void RefuseFileCallsFrom(After after, Platform::SystemError error);
  // The call at which that was; empty if it has not come.
  const std::string& EndedAt() const { return endedAt_; }

  // For the services: counts a call that can fail. True if it must fail now.
  bool Strikes(const std::string& call);
  // The error with which a file call must end without having happened; nothing if it may go on.
  //   usual  what such a call fails with on a bad day.
  std::optional<Platform::SystemError> RefusalOf(const std::string& fileCall,
                                                 Platform::SystemError usual);

 private:
  std::optional<int> callsLeft_;
  std::string kind_;
  std::string failedCall_;
  std::optional<int> fileCallsLeft_;
  Platform::SystemError refusal_{};
  std::string endedAt_;
};

}  // namespace Simulated
