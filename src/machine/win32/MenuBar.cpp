#include "machine/win32/MenuBar.h"

#include "base/RuntimeErrorTexts.h"
#include "machine/win32/Failure.h"

namespace Platform {

namespace {
// Above all ids of controls.
constexpr WORD FirstCommand = 0x1000;
}  // namespace

MenuBar::MenuBar(const std::vector<MenuItem*>& menus) {
  if (!menus.empty()) bar_ = MakeMenu(menus, true);
}

MenuBar::OwnedMenu MenuBar::MakeMenu(const std::vector<MenuItem*>& items, bool isBar) {
  OwnedMenu menu(isBar ? CreateMenu() : CreatePopupMenu());
  if (!menu) FailAt(RuntimeErrorTexts.MakingMenu);
  for (MenuItem* item : items) Append(menu.get(), *item);
  return menu;
}

void MenuBar::Append(HMENU menu, MenuItem& item) {
  UINT flags = MF_STRING;
  if (!item.IsEnabled()) flags |= MF_GRAYED;
  if (item.IsChecked()) flags |= MF_CHECKED;
  UINT_PTR id = FirstCommand + commands_.size();
  OwnedMenu items;
  if (item.items().empty()) {
    // Its number is its place here: the system tells of a choice by number alone.
    commands_.push_back(&item);
  } else {
    items = MakeMenu(item.items(), false);
    flags |= MF_POPUP;
    id = reinterpret_cast<UINT_PTR>(items.get());
  }
  if (!AppendMenuA(menu, flags, id, item.caption().c_str())) FailAt(RuntimeErrorTexts.MakingMenu);
  static_cast<void>(items.release());  // goes with the menu that it is in now
}

void MenuBar::PutOn(HWND window) {
  const HMENU previous = GetMenu(window);
  // Most windows have no menu, and setting none would lay the frame out anew.
  if (!previous && !bar_) return;
  if (!SetMenu(window, bar_.get())) FailAt(RuntimeErrorTexts.MakingMenu);
  static_cast<void>(bar_.release());  // goes with the window
  if (previous) DestroyMenu(previous);
  DrawMenuBar(window);
}

MenuItem* MenuBar::ItemOf(WORD command) const {
  const size_t index = static_cast<size_t>(command) - FirstCommand;
  return index < commands_.size() ? commands_[index] : nullptr;
}

}  // namespace Platform
