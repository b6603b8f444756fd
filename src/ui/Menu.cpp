#include "ui/Menu.h"

#include <utility>

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
  if (isChecked == isChecked_) return;
  const bool wasChecked = std::exchange(isChecked_, isChecked);
  try {
    if (form_.view()) form_.view()->MenuChanged();
  } catch (...) {
    // The old menu stays, so the item is as it shows.
    isChecked_ = wasChecked;
    throw;
  }
}

void MenuItem::Choose() {
  if (!OnClick || !form_.TakesInput()) return;
  Dispatch([this] {
    if (!form_.TakeSelections()) return;
    const auto handler = OnClick;  // which may be the end of the window
    handler();
  });
}

void MenuItem::Translate() {
  caption_ = GetLangString(options_.text) + options_.suffix;
}

}  // namespace Platform
