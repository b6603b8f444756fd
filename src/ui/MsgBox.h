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
//   text, title  already in the user's language. They are shown as BoxText has them: no control
//                characters, and of very long ones the beginning and the end.
// A box that the system cannot show is tried once more, over no window and with a short text. If
// that fails too, or the program ends, a question counts as answered with No and a report with OK.
Answer MsgBox(const std::string& text, const std::string& title, Icon icon,
              Buttons buttons = Buttons::Ok);

}  // namespace Platform
