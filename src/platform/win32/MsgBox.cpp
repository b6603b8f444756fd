#include "platform/MsgBox.h"

#include "platform/win32/FormWindow.h"
#include "platform/win32/System.h"

namespace Platform {

namespace {

UINT StyleOf(Icon icon) {
  switch (icon) {
    case Icon::Information: return MB_ICONINFORMATION;
    case Icon::Critical: return MB_ICONERROR;
    case Icon::Question: return MB_ICONQUESTION;
  }
  return 0;
}

UINT StyleOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::Ok: return MB_OK;
    case Buttons::YesNo: return MB_YESNO;
    case Buttons::YesNoDefaultNo: return MB_YESNO | MB_DEFBUTTON2;
  }
  return 0;
}

}  // namespace

Answer MsgBox(const std::string& text, const std::string& title, Icon icon, Buttons buttons) {
  const int answer = MessageBoxA(ActiveWindow(), text.c_str(), title.c_str(),
                                 StyleOf(icon) | StyleOf(buttons) | MB_TASKMODAL);
  if (buttons == Buttons::Ok) return Answer::Ok;
  // A box that could not be shown has not been agreed to.
  return answer == IDYES ? Answer::Yes : Answer::No;
}

}  // namespace Platform
