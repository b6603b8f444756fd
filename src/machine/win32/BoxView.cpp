#include "ui/BoxView.h"

#include "machine/win32/FormWindow.h"
#include "machine/win32/System.h"

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

std::optional<Answer> ShowBox(const BoxContents& box, bool isOwned) {
  // Task-modal keeps the other windows of the pack from use even where the box has no owner.
  const int answer = MessageBoxA(isOwned ? ActiveWindow() : nullptr, box.text, box.title,
                                 StyleOf(box.icon) | StyleOf(box.buttons) | MB_TASKMODAL);
  switch (answer) {
    case 0: return std::nullopt;
    case IDYES: return Answer::Yes;
    case IDNO: return Answer::No;
    default: return box.buttons == Buttons::Ok ? Answer::Ok : Answer::No;
  }
}

}  // namespace Platform
