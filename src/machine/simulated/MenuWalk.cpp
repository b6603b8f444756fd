#include "machine/simulated/MenuWalk.h"

#include <cctype>

namespace Simulated {

namespace Key = Platform::Key;

namespace {

int Capital(char letter) {
  return std::toupper(static_cast<unsigned char>(letter));
}

// The letter by which an item is chosen: its access key, or the first one of an item without.
int LetterOf(const NativeMenuItem& item) {
  const char key = Platform::AccessKey(item.caption);
  return Capital(key || item.caption.empty() ? key : item.caption.front());
}

}  // namespace

bool MenuWalk::Open(const Window& window, int accessKey) {
  const NativeMenu& bar = *window.menu;
  for (size_t i = 0; i < bar.size(); ++i) {
    if (Capital(Platform::AccessKey(bar[i].caption)) != accessKey) continue;
    bar_ = window.menu;
    levels_ = {{&bar, i}};
    Enter(bar[i]);
    return true;
  }
  return false;
}

bool MenuWalk::IsOpenIn(const Window& window) const {
  return !levels_.empty() && window.menu == bar_;
}

void MenuWalk::Press(const Platform::KeyEvent& key) {
  Level& level = levels_.back();
  switch (key.code) {
    case Key::Up: return Move(level, true);
    case Key::Down: return Move(level, false);
    case Key::Left:
      // The first level is the bar, the second a menu that hangs from it.
      if (levels_.size() <= 2) return MoveInBar(true);
      levels_.pop_back();
      return;
    case Key::Right:
      if (level.item().items.empty()) return MoveInBar(false);
      return Enter(level.item());
    case Key::Enter: return Enter(level.item());
    case Key::Escape:
      levels_.pop_back();
      if (levels_.size() == 1) levels_.clear();
      return;
    default: return PressLetter(key.code);
  }
}

void MenuWalk::Move(Level& level, bool isBackwards) {
  const size_t count = level.items->size();
  level.reached = (level.reached + (isBackwards ? count - 1 : 1)) % count;
}

void MenuWalk::MoveInBar(bool isBackwards) {
  levels_.resize(1);
  Move(levels_.front(), isBackwards);
  Enter(levels_.front().item());
}

// Opens the menu of an item, or chooses it.
void MenuWalk::Enter(const NativeMenuItem& item) {
  if (!item.items.empty()) {
    levels_.push_back({&item.items, 0});
  } else if (item.isEnabled) {
    // Closed before the item acts, as its action may take the window away.
    levels_.clear();
    item.item->Choose();
  }
}

void MenuWalk::PressLetter(int letter) {
  Level& level = levels_.back();
  for (size_t i = 0; i < level.items->size(); ++i) {
    if (LetterOf((*level.items)[i]) != letter) continue;
    level.reached = i;
    return Enter(level.item());
  }
}

std::string MenuWalk::Heard() const {
  const NativeMenuItem& item = levels_.back().item();
  std::string heard = Platform::WithoutAccessKey(item.caption);
  heard += item.items.empty() ? ", menu item" : ", submenu";
  if (item.isChecked) heard += ", checked";
  if (!item.isEnabled) heard += ", unavailable";
  if (const char key = Platform::AccessKey(item.caption)) {
    heard += std::string(", ") + static_cast<char>(Capital(key));
  }
  return heard;
}

}  // namespace Simulated
