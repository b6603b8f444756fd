// How a time in milliseconds divides into hours, minutes and seconds.
#pragma once

#include <cstdint>

struct TimeParts {
  int32_t hours;
  int32_t minutes;
  int32_t milliseconds;  // the seconds and their fraction
  bool operator==(const TimeParts&) const = default;
};

// Divides a time, which may have any value.
//
// Minutes and hours come out of two roundings, halves to even, and of two corrections: one minute
// less from 30 seconds on, then one hour less from 30 minutes on. They undo a rounding up without
// asking whether there was one. Where a half was rounded down to an even number, a minute or an
// hour is therefore missing: 150000 gives 1 minute and 30 seconds. And where the minutes were
// rounded up to a whole hour, the hour stays and the minutes are -1: 3585000 gives 1 hour, -1
// minute and 45 seconds. Times have always been shown like this, and are kept so.
//
// A negative time is divided as doubles are: a quotient is rounded like that of the positive time,
// and a remainder has the sign of what was divided (-61000 gives -1 minute and -1000 milliseconds).
TimeParts Divide(int32_t milliseconds);
