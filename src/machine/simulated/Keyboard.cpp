#include "machine/simulated/Keyboard.h"

#include <algorithm>
#include <cctype>
#include <map>

#include "machine/simulated/Machine.h"
#include "machine/simulated/OpenBox.h"
#include "machine/simulated/Window.h"

namespace Simulated {

using Platform::ActiveForm;
using Platform::Button;
using Platform::Control;
using Platform::Form;
using Platform::KeyEvent;
using Platform::ListBox;
using Platform::TextBox;
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

TextSelection& SelectionIn(TextBox& box) {
  TextSelection& selection = box.form().view()->native().selections[&box];
  selection.anchor = std::min(selection.anchor, box.text().size());
  selection.caret = std::min(selection.caret, box.text().size());
  return selection;
}

void Replace(TextBox& box, const TextSelection& selection, const std::string& replacement) {
  if (box.IsReadOnly()) return;
  std::string text = box.text();
  text.replace(selection.begin(), selection.end() - selection.begin(), replacement);
  const size_t caret = selection.begin() + replacement.size();
  SelectionIn(box) = {.anchor = caret, .caret = caret};
  box.Typed(text);
}

void FocusByKey(Control& control) {
  control.Focus();
  if (control.kind() == Control::Kind::TextBox) static_cast<TextBox&>(control).SelectAll();
}

void PressTab(Form& form, bool isBackwards) {
  std::vector<Control*> stops;
  for (Control* control : form.controls()) {
    if (control->TakesFocus()) stops.push_back(control);
  }
  if (stops.empty()) return;
  if (isBackwards) std::reverse(stops.begin(), stops.end());
  auto next = std::find(stops.begin(), stops.end(), form.focus());
  if (next != stops.end()) ++next;
  FocusByKey(next == stops.end() ? *stops.front() : **next);
}

void PressEnter(Form& form) {
  if (form.focus() && form.focus()->kind() == Control::Kind::Button) {
    static_cast<Button*>(form.focus())->Click();
  } else if (Button* button = form.defaultButton()) {
    button->Click();
  }
}

// Alt and a letter: presses the button with that access key, or focuses the control whose label has
// it. False if there is none.
bool PressAccessKey(Form& form, int code) {
  for (Control* control : form.controls()) {
    const int key = static_cast<unsigned char>(Platform::AccessKey(control->caption()));
    if (!control->TakesFocus() || std::toupper(key) != code) continue;
    if (control->kind() != Control::Kind::Button) {
      FocusByKey(*control);
    } else {
      control->Focus();
      static_cast<Button*>(control)->Click();
    }
    return true;
  }
  return false;
}

// A letter moves to the next row that begins with it.
void TypeInList(ListBox& list, char character) {
  const int letter = std::tolower(static_cast<unsigned char>(character));
  for (int step = 1; step <= list.count(); ++step) {
    const int row = (list.selected() + step) % list.count();
    const std::string& text = list.row(row);
    if (!text.empty() && std::tolower(static_cast<unsigned char>(text[0])) == letter) {
      return list.Selected(row);
    }
  }
}

void PressInList(ListBox& list, const KeyEvent& key, char character) {
  if (list.count() == 0) return;
  if (character) return TypeInList(list, character);
  const int last = list.count() - 1;
  int row = list.selected();
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
  list.Selected(std::clamp(row, 0, last));
}

}  // namespace

void Keyboard::Press(const std::string& name) {
  const KeyEvent key = KeyNamed(name);
  Send(key, CharacterOf(key));
}

void Keyboard::Type(const std::string& text) {
  for (const char character : text) Send(KeyOf(character), character);
}

void Keyboard::Send(const KeyEvent& key, char character) {
  if (OpenBox* box = TheMachine().screen.BoxInUse()) return box->Press(key);
  Form* form = ActiveForm();
  if (!form) return Complain("there is no window for a key");
  if (menu_.IsOpen()) return menu_.Press(key);
  if (form->KeyDown(key) || ActiveForm() != form) return;
  PressInDialog(*form, key, character);
}

void Keyboard::PressInDialog(Form& form, const KeyEvent& key, char character) {
  if (key.shift == Shift::Alt && key.code == Key::F4) return form.CloseRequested();
  if (key.shift == Shift::Alt && key.code >= '0' && key.code <= 'Z') {
    if (!PressAccessKey(form, key.code)) menu_.Open(form, key.code);
    return;
  }
  if (key.shift & Shift::Alt) return;
  switch (key.code) {
    case Key::Tab: return PressTab(form, key.shift & Shift::Shift);
    case Key::Enter: return PressEnter(form);
    case Key::Escape:
      if (Button* button = form.cancelButton()) button->Click();
      return;
    default: break;
  }
  Control* focus = form.focus();
  if (!focus) return;
  switch (focus->kind()) {
    case Control::Kind::TextBox:
      return PressInTextBox(static_cast<TextBox&>(*focus), key, character);
    case Control::Kind::ListBox: return PressInList(static_cast<ListBox&>(*focus), key, character);
    case Control::Kind::Button:
      if (key.code == Key::Space) static_cast<Button*>(focus)->Click();
      return;
    case Control::Kind::Label: return;
  }
}

void Keyboard::PressInTextBox(TextBox& box, const KeyEvent& key, char character) {
  const TextSelection selection = SelectionIn(box);
  if (character) return Replace(box, selection, std::string(1, character));
  const bool isEmpty = selection.begin() == selection.end();
  const size_t size = box.text().size();
  if (key.shift == Shift::Ctrl && key.code >= 'A' && key.code <= 'Z') {
    if (key.code == 'A') box.SelectAll();
    if ((key.code == 'C' || key.code == 'X') && !isEmpty) clipboard_ = SelectedText();
    if (key.code == 'X' && !isEmpty) Replace(box, selection, "");
    if (key.code == 'V') Replace(box, selection, clipboard_);
    return;
  }
  const auto moveTo = [&](size_t caret) {
    SelectionIn(box) = {.anchor = key.shift & Shift::Shift ? selection.anchor : caret,
                        .caret = caret};
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
  const Form* form = ActiveForm();
  Control* focus = form ? form->focus() : nullptr;
  if (!focus || focus->kind() != Control::Kind::TextBox) return "";
  auto& box = static_cast<TextBox&>(*focus);
  const TextSelection selection = SelectionIn(box);
  return box.text().substr(selection.begin(), selection.end() - selection.begin());
}

}  // namespace Simulated
