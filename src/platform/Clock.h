// The time of day, and how long something has taken.
#pragma once

namespace Platform {

// Seconds since midnight, local time, with their fraction. It moves on in ticks of the system's
// timer, some milliseconds each, and costs next to nothing to ask.
double SecondsSinceMidnight();

// Seconds since a moment before the program was started, with their fraction. It never goes back,
// whatever the user does to the time of day.
double SteadySeconds();

}  // namespace Platform
