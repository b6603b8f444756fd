// The time of day.
#pragma once

namespace Platform {

// Seconds since midnight, local time, with their fraction.
double SecondsSinceMidnight();

}  // namespace Platform
