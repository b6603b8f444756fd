// Threads of the library's own. Implemented by win32/Worker.cpp, and by the tests.
#pragma once

#include <functional>

namespace ORec {

// Does the work on a thread of its own, which nobody waits for. The library stays loaded until it
// is done, even if the program lets go of it meanwhile.
// False if the system has no thread for it: it is then not done.
bool StartWorker(std::function<void()> work);

}  // namespace ORec
