// The menu bar of a window, read and chosen from.
#pragma once

#include <string>
#include <vector>

#include "e2e/driver/Window.h"

namespace E2e {

struct MenuLine {
  int depth;  // 0 for a menu of the bar
  std::string caption;
  bool isGrey;
  bool isChecked;
  bool isHighlighted;

  bool operator==(const MenuLine&) const = default;
};

// All menus of a window with their items, top to bottom. Empty if it has none.
std::vector<MenuLine> ReadMenu(const Window& window);

// Chooses an item with the keyboard, as a user does who knows the access keys: Alt and the letter
// of the menu, then the letters of the items; where an item has no letter, with the arrow keys.
//   path  captions without "&"; what follows them, such as " (CTRL+N)", can be left out.
// Throws std::runtime_error if there is no such item.
void ChooseFromMenu(const Window& window, const std::vector<std::string>& path);

// True while a menu of the window is open or about to be.
bool IsInMenu(const Window& window);

}  // namespace E2e
