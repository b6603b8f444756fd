#include "platform/LongStep.h"

#include <optional>

#include "machine/win32/HeldKeys.h"
#include "machine/win32/System.h"
#include "machine/win32/UserInput.h"

namespace Platform {

namespace {

// Takes from the queue what the filters let through. The end of the program, which comes through
// all of them, is put back behind the rest.
template <class Handle>
void TakeMessages(UINT first, UINT last, UINT flags, const Handle& handle) {
  std::optional<int> exitCode;
  MSG message;
  while (PeekMessageA(&message, nullptr, first, last, PM_REMOVE | flags)) {
    if (message.message == WM_QUIT) {
      exitCode = static_cast<int>(message.wParam);
    } else {
      handle(message);
    }
  }
  if (exitCode) PostQuitMessage(*exitCode);
}

}  // namespace

void AnswerMessages() noexcept {
  // Sent messages are answered within the call; what it takes from the queue is painting.
  TakeMessages(0, 0, PM_QS_SENDMESSAGE | PM_QS_PAINT,
               [](const MSG& message) { DispatchMessageA(&message); });
}

void DropInput() noexcept {
  const auto drop = [](const MSG& message) {
    // The taskbar may put the window aside or bring it back: that begins nothing.
    if (message.message == WM_SYSCOMMAND && !IsHeldBack(message.message, message.wParam)) {
      DispatchMessageA(&message);
    }
  };
  // Input of the devices, touch and pen included; then what another program has posted as keys and
  // clicks, which that filter leaves, and what frame, taskbar and menus ask for.
  TakeMessages(0, 0, PM_QS_INPUT, drop);
  TakeMessages(WM_KEYFIRST, WM_KEYLAST, 0, drop);
  TakeMessages(WM_MOUSEFIRST, WM_MOUSELAST, 0, drop);
  TakeMessages(WM_NCMOUSEMOVE, WM_NCXBUTTONDBLCLK, 0, drop);
  TakeMessages(WM_COMMAND, WM_SYSCOMMAND, 0, drop);
  TakeMessages(WM_CLOSE, WM_CLOSE, 0, drop);
  // Last: by taking their messages the system has learnt which keys are down.
  IgnoreHeldKeys();
}

}  // namespace Platform
