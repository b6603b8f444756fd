// The native menu bar of a window.
#pragma once

#include <memory>
#include <vector>

#include "machine/win32/System.h"
#include "ui/Menu.h"

namespace Platform {

// Mirrors the menus of a form. Made anew when any of them has changed.
class MenuBar {
 public:
  // Fails with DeviceError if the system has no room for another menu.
  explicit MenuBar(const std::vector<MenuItem*>& menus);

  // Puts the bar on the window in place of the one there, which is destroyed. No bar if the form
  // has no menus. Fails with DeviceError, and the bar there stays, if the window does not take it.
  void PutOn(HWND window);

  // The item that a WM_COMMAND of the menu names; null if it names none.
  MenuItem* ItemOf(WORD command) const;

 private:
  struct MenuDestroyer {
    using pointer = HMENU;
    void operator()(HMENU menu) const { DestroyMenu(menu); }
  };
  using OwnedMenu = std::unique_ptr<HMENU, MenuDestroyer>;

  OwnedMenu MakeMenu(const std::vector<MenuItem*>& items, bool isBar);
  void Append(HMENU menu, MenuItem& item);

  std::vector<MenuItem*> commands_;
  OwnedMenu bar_;  // until it is given away
};

}  // namespace Platform
