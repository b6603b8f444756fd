// The keyboard of the simulated machine: keys reach the window in use as Windows' dialogs take
// them.
#pragma once

#include <string>

#include "machine/simulated/MenuWalk.h"
#include "ui/Keys.h"

namespace Simulated {

class Keyboard {
 public:
  // Presses a key with its shifting keys: "Enter", "Shift+Tab", "Ctrl+A", "Alt+F4", "Delete".
  void Press(const std::string& name);
  // Presses a key and keeps it down; the keyboard then repeats it, until it is let go.
  void HoldDown(const std::string& name);
  void Repeat();
  void LetGo() { heldKey_.clear(); }
  // Types the characters of a text, each with its key.
  void Type(const std::string& text);

  std::string SelectedText() const;
  const MenuWalk& menu() const { return menu_; }

 private:
  // A key, and the character that it types, or NUL: to a box, an open menu, or the window in use.
  void Send(const Platform::KeyEvent& key, char character);
  // A key that the window itself did not use.
  void PressInDialog(Window& window, const Platform::KeyEvent& key, char character);
  void PressInTextBox(NativeControl& box, const Platform::KeyEvent& key, char character);

  std::string heldKey_;  // empty if none is down
  MenuWalk menu_;
};

}  // namespace Simulated
