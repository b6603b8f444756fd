#include "platform/win32/MenuBar.h"

#include <utility>

namespace Platform {

namespace {
// Above all ids of controls.
constexpr WORD FirstCommand = 0x1000;
}  // namespace

MenuBar::MenuBar(const std::vector<MenuItem*>& menus) {
  if (!menus.empty()) bar_ = MakeMenu(menus, true);
}

MenuBar::~MenuBar() {
  if (bar_) DestroyMenu(bar_);
}

HMENU MenuBar::MakeMenu(const std::vector<MenuItem*>& items, bool isBar) {
  const HMENU menu = isBar ? CreateMenu() : CreatePopupMenu();
  for (MenuItem* item : items) {
    UINT flags = MF_STRING;
    if (!item->IsEnabled()) flags |= MF_GRAYED;
    if (item->IsChecked()) flags |= MF_CHECKED;
    UINT_PTR id = FirstCommand + commands_.size();
    if (item->items().empty()) {
      commands_.push_back(item);
    } else {
      flags |= MF_POPUP;
      id = reinterpret_cast<UINT_PTR>(MakeMenu(item->items(), false));
    }
    AppendMenuA(menu, flags, id, item->caption().c_str());
  }
  return menu;
}

void MenuBar::PutOn(HWND window) {
  const HMENU previous = GetMenu(window);
  if (!previous && !bar_) return;
  SetMenu(window, std::exchange(bar_, nullptr));
  if (previous) DestroyMenu(previous);
  DrawMenuBar(window);
}

MenuItem* MenuBar::ItemOf(WORD command) const {
  const size_t index = static_cast<size_t>(command) - FirstCommand;
  return index < commands_.size() ? commands_[index] : nullptr;
}

}  // namespace Platform
