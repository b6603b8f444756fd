// Giving a variable of the vehicle in work its value: by a question, a file dialog or an input box,
// as the variable wants it.
#pragma once

#include <string>

#include "vehicles/VehicleVariables.h"

enum class SetResult {
  Unchanged,           // the user gave no value, or one that cannot be, and has been told
  Changed,             // the vehicle in work has the value
  WantsInternalSound,  // the user chooses one of the game's sounds next
};

// Asks for the value of the variable with an index, 0 to 13 in the order of a vehicle file. Any
// other index is Unchanged, and nothing is asked. A number is kept exactly as it was typed. A sound
// is kept as the name of its file, which is copied beside the vehicle first if no file of that name
// is there: one that is there is never replaced. Fails with RuntimeError if the game is not
// installed, a sound cannot be copied, or a number does not fit 32 bits: the vehicle in work is
// then as before.
SetResult SetVehicleValue(int index);

// The value of a variable as the user reads it: what the vehicle in work has for it, the translated
// "not set" if that is nothing, and "Yes" and "No" for wipers.
std::string GetVehicleValue(VehicleVariable variable);
