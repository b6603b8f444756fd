// The native menu bar of a window.
#pragma once

#include <vector>

#include "platform/Menu.h"
#include "platform/win32/System.h"

namespace Platform {

// Mirrors the menus of a form. Made anew when any of them has changed.
class MenuBar {
 public:
  explicit MenuBar(const std::vector<MenuItem*>& menus);
  // Leaves the native menu to the window that it was given to, if there is one.
  ~MenuBar();
  MenuBar(const MenuBar&) = delete;
  MenuBar& operator=(const MenuBar&) = delete;

  // Puts the bar on the window in place of the one there, which is destroyed. No bar if the form
  // has no menus.
  void PutOn(HWND window);

  // The item that a WM_COMMAND of the menu names; null if it names none.
  MenuItem* ItemOf(WORD command) const;

 private:
  HMENU MakeMenu(const std::vector<MenuItem*>& items, bool isBar);

  std::vector<MenuItem*> commands_;
  HMENU bar_ = nullptr;  // until it is given away
};

}  // namespace Platform
