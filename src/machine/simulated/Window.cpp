#include "machine/simulated/Window.h"

#include <algorithm>
#include <utility>

#include "machine/simulated/Complaints.h"

namespace Simulated {

using Platform::Control;
using Platform::Form;

namespace {

NativeMenu CopyOf(const std::vector<Platform::MenuItem*>& items) {
  NativeMenu menu;
  for (Platform::MenuItem* item : items) {
    menu.push_back({.item = item,
                    .caption = item->caption(),
                    .isEnabled = item->IsEnabled(),
                    .isChecked = item->IsChecked(),
                    .items = CopyOf(item->items())});
  }
  return menu;
}

}  // namespace

NativeControl::NativeControl(Control& shownControl)
    : control(&shownControl),
      caption(shownControl.caption()),
      isEnabled(shownControl.IsEnabled()),
      isVisible(shownControl.IsVisible()) {
  if (kind() == Control::Kind::TextBox) text = textBox().text();
}

bool NativeControl::TakesFocus() const {
  return kind() != Control::Kind::Label && isEnabled && isVisible;
}

void NativeControl::SelectRow(int row) {
  selected = row;
  // Where none is selected any more, the caret stays, as in native lists.
  if (row >= 0) caret = row;
}

Window::Window(Form& shownForm) : form(shownForm), title(shownForm.title()) {
  for (Control* control : form.controls()) controls.emplace_back(*control);
  ShowMenu();
}

NativeControl& Window::Of(const Control& control) {
  return *std::find_if(controls.begin(), controls.end(), [&](const NativeControl& candidate) {
    return candidate.control == &control;
  });
}

void Window::ShowMenu() {
  menu = std::make_shared<const NativeMenu>(CopyOf(form.menus()));
}

void Window::FollowFocus() {
  if (!std::exchange(isFocusMoved, false)) return;
  focus = form.focus() ? &Of(*form.focus()) : nullptr;
  // As the dialog's own way to move the focus does.
  if (focus) focus->SelectAllText();
}

void Window::FocusByKey(NativeControl& control) {
  FocusByClick(control);
  control.SelectAllText();
}

void Window::FocusByClick(NativeControl& control) {
  focus = &control;
  form.FocusArrived(*control.control);
}

void Window::Check() const {
  const std::string where = " in the window " + title;
  if (title.empty()) Complain("a window without a title");
  for (const std::string& shared : Platform::SharedAccessKeys(form)) {
    Complain("a shared access key" + where + ": " + shared);
  }
  for (const NativeControl& control : controls) {
    if (control.isVisible && Platform::WithoutAccessKey(control.caption).empty()) {
      Complain("a control without a name" + where);
    }
  }
}

void Window::CheckFocus() const {
  const auto takesFocus = [](const NativeControl& control) { return control.TakesFocus(); };
  if (focus ? !focus->TakesFocus() : std::any_of(controls.begin(), controls.end(), takesFocus)) {
    Complain("the focus is on no usable control in the window " + title);
  }
}

Window* WindowOf(const Form& form) {
  return form.view() ? &form.view()->native() : nullptr;
}

Window* WindowInUse() {
  const Form* form = Platform::ActiveForm();
  Window* window = form ? WindowOf(*form) : nullptr;
  if (!window) return nullptr;
  window->FollowFocus();
  window->CheckFocus();
  return window;
}

}  // namespace Simulated
