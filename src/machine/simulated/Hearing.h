// What a screen reader says of the windows of the simulated machine. User::Hears gives examples.
#pragma once

#include <string>
#include <vector>

#include "ui/Forms.h"

namespace Simulated {

// Of the focused control of a window.
std::string Heard(const Platform::Form& form);

// Of a window that opens: title, explaining texts, focused control.
std::vector<std::string> HeardOnOpening(const Platform::Form& form);

}  // namespace Simulated
