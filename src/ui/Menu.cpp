#include "ui/Menu.h"

#include "text/StringTable.h"
#include "ui/FormView.h"
#include "ui/Forms.h"

namespace Platform {

MenuItem::MenuItem(Form& form, const Options& options) : form_(form), options_(options) {
  form_.menus_.push_back(this);
  form_.menuItems_.push_back(this);
}

MenuItem::MenuItem(MenuItem& parent, const Options& options)
    : form_(parent.form_), options_(options) {
  parent.items_.push_back(this);
  form_.menuItems_.push_back(this);
}

void MenuItem::SetChecked(bool isChecked) {
  isChecked_ = isChecked;
  if (form_.view()) form_.view()->MenuChanged();
}

void MenuItem::Choose() {
  if (!OnClick) return;
  Dispatch([this] {
    if (form_.TakeSelections()) OnClick();
  });
}

void MenuItem::Translate() {
  caption_ = GetLangString(options_.text) + options_.suffix;
}

}  // namespace Platform
