#include "ui/FormView.h"

#include <new>
#include <utility>

#include "machine/simulated/Machine.h"
#include "machine/simulated/Window.h"

namespace Platform {

namespace {

// Finds what the user is going to do with a modal window that has just opened.
std::function<void()> NextModalAction(const Form& form) {
  Simulated::Script& script = Simulated::TheMachine().user.script();
  std::string prompt;
  for (const Control* control : form.controls()) {
    if (control->kind() == Control::Kind::TextBox && prompt.empty()) {
      prompt = WithoutAccessKey(control->caption());
    }
  }
  script.modalsSeen.push_back({form.title(), prompt});
  if (const auto action = script.TakeModalStep(form.title())) return *action;
  Simulated::Complain("an unexpected window: " + form.title() + " " + prompt);
  return [] {};
}

}  // namespace

FormView::FormView(Form& form) : native_(std::make_unique<Native>(form)) {
  Simulated::TheMachine().screen.windows.push_back(native_.get());
}

FormView::~FormView() {
  std::erase(Simulated::TheMachine().screen.windows, native_.get());
}

void FormView::Show(FormView*) {
  if (Simulated::TheMachine().screen.refusesWindows) throw std::bad_alloc();
  native_->isShown = true;
  native_->Check();
}

void FormView::Hide() {
  if (!std::exchange(native_->isShown, false)) return;
  // Another program would get the focus, and the user would hear it instead of the pack.
  const Form* active = ActiveForm();
  const bool isAnotherShown = active && active != &native_->form && active->IsVisible();
  if (!isAnotherShown && !HasProgramEnded()) {
    Simulated::Complain("no window is on the screen after " + native_->form.title());
  }
}

void FormView::RunModal(FormView* owner) {
  Show(owner);
  const auto action = NextModalAction(native_->form);
  native_->isModalLoopRunning = true;
  action();
  if (native_->isModalLoopRunning) {
    Simulated::Complain("the window stayed open: " + native_->form.title());
  }
  native_->isShown = false;
}

void FormView::EndModal() {
  native_->isModalLoopRunning = false;
}

void FormView::TitleChanged() {
  if (native_->isShown && native_->form.title().empty()) {
    Simulated::Complain("a window lost its title");
  }
}

void FormView::MenuChanged() {}

void FormView::FocusChanged() {
  if (native_->isShown) native_->CheckFocus();
}

void FormView::CaptionChanged(Control&) {
  if (native_->isShown) native_->Check();
}

void FormView::StateChanged(Control&) {
  if (native_->isShown) native_->Check();
}

void FormView::TextChanged(TextBox& box) {
  native_->selections[&box] = {};
}

void FormView::AllSelected(TextBox& box) {
  native_->selections[&box] = {.anchor = 0, .caret = box.text().size()};
}

void FormView::RowAdded(ListBox&) {}
void FormView::RowRemoved(ListBox&, int) {}
void FormView::RowsCleared(ListBox&) {}
void FormView::SelectionChanged(ListBox&) {}

// Events come from the test itself; in a program that runs by itself, from the steps that the user
// was told to do then.
void RunMessageLoop() {
  auto& steps = Simulated::TheMachine().user.script().idleSteps;
  while (!HasProgramEnded()) {
    if (steps.empty()) return Simulated::Complain("the user left the program running");
    const auto step = std::move(steps.front());
    steps.pop_front();
    step();
  }
}

void EndMessageLoop() {}

}  // namespace Platform
