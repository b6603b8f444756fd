// The times of files on the user's own clock, as archives keep them.
#pragma once

#include <cstdint>

namespace Platform {

// What clock and calendar of the user's time zone show at a moment, with the summer time of its own
// date, and the moment at which they show that. Both are steps of 100 nanoseconds since the year
// 1601, as FileStamp has them. A moment that the system cannot tell stays as it is.
uint64_t ToLocalTime(uint64_t moment);
uint64_t FromLocalTime(uint64_t shown);

}  // namespace Platform
