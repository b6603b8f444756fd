// The objects of which a run of the program has exactly one: windows, shared dialogs, tables.
#pragma once

#include <functional>
#include <memory>
#include <vector>

namespace RunObjects {
// Registers how to destroy an object that this run has just made.
void OnEnd(std::function<void()> destroy);
// Ends the run: destroys its objects, the one made last first. The next use of PerRun makes new
// ones, so that each test is a run of its own.
void End();
}  // namespace RunObjects

// The run's one T, made at its first use.
template <class T>
T& PerRun() {
  static std::unique_ptr<T> object;
  if (!object) {
    object = std::make_unique<T>();
    RunObjects::OnEnd([] { object.reset(); });
  }
  return *object;
}
