// Finds the faults in a track file.
#pragma once

#include <cstdint>
#include <string>

#include "base/Fault.h"

namespace Platform {
class FileLines;
}

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

struct TrackSummary {
  int64_t lines = 0;    // all that were read
  std::string message;  // what to tell of a track without a fault, in the user's language
};

// Tells each fault of a track, line by line, in bounded memory, until the taker wants no more.
// Behind a fault it goes on with the line that follows, as if the faulty one had been right; only
// behind a text in place of a part or of the end nothing more is told. There a number or a text
// that cannot be converted is told as Unreadable, with the cause as its message. Fails as reading
// the lines does.
TrackSummary FindTrackFaults(Platform::FileLines& lines, const FaultTaker& take);

// The first of them, as the pack tells it. Changes nothing on disk.
//   path     full path of the file.
//   code     set to 0 or to a TrackFault.
//   message  set to what to tell the user, of success too, in the user's language.
// Returns 0 if there is no fault, the number of lines read up to the fault and with it, or -1 with
// Unreadable, which the message calls a missing file whatever the reason. Never throws.
//
// An empty file has the fault NoEnd after no lines, so that 0 is returned with its message. A file
// may end behind the end marker. Lines behind the weather are counted and not looked at.
int32_t CheckTrackFile(const std::string& path, int32_t& code, std::string& message);
