#include "machine/simulated/Hearing.h"

#include <cctype>

namespace Simulated {

using Platform::Control;
using Platform::Form;
using Platform::ListBox;
using Platform::TextBox;

namespace {

std::string HeardOf(const TextBox& box) {
  std::string heard = ", edit";
  if (box.IsReadOnly()) heard += ", read only";
  if (!box.text().empty()) heard += ", " + box.text();
  return heard;
}

std::string HeardOf(const ListBox& list) {
  if (list.count() == 0) return ", list, empty";
  if (list.selected() < 0) return ", list, not selected";
  return ", list, " + list.row(list.selected()) + ", " + std::to_string(list.selected() + 1) +
         " of " + std::to_string(list.count());
}

std::string RoleAndState(const Control& control) {
  switch (control.kind()) {
    case Control::Kind::Label: return "";
    case Control::Kind::TextBox: return HeardOf(static_cast<const TextBox&>(control));
    case Control::Kind::ListBox: return HeardOf(static_cast<const ListBox&>(control));
    case Control::Kind::Button: return ", button";
  }
  return "";
}

}  // namespace

std::string Heard(const Form& form) {
  if (!form.focus()) return form.title() + ", window";
  const Control& control = *form.focus();
  std::string heard = Platform::WithoutAccessKey(control.caption()) + RoleAndState(control);
  if (const char key = Platform::AccessKey(control.caption())) {
    heard +=
        std::string(", Alt+") + static_cast<char>(std::toupper(static_cast<unsigned char>(key)));
  }
  return heard;
}

std::vector<std::string> HeardOnOpening(const Form& form) {
  std::vector<std::string> heard{form.title()};
  for (const Control* control : form.controls()) {
    if (control->kind() == Control::Kind::Label && control->IsVisible() && control->IsEnabled()) {
      heard.push_back(Platform::WithoutAccessKey(control->caption()));
    }
  }
  heard.push_back(Heard(form));
  return heard;
}

}  // namespace Simulated
