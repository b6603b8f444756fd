// The update of the pack by its own installer.
#pragma once

#include <string>

namespace Updater {

// Where an update's installer is stored for its run: "orv", the executable's name and
// "updater.exe" in the program folder, with nothing between the three.
std::string UpdaterPath();

// Deletes an installer that an earlier update has left. A missing one is no failure. Fails as
// Platform::RemoveFile does.
void RemoveLeftOverUpdater();

}  // namespace Updater
