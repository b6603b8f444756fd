// The checker of the game's record file.
#pragma once

#include <cstdint>
#include <string>

#include "base/Fault.h"

namespace Platform {
class FileLines;
}

// What the checker finds.
namespace RecordFault {
inline constexpr int32_t InvalidFormat = 1;  // not exactly one "="
inline constexpr int32_t InvalidValue = 2;   // no number behind it
}  // namespace RecordFault

// Tells each fault of a record file, line by line, in bounded memory, until the taker wants no
// more. Fails as reading the lines does.
void FindRecordFaults(Platform::FileLines& lines, const FaultTaker& take);

// What CheckRecordFile returns when there are no lines to check.
inline constexpr int64_t MissingRecordFile = -1;
inline constexpr int64_t UnreadableRecordFile = -2;

// Checks that every line of a record file is "TrackName=TimeInMS": exactly one "=", and a number
// behind it. A blank line is a fault, although the viewer drops it: the game does not write any.
//   message   is set to the words for what was found, in the user's language.
// Returns the number of the first faulty line, counted from 1; 0 if there is none;
// MissingRecordFile; UnreadableRecordFile if the file is there but cannot be read. Never fails.
// Takes a file of any size in bounded memory.
int64_t CheckRecordFile(const std::string& path, std::string& message);
