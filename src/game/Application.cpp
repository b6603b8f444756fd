#include "game/Application.h"

#include "base/RuntimeError.h"
#include "game/GameTexts.h"
#include "game/Registry.h"

namespace Application {

namespace {

std::string UninstallValue(const std::string& name) {
  // Asked anew at each use: the game may be installed, or moved, while the pack runs.
  return Registry::ReadRegistryValue(Platform::RegistryRoot::LocalMachine,
                                     "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"
                                     "{7A3C51E2-94D0-4B6F-A1C8-2E5D90F4B317}_is1",
                                     name);
}

}  // namespace

std::string GameFolder() {
  std::string location = UninstallValue("InstallLocation");
  // A location of one character leaves no folder either.
  if (location.size() < 2) {
    throw RuntimeError(RuntimeError::InvalidCall, GameTexts.GameNotInstalled);
  }
  // The installer writes a backslash at the end; the pack's own paths begin with one.
  location.pop_back();
  return location;
}

std::string VehicleFolder() {
  return GameFolder() + "\\vehicles";
}
std::string TrackFolder() {
  return GameFolder() + "\\tracks";
}

std::string GamePublisher() {
  return UninstallValue("Publisher");
}
std::string GameVersion() {
  return UninstallValue("DisplayVersion");
}
std::string GameContact() {
  return UninstallValue("Contact");
}

}  // namespace Application
