// Opens documents and web pages in the programs that the user has chosen for them.
#pragma once

#include <string>

namespace Platform {

// Hands a file or an address to the system's shell, as one argument: blanks and "&" in it have no
// meaning. What cannot be opened, such as a file that does not exist, is told to the user by the
// system itself, over the window in use. It is a long step: the shell may take its time, and
// handles events meanwhile. Fails with RuntimeError DeviceError only where the system lacks its
// shell.
void ShellOpen(const std::string& target);

}  // namespace Platform
