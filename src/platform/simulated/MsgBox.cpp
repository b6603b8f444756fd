#include "platform/MsgBox.h"

#include "platform/Forms.h"
#include "platform/simulated/Machine.h"

namespace Platform {

Answer MsgBox(const std::string& text, const std::string& title, Icon icon, Buttons buttons) {
  Simulated::Script& script = Simulated::TheMachine().user.script();
  const Form* owner = ActiveForm();
  script.boxes.push_back({text, title, icon, buttons, owner ? owner->title() : ""});
  if (title.empty()) Simulated::Complain("a message box without a title: " + text);
  if (owner && !owner->IsVisible()) Simulated::Complain("a message box over nothing: " + text);
  if (buttons == Buttons::Ok) return Answer::Ok;
  if (script.answers.empty()) {
    Simulated::Complain("an unexpected question: " + text);
    return Answer::No;
  }
  const Answer answer = script.answers.front();
  script.answers.pop_front();
  return answer;
}

}  // namespace Platform
