#include "platform/LongStep.h"

#include "platform/simulated/Machine.h"

namespace Platform {

void AnswerMessages() {
  ++Simulated::TheMachine().screen.answers;
}

}  // namespace Platform
