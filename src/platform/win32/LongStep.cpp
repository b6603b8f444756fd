#include "platform/LongStep.h"

#include "platform/win32/System.h"

namespace Platform {

void AnswerMessages() {
  MSG message;
  // Sent messages are answered within the call; what it takes from the queue is painting.
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE | PM_QS_SENDMESSAGE | PM_QS_PAINT)) {
    DispatchMessageA(&message);
  }
}

}  // namespace Platform
