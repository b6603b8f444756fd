#include "platform/Menu.h"

#include "platform/FormView.h"
#include "platform/Forms.h"
#include "platform/Translation.h"

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
  if (OnClick) Dispatch(OnClick);
}

void MenuItem::Translate() {
  caption_ = Platform::Translate(options_.text) + options_.suffix;
}

}  // namespace Platform
