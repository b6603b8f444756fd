#include "platform/LongStep.h"

namespace Platform {

// A program of this machine has no windows.
void AnswerMessages() noexcept {}
void DropInput() noexcept {}

}  // namespace Platform
