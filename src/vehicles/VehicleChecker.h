// Finds the first fault in a vehicle file.
#pragma once

#include <cstdint>
#include <string>

// What the checker finds.
namespace VehicleFault {
inline constexpr int32_t InvalidVariable = 1;
inline constexpr int32_t InvalidValue = 2;   // no number
inline constexpr int32_t InvalidSyntax = 3;  // no "=", an empty line too
inline constexpr int32_t NonexistentSound = 4;
inline constexpr int32_t SteeringFactorOutOfRange = -1;
inline constexpr int32_t HasWipersOutOfRange = -2;
// The file, or a number that does not fit 32 bits.
inline constexpr int32_t Unreadable = -3;
}  // namespace VehicleFault

// Checks a vehicle file line by line, in bounded memory. Changes nothing on disk.
//   path     full path of the file. Sounds are looked for in the folder before its last backslash.
//   code     0 on entry; set to a VehicleFault if there is one.
//   message  set to what to tell the user, of success too, in the user's language.
// Returns 0 if there is no fault, the number of the faulty line (the first is 1), or -1 with
// Unreadable, which the message calls a missing file whatever the reason. Never throws.
//
// Variables that are missing, occur twice or stand in another order are no fault. What follows a
// second "=" in a line is ignored. An empty sound name stands for the folder itself, which exists.
// The internal sounds car5 and car6 are taken for file names here. Of a line that is longer than
// any of a vehicle, a message quotes as much as ShortLine keeps.
int32_t CheckVehicleFile(const std::string& path, int32_t& code, std::string& message);
