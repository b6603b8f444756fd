#include "platform/LongStep.h"

#include <utility>

namespace Platform {

namespace {
int steps = 0;  // that run, one within the other
}

LongStep::LongStep() noexcept {
  ++steps;
  AnswerMessages();
}

LongStep::~LongStep() {
  // While it still counts: looking at what waits lets other programs in too.
  if (steps == 1) DropInput();
  --steps;
}

void LongStep::AnswerOthers() const {
  AnswerMessages();
}

bool LongStep::IsRunning() {
  return steps > 0;
}

LongStep::Pause::Pause() noexcept {
  if (steps > 0) DropInput();
  steps_ = std::exchange(steps, 0);
}

LongStep::Pause::~Pause() {
  steps = steps_;
}

}  // namespace Platform
