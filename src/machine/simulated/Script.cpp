#include "machine/simulated/Script.h"

#include <utility>

#include "machine/simulated/Complaints.h"

namespace Simulated {

namespace {

std::function<void()> TakeFirst(std::deque<ModalStep>& steps) {
  auto action = std::move(steps.front().action);
  steps.pop_front();
  return action;
}

}  // namespace

std::optional<std::function<void()>> Script::TakeModalStep(const std::string& title) {
  if (modals.empty()) return std::nullopt;
  const ModalStep& next = modals.front();
  if (!next.title.empty() && next.title != title) return std::nullopt;
  return TakeFirst(modals);
}

std::optional<std::function<void()>> Script::TakeBoxStep(const std::string& title) {
  if (modals.empty()) return std::nullopt;
  const ModalStep& next = modals.front();
  if (!next.isForAnything && (next.title.empty() || next.title != title)) return std::nullopt;
  return TakeFirst(modals);
}

void Script::ComplainAboutLeftovers() const {
  for (const Platform::Answer answer : answers) {
    Complain(std::string("nobody asked for the answer ") +
             (answer == Platform::Answer::Yes ? "Yes" : "No"));
  }
  for (const std::string& file : files) {
    Complain("no file dialog came for " + (file.empty() ? "Cancel" : file));
  }
  for (const ModalStep& step : modals) {
    Complain("no window opened" + (step.title.empty() ? "" : " with the title " + step.title));
  }
  if (!longSteps.empty()) Complain("no long step came in which the user could try something");
  if (!idleSteps.empty()) Complain("the program ended before the user did everything");
}

}  // namespace Simulated
