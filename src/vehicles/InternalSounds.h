// The sounds that the game has for vehicles: their names, and the resources of the program in which
// they can be heard without the game.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "vehicles/VehicleVariables.h"

// One kind of sound: the variable that selects it, what its resources are called behind the name of
// the vehicle, and the names that stand for a sound of the kind, in the order in which a player is
// offered them.
struct InternalSoundKind {
  VehicleVariable variable;
  std::string_view suffix;
  std::span<const std::string_view> names;
};

inline constexpr std::array<std::string_view, 8> InternalVehicleNames{
    "car1", "car2", "car3", "car4", "car5", "car6", "cycle1", "cycle2"};
inline constexpr std::array<std::string_view, 2> InternalThrottleNames{"car1", "car2"};
inline constexpr std::array<std::string_view, 4> InternalIgnitionNames{"car1", "car2", "cycle1",
                                                                       "cycle2"};

// The kinds, in the order of the variables; each name of each kind has a resource, and nothing else
// has one. The checker of vehicle files accepts fewer names, as the game's own tools do.
inline constexpr std::array<InternalSoundKind, 4> InternalSoundKinds{{
    {VehicleVariable::EngineSound, "engine", InternalVehicleNames},
    {VehicleVariable::ThrottleSound, "throttle", InternalThrottleNames},
    {VehicleVariable::StartSound, "ignition", InternalIgnitionNames},
    {VehicleVariable::HornSound, "horn", InternalVehicleNames},
}};

// The name of the resource, of the type Platform::SoundResource, with the sound that a value of a
// variable stands for: "car1engine" for "enginesound" and "car1". Empty if there is none: for the
// name of a file, the text of a value that is not set, a variable that holds no sound, or a sound
// that this variable cannot have, such as "throttlesound" and "car3". Letter case counts in both,
// as it does in a vehicle file; it does not in the name of a resource.
std::string InternalSoundResourceName(std::string_view variable, std::string_view value);
