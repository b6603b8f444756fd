// A question that is answered with a line of text.
#pragma once

#include <string>

namespace Platform {

// Shows a dialog with the prompt as the label of an empty text box, OK and Cancel, over the window
// that is in use. Returns the text as typed; empty if it was cancelled.
//   prompt, title  already in the user's language.
std::string InputBox(const std::string& prompt, const std::string& title);

}  // namespace Platform
