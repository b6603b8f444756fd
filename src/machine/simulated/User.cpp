#include "machine/simulated/User.h"

#include <algorithm>
#include <utility>

#include "machine/simulated/Hearing.h"
#include "machine/simulated/Machine.h"
#include "machine/simulated/OpenBox.h"
#include "machine/simulated/Window.h"
#include "platform/LongStep.h"

namespace Simulated {

using Platform::ActiveForm;
using Platform::Control;
using Platform::Form;
using Platform::WithoutAccessKey;

namespace {

// The window in use, which must be there, and no box over it.
Window* WindowFor(const std::string& whatFor) {
  const Screen& screen = TheMachine().screen;
  if (screen.BoxInUse() || !screen.dialogs.empty()) {
    Complain("a box is before the window to " + whatFor);
    return nullptr;
  }
  Window* window = WindowInUse();
  if (!window) Complain("there is no window to " + whatFor);
  return window;
}

bool IsCalled(const NativeMenuItem& item, const std::string& name) {
  const std::string caption = WithoutAccessKey(item.caption);
  return caption == name || caption.starts_with(name + " (");
}

// The list in which the user can click on the row, and the row's place; null if there is none.
std::pair<NativeControl*, int> FindRow(Window& window, const std::string& row) {
  for (NativeControl& control : window.controls) {
    if (control.kind() != Control::Kind::ListBox || !control.TakesFocus()) continue;
    const auto found = std::find(control.rows.begin(), control.rows.end(), row);
    if (found != control.rows.end()) {
      return {&control, static_cast<int>(found - control.rows.begin())};
    }
  }
  return {nullptr, -1};
}

NativeControl* FindButton(Window& window, const std::string& caption) {
  for (NativeControl& control : window.controls) {
    if (control.kind() == Control::Kind::Button && control.TakesFocus() &&
        WithoutAccessKey(control.caption) == caption) {
      return &control;
    }
  }
  return nullptr;
}

void ClickRow(Window& window, NativeControl& list, int row) {
  window.FocusByClick(list);
  list.SelectRow(row);
  list.listBox().Selected(row);
}

double Seconds(int64_t milliseconds) {
  return static_cast<double>(milliseconds) / 1000;
}

// Moves the clock on to the timer that ticks next, if one does before the end. Null if none does.
Platform::Timer* NextTimer(int64_t end) {
  Clock& clock = TheMachine().clock;
  std::pair<Platform::Timer* const, int64_t>* next = nullptr;
  for (Window* window : TheMachine().screen.windows) {
    for (auto& timer : window->timers) {
      const bool isEarlier = timer.second <= end && (!next || timer.second < next->second);
      if (isEarlier && timer.first->MayTick()) next = &timer;
    }
  }
  if (!next) return nullptr;
  // A tick that could not be heard comes late.
  if (next->second > clock.milliseconds()) clock.Pass(Seconds(next->second - clock.milliseconds()));
  next->second = clock.milliseconds() + next->first->milliseconds();
  return next->first;
}

template <class Seen>
Seen LastOf(const std::vector<Seen>& all, const char* what) {
  if (!all.empty()) return all.back();
  Complain(std::string("the user was shown no ") + what);
  return {};
}

}  // namespace

void User::TypesInBox(const std::string& text) {
  script_.modals.push_back({.title = "", .action = [this, text] {
                              Types(text);
                              Presses("Enter");
                            }});
}

void User::CancelsBox() {
  script_.modals.push_back({.title = "", .action = [this] { Presses("Escape"); }});
}

void User::WhenWindowOpens(const std::string& title, std::function<void()> action) {
  script_.modals.push_back({.title = title, .action = std::move(action)});
}

void User::WhenAnythingOpens(std::function<void()> action) {
  script_.modals.push_back({.title = "", .isForAnything = true, .action = std::move(action)});
}

void User::WhenProgramWaits(std::function<void()> action) {
  script_.idleSteps.push_back(std::move(action));
}

void User::DuringLongStep(std::function<void()> action) {
  script_.longSteps.push_back(std::move(action));
}

void User::ActsDuringLongStep() {
  if (script_.longSteps.empty()) return;
  const auto action = std::move(script_.longSteps.front());
  script_.longSteps.pop_front();
  action();
}

void User::Waits(int milliseconds) {
  Clock& clock = TheMachine().clock;
  const int64_t end = clock.milliseconds() + milliseconds;
  // Looked for anew each time: a tick may start and stop others, or take their windows away.
  while (Platform::Timer* timer = NextTimer(end)) timer->Tick();
  if (clock.milliseconds() < end) clock.Pass(Seconds(end - clock.milliseconds()));
}

void User::ClosesWindow() {
  if (const Window* window = WindowFor("close")) window->form.CloseRequested();
}

void User::ClosesFromTaskbar(const std::string& title) {
  for (const Window* window : TheMachine().screen.windows) {
    if (window->title == title) return window->form.CloseRequested();
  }
  Complain("there is no window to close: " + title);
}

void User::ChoosesMenu(const std::vector<std::string>& captions) {
  const Window* window = WindowFor("choose a menu item in");
  if (!window) return;
  const NativeMenu* items = window->menu.get();
  const NativeMenuItem* item = nullptr;
  for (const std::string& caption : captions) {
    const auto found =
        std::find_if(items->begin(), items->end(),
                     [&](const NativeMenuItem& candidate) { return IsCalled(candidate, caption); });
    if (found == items->end()) return Complain("there is no menu item " + caption);
    item = &*found;
    if (!item->isEnabled) return Complain("the menu item is greyed: " + caption);
    items = &item->items;
  }
  if (item) item->item->Choose();
}

void User::Clicks(const std::string& text) {
  Window* window = WindowFor("click in");
  if (!window || Platform::LongStep::IsRunning()) return;  // as a key in a long step
  if (const auto [list, row] = FindRow(*window, text); list) return ClickRow(*window, *list, row);
  NativeControl* button = FindButton(*window, text);
  if (!button) return Complain("there is nothing to click: " + text);
  // A button takes the focus when the mouse goes down, and clicks when it goes up.
  window->FocusByClick(*button);
  button->button().Click();
}

void User::DoubleClicks(const std::string& row) {
  Window* window = WindowFor("click in");
  if (!window || Platform::LongStep::IsRunning()) return;  // as a key in a long step
  const auto [list, index] = FindRow(*window, row);
  if (!list) return Complain("there is no row " + row);
  const Form& form = window->form;
  Platform::ListBox& clicked = list->listBox();
  ClickRow(*window, *list, index);
  // The first click may have led elsewhere.
  if (ActiveForm() == &form && form.IsLoaded()) clicked.DoubleClicked();
}

std::string User::Hears() const {
  const Window* window = WindowFor("listen to");
  if (!window) return "";
  return keyboard_.menu().IsOpenIn(*window) ? keyboard_.menu().Heard() : Heard(*window);
}

std::vector<std::string> User::HearsOnOpening() const {
  const Window* window = WindowFor("listen to");
  return window ? HeardOnOpening(*window) : std::vector<std::string>{};
}

std::string User::SeesWindow() const {
  const Screen& screen = TheMachine().screen;
  if (const OpenBox* box = screen.BoxInUse()) return box->box().title;
  if (!screen.dialogs.empty()) return screen.dialogs.back();
  const Window* window = WindowInUse();
  return window ? window->title : "";
}

Box User::LastBox() const {
  return LastOf(script_.boxes, "message box");
}

FileDialogSeen User::LastFileDialog() const {
  return LastOf(script_.fileDialogs, "file dialog");
}

ModalSeen User::LastModalWindow() const {
  return LastOf(script_.modalsSeen, "modal window");
}

}  // namespace Simulated
