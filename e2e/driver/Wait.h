// Waiting for a state of the tested program. Nothing in the tests waits for a time.
#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

namespace E2e {

// What was waited for did not come; the text says what it was.
class Overdue : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Looks again and again until it is so. False if it is still not so after half a minute: much
// longer than anything takes, also on a busy machine.
bool ComesTrue(const std::function<bool()>& isSo);

// The same for what must come: fails with Overdue if it does not.
void WaitUntil(const std::string& what, const std::function<bool()>& isSo);

// The same for something to be found.
template <class Thing>
Thing WaitFor(const std::string& what, const std::function<std::optional<Thing>()>& find) {
  std::optional<Thing> thing;
  WaitUntil(what, [&] { return (thing = find()).has_value(); });
  return *thing;
}

}  // namespace E2e
