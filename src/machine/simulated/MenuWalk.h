// A user's walk through the menu bar of a window by keyboard.
#pragma once

#include <string>
#include <vector>

#include "ui/Forms.h"

namespace Simulated {

class MenuWalk {
 public:
  // Opens the menu of the bar with that access key, in capitals. False if there is none.
  bool Open(const Platform::Form& form, int accessKey);

  // True while a menu is open in the window in use.
  bool IsOpen() const;

  // Arrows, Enter, Escape and the letters of the items.
  void Press(const Platform::KeyEvent& key);

  // What a screen reader says of the item that is reached:
  //   "Close (Alt+F4), menu item, C"
  //   "Visit Websites, submenu, V"
  //   "Update on startup, menu item, checked"
  //   "New, menu item, unavailable, N"
  std::string Heard() const;

 private:
  struct Level {
    const std::vector<Platform::MenuItem*>* items;
    size_t reached;

    Platform::MenuItem& item() const { return *(*items)[reached]; }
  };

  void Move(Level& level, bool isBackwards);
  void MoveInBar(bool isBackwards);
  void Enter(Platform::MenuItem& item);
  void PressLetter(int letter);

  const Platform::Form* form_ = nullptr;
  std::vector<Level> levels_;  // the bar, its open menu, the open submenus
};

}  // namespace Simulated
