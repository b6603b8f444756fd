#include "machine/simulated/User.h"

#include <algorithm>
#include <utility>

#include "machine/simulated/Hearing.h"
#include "machine/simulated/Machine.h"
#include "machine/simulated/OpenBox.h"
#include "machine/simulated/Window.h"

namespace Simulated {

using Platform::ActiveForm;
using Platform::Control;
using Platform::Form;
using Platform::ListBox;
using Platform::MenuItem;
using Platform::WithoutAccessKey;

namespace {

// The window in use, which must be there, and no box over it.
Form* WindowInUse(const std::string& whatFor) {
  const Screen& screen = TheMachine().screen;
  if (screen.BoxInUse() || !screen.dialogs.empty()) {
    Complain("a box is before the window to " + whatFor);
    return nullptr;
  }
  Form* form = ActiveForm();
  if (!form) Complain("there is no window to " + whatFor);
  return form;
}

bool IsCalled(const MenuItem& item, const std::string& name) {
  const std::string caption = WithoutAccessKey(item.caption());
  return caption == name || caption.starts_with(name + " (");
}

// The list in which the user can click on the row, and the row's place.
std::pair<ListBox*, int> FindRow(const Form& form, const std::string& row) {
  for (Control* control : form.controls()) {
    if (control->kind() != Control::Kind::ListBox || !control->TakesFocus()) continue;
    auto* list = static_cast<ListBox*>(control);
    for (int i = 0; i < list->count(); ++i) {
      if (list->row(i) == row) return {list, i};
    }
  }
  return {nullptr, -1};
}

Platform::Button* FindButton(const Form& form, const std::string& caption) {
  for (Control* control : form.controls()) {
    if (control->kind() == Control::Kind::Button && control->TakesFocus() &&
        WithoutAccessKey(control->caption()) == caption) {
      return static_cast<Platform::Button*>(control);
    }
  }
  return nullptr;
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

void User::ClosesWindow() {
  if (Form* form = WindowInUse("close")) form->CloseRequested();
}

void User::ClosesFromTaskbar(const std::string& title) {
  const Screen& screen = TheMachine().screen;
  // Boxes and dialogs keep all windows from being used.
  if (!screen.boxes.empty() || !screen.dialogs.empty()) return;
  for (const Window* window : screen.windows) {
    if (window->form.title() == title) return window->form.CloseRequested();
  }
  Complain("there is no window to close: " + title);
}

void User::ChoosesMenu(const std::vector<std::string>& captions) {
  const Form* form = WindowInUse("choose a menu item in");
  if (!form) return;
  const std::vector<MenuItem*>* items = &form->menus();
  MenuItem* item = nullptr;
  for (const std::string& caption : captions) {
    const auto found = std::find_if(items->begin(), items->end(), [&](const MenuItem* candidate) {
      return IsCalled(*candidate, caption);
    });
    if (found == items->end()) return Complain("there is no menu item " + caption);
    item = *found;
    if (!item->IsEnabled()) return Complain("the menu item is greyed: " + caption);
    items = &item->items();
  }
  if (item) item->Choose();
}

void User::Clicks(const std::string& text) {
  const Form* form = WindowInUse("click in");
  if (!form) return;
  if (const auto [list, index] = FindRow(*form, text); list) {
    list->Focus();
    return list->Selected(index);
  }
  Platform::Button* button = FindButton(*form, text);
  if (!button) return Complain("there is nothing to click: " + text);
  button->Focus();
  button->Click();
}

void User::DoubleClicks(const std::string& row) {
  const Form* form = WindowInUse("click in");
  if (!form) return;
  const auto [list, index] = FindRow(*form, row);
  if (!list) return Complain("there is no row " + row);
  list->Focus();
  list->Selected(index);
  list->DoubleClicked();
}

std::string User::Hears() const {
  const Form* form = WindowInUse("listen to");
  if (form && keyboard_.menu().IsOpen()) return keyboard_.menu().Heard();
  return form ? Heard(*form) : "";
}

std::vector<std::string> User::HearsOnOpening() const {
  const Form* form = WindowInUse("listen to");
  return form ? HeardOnOpening(*form) : std::vector<std::string>{};
}

std::string User::SeesWindow() const {
  const Screen& screen = TheMachine().screen;
  if (const OpenBox* box = screen.BoxInUse()) return box->box().title;
  if (!screen.dialogs.empty()) return screen.dialogs.back();
  return ActiveForm() ? ActiveForm()->title() : "";
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
