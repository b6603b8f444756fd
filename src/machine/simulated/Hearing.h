// What a screen reader says of the windows of the simulated machine. User::Hears gives examples.
#pragma once

#include <string>
#include <vector>

#include "machine/simulated/Window.h"

namespace Simulated {

// Of the focused control of a window.
std::string Heard(const Window& window);

// Of a window that opens: title, explaining texts, focused control.
std::vector<std::string> HeardOnOpening(const Window& window);

}  // namespace Simulated
