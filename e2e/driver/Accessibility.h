// What must hold in every window for people who listen to it and work it with the keyboard.
#pragma once

#include <string>
#include <vector>

#include "e2e/driver/Menu.h"
#include "e2e/driver/Window.h"

namespace E2e {

// The rules that a window of the program breaks, a line for each; empty if it keeps them all. A
// line begins with the rule's name:
//   UnlabelledControl     a box or list has a label just before it
//   SharedName            no two controls bear the same name
//   ButtonWithoutCaption  a button has a caption
//   NoTitle               the window has a title
//   ReadingOrder          controls are read in the order in which they are seen
//   UnheardText           an explaining text is not disabled, and does not follow a group box
//   UnreachableText       a read-only box is a tab stop
//   NoDialog              a window with controls is one of the system's dialogs
//   TabStop               every other control is a tab stop, and no label
//   DefaultButton         one button, and one alone, is pressed by Enter
//   NoEscape              one is pressed by Escape
//   SharedAccessKey       no two buttons or labels have the same access key
//   SharedMenuKey         nor have two items of the same menu
//   UselessFocus          the focus is on a usable control; if that is a list, a row is selected.
//   None
//                         need be where a box to type in stands behind the list: the buttons act on
//                         what that holds, and it is empty or typed until a row is chosen
//   FocusNotOnWindow      a window without controls has the focus itself
//   UnusualList           a list is the system's plain one, and can be scrolled
//   CutText               captions and labels are shown whole
// The window must be in front and shown completely, in the density of DrawnDpi.
std::vector<std::string> BrokenRules(const Window& window);

// The density, in dots per inch, in which the checked program draws. At first that of this
// program's own screen.
UINT& DrawnDpi();

// The same for a message box, whose insides are the system's: NoTitle; UselessFocus, which is any
// but on a button; and
//   SwallowedAmpersand    an "&" in its text is shown as it is
std::vector<std::string> BrokenBoxRules(const Window& box);

// The same for the menus of a window alone: SharedMenuKey.
std::vector<std::string> BrokenMenuRules(const std::vector<MenuLine>& lines);

}  // namespace E2e
