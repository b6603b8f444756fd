// The names by which tests call the keys of a real keyboard: "Enter", "Alt+S", "Ctrl+Shift+N". The
// contract tests and those of the shipped program press them alike.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <utility>

namespace KeyNames {

struct Stroke {
  WORD key;  // a virtual key code
  bool isCtrl = false;
  bool isShift = false;
  bool isAlt = false;
};

// The code of a key by its name; a letter or digit is called by itself. Nothing for another name.
inline std::optional<WORD> KeyNamed(const std::string& name) {
  static constexpr std::pair<const char*, WORD> Names[] = {
      {"Enter", VK_RETURN},  {"Tab", VK_TAB},       {"Escape", VK_ESCAPE},  {"Space", VK_SPACE},
      {"Up", VK_UP},         {"Down", VK_DOWN},     {"Left", VK_LEFT},      {"Right", VK_RIGHT},
      {"Home", VK_HOME},     {"End", VK_END},       {"PageUp", VK_PRIOR},   {"PageDown", VK_NEXT},
      {"Delete", VK_DELETE}, {"Insert", VK_INSERT}, {"Backspace", VK_BACK}, {"F4", VK_F4},
      {"Ctrl", VK_CONTROL},  {"Shift", VK_SHIFT},   {"Alt", VK_MENU}};
  for (const auto& [known, key] : Names) {
    if (name == known) return key;
  }
  const bool isDigit = name.size() == 1 && name[0] >= '0' && name[0] <= '9';
  const bool isCapital = name.size() == 1 && name[0] >= 'A' && name[0] <= 'Z';
  const bool isSmall = name.size() == 1 && name[0] >= 'a' && name[0] <= 'z';
  if (isSmall) return static_cast<WORD>(name[0] - 'a' + 'A');
  if (isDigit || isCapital) return static_cast<WORD>(name[0]);
  return std::nullopt;
}

// A key with the shifting keys that are held down with it, which stand before it in any order.
// Nothing if the key has no such name.
inline std::optional<Stroke> StrokeNamed(std::string name) {
  Stroke stroke{};
  const auto take = [&name](const std::string& prefix, bool& isHeld) {
    if (!name.starts_with(prefix)) return false;
    name.erase(0, prefix.size());
    return isHeld = true;
  };
  while (take("Ctrl+", stroke.isCtrl) || take("Shift+", stroke.isShift) ||
         take("Alt+", stroke.isAlt)) {
  }
  const auto key = KeyNamed(name);
  if (!key) return std::nullopt;
  stroke.key = *key;
  return stroke;
}

}  // namespace KeyNames
