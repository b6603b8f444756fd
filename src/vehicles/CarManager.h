// The actions on vehicles that the menus and choosers run.
#pragma once

namespace CarManager {

// Lets the user choose a vehicle file of the game and shows what is wrong with it, if anything.
// Fails with RuntimeError if the game is not installed, or as the dialog does.
void CheckVehicleMenu();

}  // namespace CarManager
