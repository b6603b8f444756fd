// A story that is told again and again, each time with another call of the machine that fails.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "machine/simulated/Machine.h"

// Tells the story on a new machine each time: first with the first call failing, then with the
// second, until it runs through with no failure. The story itself says from where on calls count,
// by handing `after` to machine.FailAnyCall. Ends early where the story's expectations are not met.
// Returns the calls that failed, in the order in which the story makes them.
inline std::vector<std::string> ForEachCallThatFails(
    const std::function<void(Simulated::Machine& machine, Simulated::After after)>& story) {
  std::vector<std::string> calls;
  for (int n = 0;; ++n) {
    Simulated::Machine machine;
    story(machine, Simulated::After{n});
    if (testing::Test::HasFailure()) {
      ADD_FAILURE() << "with call " << n << " failing: " << machine.FailedCall();
      return calls;
    }
    if (!machine.FailureHappened()) return calls;
    calls.push_back(machine.FailedCall());
  }
}
