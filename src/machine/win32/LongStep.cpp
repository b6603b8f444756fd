#include "machine/win32/LongStep.h"

#include "machine/win32/System.h"
#include "platform/LongStep.h"

namespace Platform {

namespace {
bool isAnswering = false;
}

void AnswerMessages() {
  isAnswering = true;
  MSG message;
  // Sent messages are answered within the call; what it takes from the queue is painting.
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE | PM_QS_SENDMESSAGE | PM_QS_PAINT)) {
    DispatchMessageA(&message);
  }
  isAnswering = false;
}

bool IsAnsweringMessages() {
  return isAnswering;
}

}  // namespace Platform
