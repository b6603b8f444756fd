// The system's message box.
#pragma once

#include <string>

namespace Platform {

enum class Icon { Information, Critical, Question };
enum class Buttons {
  Ok,
  YesNo,           // Yes is the default
  YesNoDefaultNo,  // for what cannot be undone
};
enum class Answer { Ok, Yes, No };

// Shows a message over the window that is in use, and waits for the answer. The window has the
// focus again afterwards, on the control that had it before.
//   text, title  already in the user's language.
Answer MsgBox(const std::string& text, const std::string& title, Icon icon,
              Buttons buttons = Buttons::Ok);

}  // namespace Platform
