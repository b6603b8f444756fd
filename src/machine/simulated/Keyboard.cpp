#include "machine/simulated/Keyboard.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <map>

#include "machine/simulated/Machine.h"
#include "machine/simulated/OpenBox.h"
#include "machine/simulated/Window.h"
#include "platform/LongStep.h"

namespace Simulated {

using Platform::Button;
using Platform::Control;
using Platform::KeyEvent;
namespace Key = Platform::Key;
namespace Shift = Platform::Shift;

namespace {

constexpr int RowsPerPage = 10;
constexpr int KeyOfSomeCharacter = 231;  // a character that is not on a key of its own

KeyEvent KeyNamed(std::string name) {
  static const std::map<std::string, int> codes = {
      {"Backspace", Key::Backspace}, {"Tab", Key::Tab},       {"Enter", Key::Enter},
      {"Escape", Key::Escape},       {"Space", Key::Space},   {"PageUp", Key::PageUp},
      {"PageDown", Key::PageDown},   {"End", Key::End},       {"Home", Key::Home},
      {"Left", Key::Left},           {"Up", Key::Up},         {"Right", Key::Right},
      {"Down", Key::Down},           {"Insert", Key::Insert}, {"Delete", Key::Delete},
  };
  static const std::map<std::string, int> shifts = {
      {"Shift", Shift::Shift}, {"Ctrl", Shift::Ctrl}, {"Alt", Shift::Alt}};
  KeyEvent key{.code = 0, .shift = Shift::None};
  for (size_t plus; (plus = name.find('+')) != std::string::npos && plus + 1 < name.size();) {
    const auto shift = shifts.find(name.substr(0, plus));
    if (shift == shifts.end()) break;
    key.shift |= shift->second;
    name.erase(0, plus + 1);
  }
  if (const auto code = codes.find(name); code != codes.end()) {
    key.code = code->second;
  } else if (name.size() >= 2 && name[0] == 'F' &&
             std::isdigit(static_cast<unsigned char>(name[1]))) {
    key.code = Key::F1 - 1 + std::stoi(name.substr(1));
  } else if (name.size() == 1 && std::isalnum(static_cast<unsigned char>(name[0]))) {
    key.code = std::toupper(static_cast<unsigned char>(name[0]));
  } else {
    Complain("there is no key " + name);
  }
  return key;
}

// The character that a key types; NUL if it types none.
char CharacterOf(const KeyEvent& key) {
  if (key.shift & (Shift::Ctrl | Shift::Alt)) return 0;
  const bool isShifted = key.shift & Shift::Shift;
  if (key.code >= 'A' && key.code <= 'Z') {
    return static_cast<char>(isShifted ? key.code : std::tolower(key.code));
  }
  if (key.code >= '0' && key.code <= '9' && !isShifted) return static_cast<char>(key.code);
  return key.code == Key::Space ? ' ' : '\0';
}

// The key on which a character stands.
KeyEvent KeyOf(char character) {
  const int code = static_cast<unsigned char>(character);
  if (code > 127 || (!std::isalnum(code) && code != ' ')) {
    return {.code = KeyOfSomeCharacter, .shift = Shift::None};
  }
  return {.code = std::toupper(code), .shift = std::isupper(code) ? Shift::Shift : Shift::None};
}

// What the user does is told to the model last: the window may be gone afterwards.

void Replace(NativeControl& box, const TextSelection& selection, const std::string& replacement) {
  if (box.textBox().IsReadOnly()) return;
  std::string text = box.text;
  text.replace(selection.begin(), selection.end() - selection.begin(), replacement);
  const size_t caret = selection.begin() + replacement.size();
  box.selection = {.anchor = caret, .caret = caret};
  if (text == box.text) return;
  box.text = text;
  box.textBox().Typed(text);
}

void ChooseRow(NativeControl& list, int row) {
  list.SelectRow(row);
  list.listBox().Selected(row);
}

void PressTab(Window& window, bool isBackwards) {
  std::vector<NativeControl*> stops;
  for (NativeControl& control : window.controls) {
    if (control.TakesFocus()) stops.push_back(&control);
  }
  if (stops.empty()) return;
  if (isBackwards) std::reverse(stops.begin(), stops.end());
  auto next = std::find(stops.begin(), stops.end(), window.focus);
  if (next != stops.end()) ++next;
  window.FocusByKey(next == stops.end() ? *stops.front() : **next);
}

// The arrow keys lead round among the buttons that stand beside each other.
void MoveAmongButtons(Window& window, bool isBackwards) {
  const auto isNoButton = [](const NativeControl& control) {
    return control.kind() != Control::Kind::Button;
  };
  auto& controls = window.controls;
  const auto here = controls.begin() + (window.focus - controls.data());
  const auto first = std::find_if(std::reverse_iterator(here), controls.rend(), isNoButton).base();
  const auto last = std::find_if(here, controls.end(), isNoButton);
  std::vector<NativeControl*> stops;
  for (auto button = first; button != last; ++button) {
    if (button->TakesFocus()) stops.push_back(&*button);
  }
  if (isBackwards) std::reverse(stops.begin(), stops.end());
  const auto next = std::find(stops.begin(), stops.end(), window.focus) + 1;
  window.FocusByKey(next == stops.end() ? *stops.front() : **next);
}

void PressEnter(const Window& window) {
  if (window.focus && window.focus->kind() == Control::Kind::Button) {
    window.focus->button().Click();
  } else if (Button* button = window.form.defaultButton()) {
    button->Click();
  }
}

// Alt and a letter: presses the button with that access key, or focuses the control whose label has
// it. False if there is none.
bool PressAccessKey(Window& window, int code) {
  for (NativeControl& control : window.controls) {
    const int key = static_cast<unsigned char>(Platform::AccessKey(control.caption));
    if (!control.TakesFocus() || std::toupper(key) != code) continue;
    window.FocusByKey(control);
    if (control.kind() == Control::Kind::Button) control.button().Click();
    return true;
  }
  return false;
}

// A letter moves to the next row that begins with it.
void TypeInList(NativeControl& list, char character) {
  const int letter = std::tolower(static_cast<unsigned char>(character));
  const int count = static_cast<int>(list.rows.size());
  for (int step = 1; step <= count; ++step) {
    // From the row behind the caret on, so that the same letter leads to the next one.
    const int row = (list.caret + step) % count;
    const std::string& text = list.rows[static_cast<size_t>(row)];
    if (!text.empty() && std::tolower(static_cast<unsigned char>(text[0])) == letter) {
      return ChooseRow(list, row);
    }
  }
}

void PressInList(NativeControl& list, const KeyEvent& key, char character) {
  if (list.rows.empty()) return;
  if (character) return TypeInList(list, character);
  const int last = static_cast<int>(list.rows.size()) - 1;
  int row = list.caret;
  switch (key.code) {
    case Key::Up:
    case Key::Left: row -= 1; break;
    case Key::Down:
    case Key::Right: row += 1; break;
    case Key::PageUp: row -= RowsPerPage; break;
    case Key::PageDown: row += RowsPerPage; break;
    case Key::Home: row = 0; break;
    case Key::End: row = last; break;
    default: return;
  }
  // Where nothing is selected, the first key that moves selects the row that the caret is on.
  if (list.selected < 0) row = list.caret;
  ChooseRow(list, std::clamp(row, 0, last));
}

}  // namespace

void Keyboard::Press(const std::string& name) {
  const KeyEvent key = KeyNamed(name);
  Send(key, CharacterOf(key));
}

void Keyboard::HoldDown(const std::string& name) {
  // Known before it is pressed: what the key begins may end with a long step, which makes it deaf.
  heldKey_ = name;
  Press(name);
}

void Keyboard::Repeat() {
  if (!heldKey_.empty()) Press(std::string(heldKey_));
}

void Keyboard::Type(const std::string& text) {
  for (const char character : text) Send(KeyOf(character), character);
}

void Keyboard::Send(const KeyEvent& key, char character) {
  if (OpenBox* box = TheMachine().screen.BoxInUse()) return box->Press(key);
  const Window* window = WindowInUse();
  if (!window) return Complain("there is no window for a key");
  // An open menu has a loop of its own, and the window sees none of its keys.
  if (menu_.IsOpenIn(*window)) return menu_.Press(key);
  // A key that comes in a long step is dropped before any control sees it.
  if (Platform::LongStep::IsRunning() || window->form.KeyDown(key)) return;
  if (Window* here = WindowInUse()) PressInDialog(*here, key, character);
}

void Keyboard::PressInDialog(Window& window, const KeyEvent& key, char character) {
  if (key.shift == Shift::Alt && key.code == Key::F4) return window.form.CloseRequested();
  if (key.shift == Shift::Alt && key.code >= '0' && key.code <= 'Z') {
    if (!PressAccessKey(window, key.code)) menu_.Open(window, key.code);
    return;
  }
  if (key.shift & Shift::Alt) return;
  switch (key.code) {
    case Key::Tab: return PressTab(window, key.shift & Shift::Shift);
    case Key::Enter: return PressEnter(window);
    case Key::Escape:
      if (Button* button = window.form.cancelButton()) button->Click();
      return;
    default: break;
  }
  if (!window.focus) return;
  NativeControl& focus = *window.focus;
  switch (focus.kind()) {
    case Control::Kind::TextBox: return PressInTextBox(focus, key, character);
    case Control::Kind::ListBox: return PressInList(focus, key, character);
    case Control::Kind::Button:
      if (key.code == Key::Space) focus.button().Click();
      if (key.code >= Key::Left && key.code <= Key::Down) {
        MoveAmongButtons(window, key.code == Key::Left || key.code == Key::Up);
      }
      return;
    case Control::Kind::Label: return;
  }
}

void Keyboard::PressInTextBox(NativeControl& box, const KeyEvent& key, char character) {
  const TextSelection selection = box.selection;
  if (character) return Replace(box, selection, std::string(1, character));
  const bool isEmpty = selection.begin() == selection.end();
  const size_t size = box.text.size();
  if (key.shift == Shift::Ctrl && key.code >= 'A' && key.code <= 'Z') {
    if (key.code == 'A') box.SelectAllText();
    if ((key.code == 'C' || key.code == 'X') && !isEmpty)
      TheMachine().clipboard.SetText(SelectedText());
    if (key.code == 'X' && !isEmpty) Replace(box, selection, "");
    if (key.code == 'V') Replace(box, selection, TheMachine().clipboard.text());
    return;
  }
  const auto moveTo = [&](size_t caret) {
    box.selection = {.anchor = key.shift & Shift::Shift ? selection.anchor : caret, .caret = caret};
  };
  const size_t before = selection.caret > 0 ? selection.caret - 1 : 0;
  const size_t behind = std::min(selection.caret + 1, size);
  switch (key.code) {
    case Key::Left: return moveTo(before);
    case Key::Right: return moveTo(behind);
    case Key::Home: return moveTo(0);
    case Key::End: return moveTo(size);
    case Key::Backspace:
      return Replace(box, isEmpty ? TextSelection{before, selection.caret} : selection, "");
    case Key::Delete:
      return Replace(box, isEmpty ? TextSelection{selection.caret, behind} : selection, "");
    default: return;
  }
}

std::string Keyboard::SelectedText() const {
  const Window* window = WindowInUse();
  const NativeControl* focus = window ? window->focus : nullptr;
  if (!focus || focus->kind() != Control::Kind::TextBox) return "";
  const TextSelection& selection = focus->selection;
  return focus->text.substr(selection.begin(), selection.end() - selection.begin());
}

}  // namespace Simulated
