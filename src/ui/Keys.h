// Keys, as windows see them before the focused control does.
#pragma once

namespace Platform {

// Codes of the keys without a letter or digit of their own; 'A' to 'Z' and '0' to '9' are theirs.
namespace Key {
enum Code {
  Backspace = 8,
  Tab = 9,
  Enter = 13,
  Escape = 27,
  Space = 32,
  PageUp = 33,
  PageDown = 34,
  End = 35,
  Home = 36,
  Left = 37,
  Up = 38,
  Right = 39,
  Down = 40,
  Insert = 45,
  Delete = 46,
  F1 = 112,
  F4 = 115,
  F24 = 135,
};
}

// Which of the shifting keys are down: their sum is the shift state of a key event.
namespace Shift {
enum State { None = 0, Shift = 1, Ctrl = 2, Alt = 4 };
}

struct KeyEvent {
  int code;                // Key::Code, or the letter or digit on the key
  int shift;               // sum of Shift::State
  bool isHandled = false;  // set by a handler that used the key: the control does not see it then
};

}  // namespace Platform
