// The menu bar of a window.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/LangText.h"

namespace Platform {

class Form;

// A menu, or an item of one. Items are shown in the order in which they are made. An item that has
// neither items of its own nor an action is shown greyed.
class MenuItem {
 public:
  struct Options {
    LangText text;            // looked up by TranslateMenu
    const char* suffix = "";  // follows the text, in every language
  };
  // A menu of the bar.
  MenuItem(Form& form, const Options& options);
  // An item of a menu or submenu.
  MenuItem(MenuItem& parent, const Options& options);
  MenuItem(const MenuItem&) = delete;
  MenuItem& operator=(const MenuItem&) = delete;

  // The caption as it is shown, with the suffix and with "&" before the access key.
  const std::string& caption() const { return caption_; }
  const std::vector<MenuItem*>& items() const { return items_; }

  bool IsEnabled() const { return !items_.empty() || OnClick != nullptr; }
  bool IsChecked() const { return isChecked_; }
  // Fails with DeviceError if the bar cannot be made anew; it then stays as it is.
  void SetChecked(bool isChecked);

  std::function<void()> OnClick;

  // Chooses the item, as the user does. Does nothing while it is greyed.
  void Choose();

 private:
  friend class Form;
  void Translate();

  Form& form_;
  Options options_;
  std::string caption_;
  std::vector<MenuItem*> items_;
  bool isChecked_ = false;
};

}  // namespace Platform
