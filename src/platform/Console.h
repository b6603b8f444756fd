// What a program without windows is given and says.
#pragma once

#include <string>
#include <vector>

namespace Platform {

// To be called first by such a program's main: returns its arguments without its own name, in the
// system code page ("?" stands for what that lacks), and lets all that it says be UTF-8 with plain
// line feeds, wherever that goes. On Windows, whose command line leaves them to the program, "*"
// and
// "?" in arguments stand for the names of files.
std::vector<std::string> StartConsole(int count, char** arguments);

}  // namespace Platform
