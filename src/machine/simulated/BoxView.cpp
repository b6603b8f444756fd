#include "ui/BoxView.h"

#include <new>

#include "machine/simulated/Machine.h"
#include "machine/simulated/OpenBox.h"
#include "ui/Forms.h"

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

std::optional<Answer> ShowBox(const BoxContents& contents, bool isOwned) {
  Simulated::Machine& machine = Simulated::TheMachine();
  if (machine.screen.boxesWithoutMemory > 0) {
    --machine.screen.boxesWithoutMemory;
    throw std::bad_alloc();
  }
  if (machine.screen.refusedBoxes > 0) {
    --machine.screen.refusedBoxes;
    return std::nullopt;
  }
  Simulated::Script& script = machine.user.script();
  const std::string text = contents.text;
  const std::string title = contents.title;
  const Form* owner = isOwned ? ActiveForm() : nullptr;
  script.boxes.push_back(
      {text, title, contents.icon, contents.buttons, owner ? owner->title() : ""});
  if (title.empty()) Simulated::Complain("a message box without a title: " + text);
  if (owner && !owner->IsVisible()) Simulated::Complain("a message box over nothing: " + text);
  if (const auto action = script.TakeBoxStep(title)) {
    const auto answer = ActedAnswer(script.boxes.back(), *action);
    if (answer) return answer;
  }
  // Nothing can be decided there, so stories need not say that it is closed.
  if (contents.buttons == Buttons::Ok) return Answer::Ok;
  if (script.answers.empty()) {
    Simulated::Complain("an unexpected question: " + text);
    return Answer::No;
  }
  const Answer answer = script.answers.front();
  script.answers.pop_front();
  return answer;
}

}  // namespace Platform
