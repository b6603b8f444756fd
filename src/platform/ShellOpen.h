// Opens documents and web pages in the programs that the user has chosen for them.
#pragma once

#include <string>

namespace Platform {

// Hands a file or an address to the system's shell, as one argument: blanks and "&" in it have no
// meaning. What cannot be opened is told by the system, if at all; this never fails.
void ShellOpen(const std::string& target);

}  // namespace Platform
