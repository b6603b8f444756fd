// Finds the first fault in a track file.
#pragma once

#include <cstdint>
#include <string>

// What the checker finds.
namespace TrackFault {
inline constexpr int32_t CurveNotNumeric = 1;
inline constexpr int32_t SurfaceNotNumeric = 2;
inline constexpr int32_t LengthNotNumeric = 3;
inline constexpr int32_t NoEnd = 4;
inline constexpr int32_t CurveOutOfRange = -1;
inline constexpr int32_t SurfaceOutOfRange = -2;
inline constexpr int32_t LengthTooLow = -3;
inline constexpr int32_t WeatherOutOfRange = -4;
// The file, a number that does not fit 32 bits, or a text where a later part or the weather may
// begin.
inline constexpr int32_t Unreadable = -5;
}  // namespace TrackFault

// Checks a track file line by line, in bounded memory. Changes nothing on disk.
//   path     full path of the file.
//   code     set to 0 or to a TrackFault.
//   message  set to what to tell the user, of success too, in the user's language.
// Returns 0 if there is no fault, the number of lines read up to the fault and with it, or -1 with
// Unreadable, which the message calls a missing file whatever the reason. Never throws.
//
// An empty file has the fault NoEnd after no lines, so that 0 is returned with its message. A file
// may end behind the end marker. Lines behind the weather are counted and not looked at.
int32_t CheckTrackFile(const std::string& path, int32_t& code, std::string& message);
