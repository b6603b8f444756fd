// A user's walk through the menu bar of a window by keyboard.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "machine/simulated/Window.h"
#include "ui/Keys.h"

namespace Simulated {

class MenuWalk {
 public:
  // Opens the menu of the bar with that access key, in capitals. False if there is none.
  bool Open(const Window& window, int accessKey);

  // True while a menu is open in that window. A bar that is made anew closes its menus.
  bool IsOpenIn(const Window& window) const;

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
    const NativeMenu* items;
    size_t reached;

    const NativeMenuItem& item() const { return (*items)[reached]; }
  };

  void Move(Level& level, bool isBackwards);
  void MoveInBar(bool isBackwards);
  void Enter(const NativeMenuItem& item);
  void PressLetter(int letter);

  std::shared_ptr<const NativeMenu> bar_;
  std::vector<Level> levels_;  // the bar, its open menu, the open submenus
};

}  // namespace Simulated
