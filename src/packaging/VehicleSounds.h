// The sounds that a vehicle file names, as its packager looks at them.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "vehicles/VehicleVariables.h"

namespace VehicleSounds {

// Engine, throttle, ignition and horn.
inline constexpr std::array Variables{VehicleVariable::EngineSound, VehicleVariable::ThrottleSound,
                                      VehicleVariable::StartSound, VehicleVariable::HornSound};

struct Sound {
  VehicleVariable variable;
  std::string path;       // the vehicle's folder, "\\" and what the vehicle names
  bool isInside = false;  // in that folder or in one below it
};

// The sound files that a vehicle names, in the order of the variables, whether or not they are
// there. Where a variable stands on several lines, the last one counts. Left out are variables
// without a value and the names of the game's own sounds.
// Which names those are is the packager's own rule, and older than that of the checker, which does
// not know car5 and car6; packages that players have made are built on it. Letter case counts.
// Fails as FileLines does.
std::vector<Sound> FilesOf(const std::string& vehiclePath);

}  // namespace VehicleSounds
