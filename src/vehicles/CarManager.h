// The work on vehicles behind the menus and the editor's windows: check a vehicle file, choose a
// file for a new vehicle, and write it.
#pragma once

#include <string>

namespace CarManager {

// Lets the user choose a vehicle file of the game and shows what is wrong with it, if anything.
// Fails with RuntimeError if the game is not installed, or as the dialog does.
void CheckVehicleMenu();

// Lets the user choose the file of a new vehicle, which need not exist. Returns its full path, with
// ".vhc" behind a name without an extension; empty if none is chosen, which the user is told. The
// dialog has asked before a file is replaced.
// Fails with RuntimeError if the game is not installed, or as the dialog does.
std::string ChooseFileOfNewVehicle();

// Writes the variables of the vehicle in work that have a value to a file, and says so. If none has
// one, the user is told, and the file stays as it is. Fails as Platform::WriteWholeFile does.
void SaveVehicleFile(const std::string& path);

}  // namespace CarManager
