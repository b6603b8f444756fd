// The messages by which the user reaches a window.
#pragma once

#include "machine/win32/System.h"

namespace Platform {

// True for keys and the mouse, in the window and on its frame.
bool IsUserInput(UINT message);

// True for a message that must not reach a window now: it would begin something in the middle of a
// long step. A library that waits inside of the step may dispatch such messages.
bool IsHeldBack(UINT message, WPARAM wParam);

}  // namespace Platform
