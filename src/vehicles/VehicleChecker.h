// Finds the faults in a vehicle file.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "base/Fault.h"

namespace Platform {
class FileLines;
}

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

// Where a vehicle's sounds lie.
struct VehicleSounds {
  std::string folder;  // without a backslash at its end
  // Whether there is something of that path: the folder, a backslash and the name of a sound.
  std::function<bool(const std::string& path)> exists;
};
// On the disk, in the folder before the last backslash of the vehicle's path.
VehicleSounds SoundsBeside(const std::string& path);

// Tells each fault of a vehicle, line by line, in bounded memory, until the taker wants no more. A
// number that does not fit 32 bits is told as Unreadable, with the cause as its message. Returns
// the number of the lines that were read. Fails as reading the lines does.
int64_t FindVehicleFaults(Platform::FileLines& lines, const VehicleSounds& sounds,
                          const FaultTaker& take);

// The first of them, as the pack tells it. Changes nothing on disk.
//   path     full path of the file.
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
