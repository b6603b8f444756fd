#include "platform/MsgBox.h"

#include "platform/Forms.h"
#include "platform/simulated/Machine.h"
#include "platform/simulated/OpenBox.h"

namespace Platform {

namespace {

// Has the user act on the box in the way that a test has told.
std::optional<Answer> ActedAnswer(const Simulated::Box& shown,
                                  const std::function<void()>& action) {
  auto& boxes = Simulated::TheMachine().screen.boxes;
  Simulated::OpenBox box(shown);
  boxes.push_back(&box);
  action();
  boxes.pop_back();
  if (!box.answer()) Simulated::Complain("the box stayed open: " + shown.text);
  return box.answer();
}

}  // namespace

Answer MsgBox(const std::string& text, const std::string& title, Icon icon, Buttons buttons) {
  Simulated::Script& script = Simulated::TheMachine().user.script();
  const Form* owner = ActiveForm();
  script.boxes.push_back({text, title, icon, buttons, owner ? owner->title() : ""});
  if (title.empty()) Simulated::Complain("a message box without a title: " + text);
  if (owner && !owner->IsVisible()) Simulated::Complain("a message box over nothing: " + text);
  if (const auto action = script.TakeBoxStep(title)) {
    const auto answer = ActedAnswer(script.boxes.back(), *action);
    if (answer) return *answer;
  }
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
