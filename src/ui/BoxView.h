// A message box on the screen. Each machine has its own. Only MsgBox and Dispatch use it.
#pragma once

#include <optional>

#include "ui/MsgBox.h"

namespace Platform {

struct BoxContents {
  const char* text;
  const char* title;
  Icon icon;
  Buttons buttons;
};

// Shows a box and waits for the answer. Nothing if the system could not show it, or the program
// ended meanwhile. Takes no memory of the program's own.
//   isOwned  over the window in use, if there is one; otherwise over nothing.
std::optional<Answer> ShowBox(const BoxContents& box, bool isOwned);

}  // namespace Platform
