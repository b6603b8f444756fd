// The fourteen variables of a vehicle, and the sounds that the game has for them.
#pragma once

#include <array>
#include <string_view>

// Their order is that of the lines of a file that the game's own tools write.
enum class VehicleVariable {
  EngineSound,
  ThrottleSound,
  StartSound,
  HornSound,
  Acceleration,
  Deceleration,
  Skidrun,  // the top speed
  IdleFreq,
  TopFreq,
  ShiftFreq,
  NumberOfGears,
  Steering,
  SteeringFactor,
  HasWipers,
};

// Their names, as they stand before the "=". Letter case counts.
inline constexpr std::array<std::string_view, 14> VehicleVariableNames{
    "enginesound",   "throttlesound", "startsound",     "hornsound", "acceleration",
    "deceleration",  "skidrun",       "idlefreq",       "topfreq",   "shiftfreq",
    "numberofgears", "steering",      "steeringfactor", "haswipers",
};

// A sound variable holds the name of an internal sound or of a .wav file beside the vehicle file;
// any other variable holds a number.
constexpr bool IsSound(VehicleVariable variable) {
  return variable <= VehicleVariable::HornSound;
}
