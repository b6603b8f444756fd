// A loaded window of the simulated machine, as its native twin would be: it holds what it was told
// to show and what the user made of that. The user hears and works this picture, not the program's
// own state, so that a change of which the view is not told is not heard either.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "ui/FormView.h"
#include "ui/Forms.h"
#include "ui/Timer.h"

namespace Simulated {

// The selected part of a text box, from the anchor to the caret.
struct TextSelection {
  size_t anchor = 0;
  size_t caret = 0;

  size_t begin() const { return anchor < caret ? anchor : caret; }
  size_t end() const { return anchor < caret ? caret : anchor; }
};

// A control with its label.
struct NativeControl {
  explicit NativeControl(Platform::Control& shownControl);

  Platform::Control* control;
  std::string caption;
  bool isEnabled;
  bool isVisible;

  // Of a text box.
  std::string text;
  TextSelection selection;

  // Of a list. The arrow keys start from the caret's row, which stays when nothing is selected.
  std::vector<std::string> rows;
  int selected = -1;
  int caret = 0;

  Platform::Control::Kind kind() const { return control->kind(); }
  Platform::TextBox& textBox() const { return static_cast<Platform::TextBox&>(*control); }
  Platform::ListBox& listBox() const { return static_cast<Platform::ListBox&>(*control); }
  Platform::Button& button() const { return static_cast<Platform::Button&>(*control); }
  // True if Tab stops here.
  bool TakesFocus() const;
  void SelectAllText() { selection = {.anchor = 0, .caret = text.size()}; }
  // Selects a row, or none with -1.
  void SelectRow(int row);
};

// A menu of the bar, or an item of a menu.
struct NativeMenuItem {
  Platform::MenuItem* item;
  std::string caption;
  bool isEnabled = false;
  bool isChecked = false;
  std::vector<NativeMenuItem> items;
};
using NativeMenu = std::vector<NativeMenuItem>;

struct Window {
  explicit Window(Platform::Form& shownForm);

  Platform::Form& form;
  std::string title;
  std::vector<NativeControl> controls;
  std::shared_ptr<const NativeMenu> menu;  // the bar; made anew at each change
  NativeControl* focus = nullptr;          // null if the window has it itself
  bool isFocusMoved = true;  // the form has moved the focus, and the window has not followed yet
  bool isShown = false;
  bool isModalLoopRunning = false;
  std::map<Platform::Timer*, int64_t> timers;  // those that run, and when they tick next

  NativeControl& Of(const Platform::Control& control);
  void ShowMenu();
  // Puts the focus where the form has it, if it has moved since the last time: as when the window
  // is activated.
  void FollowFocus();
  // The user moves the focus by Tab or by an access key, which selects the text of a text box, or
  // by a click.
  void FocusByKey(NativeControl& control);
  void FocusByClick(NativeControl& control);

  // Complains about what keeps the user from hearing the window or working it by keyboard: texts
  // and lists without a name, access keys that two share, a missing title or focus.
  void Check() const;
  void CheckFocus() const;
};

// The window behind a form; null if the form is not loaded.
Window* WindowOf(const Platform::Form& form);
// The window in use, with the focus where it belongs; null if there is none.
Window* WindowInUse();

}  // namespace Simulated

struct Platform::FormView::Native : Simulated::Window {
  using Window::Window;
};
