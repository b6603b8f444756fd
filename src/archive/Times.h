// The times of files, as archives keep them and as FileStamp has them.
//
// A time is kept twice: in the old way, as the clock of the writer's time zone showed it, in steps
// of two seconds, which every program reads; and as seconds in UTC, which those read that know it.
// Where an archive has only the old one, it is taken to be of the user's own time zone.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace Archive {

// The old way: date and time in 16 bits each. What it cannot hold becomes the nearest that it can.
uint32_t DosTimeOf(uint64_t time);
// Nothing where the archive does not tell a time that there is.
std::optional<uint64_t> FromDosTime(uint32_t dosTime);

// Seconds since 1970, UTC; nothing where 31 bits cannot hold them.
std::optional<uint32_t> UnixTimeOf(uint64_t time);

// The time that an entry's extra fields tell; 0 if they tell none between 1980 and 2107.
uint64_t ExactTime(std::string_view extras);

}  // namespace Archive
