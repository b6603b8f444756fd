#include "platform/LongStep.h"

#include "machine/simulated/Machine.h"

namespace Platform {

void AnswerMessages() noexcept {
  ++Simulated::TheMachine().screen.answers;
  Simulated::TheMachine().user.ActsDuringLongStep();
}

// Keys and clicks are never kept here: those that come in a long step are gone at once.
void DropInput() noexcept {
  Simulated::TheMachine().user.HeldKeyIsIgnored();
}

}  // namespace Platform
