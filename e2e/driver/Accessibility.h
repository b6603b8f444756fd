// What must hold in every window for people who listen to it and work it with the keyboard.
#pragma once

#include <string>
#include <vector>

#include "e2e/driver/Menu.h"
#include "e2e/driver/Window.h"

namespace E2e {

// The rules that a window of the program breaks, a line for each; empty if it keeps them all. A
// line begins with the rule's letter and number:
//   N1 a box or list has a label just before it     N2 no two controls bear the same name
//   N3 buttons have a caption                       N4 the window has a title
//   N5 reading order is the visual order            N6 explaining texts are heard
//   N8 read-only texts can be reached               K1 the window is a real dialog
//   K2 Tab stops where it should                    K3 exactly one default button
//   K4 Escape has its button                        K5 access keys are unique
//   K7 those of a menu too                          F1 the focus is on something useful
//   F6 or on the window, if it has no controls      L1 lists are the system's
//   V3 no text is cut
// The window must be in front and shown completely, in the density of DrawnDpi.
std::vector<std::string> BrokenRules(const Window& window);

// The density, in dots per inch, in which the checked program draws. At first that of this
// program's own screen.
UINT& DrawnDpi();

// The same for a message box, whose insides are the system's: N4, F1, and N7: an "&" in its text is
// shown as it is.
std::vector<std::string> BrokenBoxRules(const Window& box);

// The same for the menus of a window alone: K7.
std::vector<std::string> BrokenMenuRules(const std::vector<MenuLine>& lines);

}  // namespace E2e
