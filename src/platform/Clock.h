// The time of day.
#pragma once

namespace Platform {

// Seconds since midnight, local time, with their fraction. It moves on in ticks of the system's
// timer, some milliseconds each, and costs next to nothing to ask.
double SecondsSinceMidnight();

}  // namespace Platform
