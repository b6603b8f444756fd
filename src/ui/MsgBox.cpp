#include "ui/MsgBox.h"

#include "ui/BoxText.h"
#include "ui/BoxView.h"
#include "ui/Forms.h"
#include "ui/Stage.h"

namespace Platform {

namespace {

// So little that the system can show it if it can show anything.
constexpr size_t ShortText = 256;

std::optional<Answer> Try(const std::string& text, const std::string& title, Icon icon,
                          Buttons buttons, bool isOwned) {
  const BoxOverStage box;
  return ShowBox({text.c_str(), title.c_str(), icon, buttons}, isOwned);
}

}  // namespace

Answer MsgBox(const std::string& text, const std::string& title, Icon icon, Buttons buttons) {
  auto answer = Try(BoxText(text), BoxText(title), icon, buttons, true);
  // Too little memory for a long text, or an owner that is just going: a short one that stands by
  // itself may still come.
  if (!answer && !HasProgramEnded()) {
    answer = Try(BoxText(text, ShortText), BoxText(title, ShortText), icon, buttons, false);
  }
  if (answer) return *answer;
  // A question that could not be shown has not been agreed to.
  return buttons == Buttons::Ok ? Answer::Ok : Answer::No;
}

}  // namespace Platform
