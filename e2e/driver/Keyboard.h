// The user's keyboard. What is pressed goes to the window in front, as it does for a user.
#pragma once

#include <string>

namespace E2e::Keyboard {

// Presses keys together and lets them go: "Enter", "Alt+T", "Ctrl+Shift+N", "Down".
// Throws std::runtime_error for a name that is no key.
void Press(const std::string& keys);

// Types a text, character by character.
void Type(const std::string& text);

}  // namespace E2e::Keyboard
