// The clipboard, on which programs leave what the user takes from one to another.
#pragma once

#include <string>

namespace Platform {

// Puts a text on the clipboard in place of what is there. While another program has the clipboard
// open, which takes a moment, it is tried again for up to a second.
// Fails with RuntimeError PermissionDenied, cause ClipboardInUse, if it stays in use; what was
// there is then there still.
void SetClipboardText(const std::string& text);

}  // namespace Platform
