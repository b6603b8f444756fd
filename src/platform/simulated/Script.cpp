#include "platform/simulated/Script.h"

#include "platform/simulated/Complaints.h"

namespace Simulated {

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
  if (!idleSteps.empty()) Complain("the program ended before the user did everything");
}

}  // namespace Simulated
