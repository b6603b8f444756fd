#include "base/PerRun.h"

#include <utility>

namespace RunObjects {

namespace {
std::vector<std::function<void()>>& Destroyers() {
  // Inside a function, so that it is there whichever object of the program comes first.
  static std::vector<std::function<void()>> destroyers;
  return destroyers;
}
}  // namespace

void OnEnd(std::function<void()> destroy) {
  Destroyers().push_back(std::move(destroy));
}

void End() {
  // One by one from the back: an object that goes may still use those that were made before it, and
  // may even make one anew.
  while (!Destroyers().empty()) {
    const auto destroy = std::move(Destroyers().back());
    Destroyers().pop_back();
    destroy();
  }
}

}  // namespace RunObjects
