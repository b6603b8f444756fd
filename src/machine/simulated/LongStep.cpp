#include "platform/LongStep.h"

#include "machine/simulated/Machine.h"

namespace Platform {

void AnswerMessages() {
  ++Simulated::TheMachine().screen.answers;
}

}  // namespace Platform
