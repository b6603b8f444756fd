#include "machine/simulated/Window.h"

#include <algorithm>

#include "machine/simulated/Complaints.h"

namespace Simulated {

using Platform::Control;

void Window::Check() const {
  const std::string where = " in the window " + form.title();
  if (form.title().empty()) Complain("a window without a title");
  for (const std::string& shared : Platform::SharedAccessKeys(form)) {
    Complain("a shared access key" + where + ": " + shared);
  }
  for (const Control* control : form.controls()) {
    if (control->IsVisible() && Platform::WithoutAccessKey(control->caption()).empty()) {
      Complain("a control without a name" + where);
    }
  }
  CheckFocus();
}

void Window::CheckFocus() const {
  const Control* focus = form.focus();
  const auto& controls = form.controls();
  const auto takesFocus = [](const Control* control) { return control->TakesFocus(); };
  if (focus ? !focus->TakesFocus() : std::any_of(controls.begin(), controls.end(), takesFocus)) {
    Complain("the focus is on no usable control in the window " + form.title());
  }
}

}  // namespace Simulated
