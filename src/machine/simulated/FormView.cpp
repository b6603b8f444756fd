#include "ui/FormView.h"

#include <algorithm>
#include <new>
#include <utility>

#include "base/RuntimeError.h"
#include "machine/simulated/Machine.h"
#include "machine/simulated/Window.h"

namespace Platform {

namespace {

using Simulated::NativeControl;

// Memory runs out where a test wants it to.
void AddRow(NativeControl& list, const std::string& row) {
  if (row == Simulated::TheMachine().screen.refusedRow) throw std::bad_alloc();
  list.rows.push_back(row);
}

// Fills an empty list with the rows of its model.
void Fill(NativeControl& list) {
  const ListBox& model = list.listBox();
  if (model.count() > 0 && Simulated::TheMachine().faults.Strikes("FormView::RowsSet")) {
    throw std::bad_alloc();
  }
  for (int i = 0; i < model.count(); ++i) AddRow(list, model.row(i));
  list.SelectRow(model.selected());
}

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

// A window, a menu or a timer for which the system has no room.
void FailIfStruck(const std::string& call, const LangText& step) {
  constexpr uint32_t NoMoreHandles = 1158;
  if (!Simulated::TheMachine().faults.Strikes(call)) return;
  throw RuntimeError(RuntimeError::DeviceError, "", {step, NoMoreHandles});
}

}  // namespace

FormView::FormView(Form& form) : native_(std::make_unique<Native>(form)) {
  FailIfStruck("FormView::FormView " + form.title(), RuntimeErrorTexts.MakingWindow);
  for (NativeControl& control : native_->controls) {
    if (control.kind() == Control::Kind::ListBox) Fill(control);
  }
  Simulated::TheMachine().screen.windows.push_back(native_.get());
}

FormView::~FormView() {
  std::erase(Simulated::TheMachine().screen.windows, native_.get());
}

void FormView::Show(FormView*) {
  FailIfStruck("FormView::Show " + native_->form.title(), RuntimeErrorTexts.MeasuringTexts);
  if (Simulated::TheMachine().screen.refusesWindows) throw std::bad_alloc();
  // A window that comes to the front follows what moved the focus while it was hidden.
  native_->isShown = true;
  native_->FollowFocus();
  native_->Check();
  native_->CheckFocus();
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
  const Native* const window = native_.get();
  action();
  // The window may be gone, and with it this object.
  const auto& windows = Simulated::TheMachine().screen.windows;
  if (std::count(windows.begin(), windows.end(), window) == 0) return;
  if (native_->isModalLoopRunning) {
    Simulated::Complain("the window stayed open: " + native_->form.title());
  }
  native_->isShown = false;
}

void FormView::EndModal() {
  native_->isModalLoopRunning = false;
}

void FormView::TitleChanged() {
  native_->title = native_->form.title();
  if (native_->isShown && native_->title.empty()) Simulated::Complain("a window lost its title");
}

void FormView::MenuChanged() {
  FailIfStruck("FormView::MenuChanged " + native_->form.title(), RuntimeErrorTexts.MakingMenu);
  native_->ShowMenu();
}

void FormView::FocusChanged() {
  native_->isFocusMoved = true;
  // A window that is not in use does not come to the front by this; it follows when it is.
  const Simulated::Screen& screen = Simulated::TheMachine().screen;
  const bool isInUse = native_->isShown && ActiveForm() == &native_->form && !screen.BoxInUse();
  if (isInUse) native_->FollowFocus();
}

void FormView::CaptionChanged(Control& control) {
  native_->Of(control).caption = control.caption();
  if (native_->isShown) native_->Check();
}

void FormView::StateChanged(Control& control) {
  NativeControl& shown = native_->Of(control);
  shown.isEnabled = control.IsEnabled();
  shown.isVisible = control.IsVisible();
  if (native_->isShown) native_->Check();
}

void FormView::TextChanged(TextBox& box) {
  NativeControl& shown = native_->Of(box);
  shown.text = box.text();
  // As in a native text box, whose caret goes to the beginning.
  shown.selection = {};
}

void FormView::AllSelected(TextBox& box) {
  native_->Of(box).SelectAllText();
}

void FormView::RowsSet(ListBox& list) {
  NativeControl& shown = native_->Of(list);
  shown.rows.clear();
  shown.selected = -1;
  shown.caret = 0;
  Fill(shown);
}

void FormView::RowAdded(ListBox& list) {
  if (Simulated::TheMachine().faults.Strikes("FormView::RowAdded")) throw std::bad_alloc();
  AddRow(native_->Of(list), list.row(list.count() - 1));
}

// As native lists do: the caret keeps its place, and a selected row that goes leaves none selected.
void FormView::RowRemoved(ListBox& list, int index) {
  NativeControl& shown = native_->Of(list);
  shown.rows.erase(shown.rows.begin() + index);
  if (index == shown.selected) shown.selected = -1;
  if (index < shown.selected) --shown.selected;
  const int last = static_cast<int>(shown.rows.size()) - 1;
  shown.caret = std::clamp(shown.caret, 0, std::max(last, 0));
}

void FormView::SelectionChanged(ListBox& list) {
  native_->Of(list).SelectRow(list.selected());
}

int FormView::SelectedRow(const ListBox& list) const {
  return native_->Of(list).selected;
}

void FormView::StartTimer(Timer& timer) {
  FailIfStruck("FormView::StartTimer " + native_->form.title(), RuntimeErrorTexts.StartingTimer);
  native_->timers[&timer] = Simulated::TheMachine().clock.milliseconds() + timer.milliseconds();
}

void FormView::StopTimer(Timer& timer) {
  native_->timers.erase(&timer);
}

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
