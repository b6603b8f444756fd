// The game, as its installer leaves it on the simulated machine.
#pragma once

#include <string>

#include "machine/simulated/Machine.h"

// Puts the game there: its folders "vehicles", "tracks" and "sounds", and its uninstall entry in
// the registry's 32-bit view, as the game's own 32-bit installer writes it.
//   folder  without a backslash at its end.
inline void InstallGame(Simulated::Machine& machine, const std::string& folder) {
  for (const char* name : {"vehicles", "tracks", "sounds"}) {
    machine.files.PutFolder(folder + "\\" + name);
  }
  const auto put = [&](const char* name, const std::string& text) {
    machine.registry.PutString(Platform::RegistryRoot::LocalMachine,
                               Platform::RegistryView::Of32Bit,
                               "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"
                               "{7A3C51E2-94D0-4B6F-A1C8-2E5D90F4B317}_is1",
                               name, text + '\0');
  };
  put("InstallLocation", folder + "\\");
  put("Publisher", "Gloamworks");
  put("DisplayVersion", "1.0");
  put("Contact", "support@gloamworks.example");
}
