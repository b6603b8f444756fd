#include "records/TimeParts.h"

#include <cstdlib>

namespace {

// All in whole milliseconds: quotients of doubles would show the dust of the binary system.
constexpr int32_t Minute = 60000;
constexpr int32_t MinutesPerHour = 60;

// The nearest whole quotient by a positive, even divisor, halves to even.
int32_t RoundedQuotient(int32_t dividend, int32_t divisor) {
  const int32_t quotient = dividend / divisor;
  const int32_t beyondHalf = std::abs(dividend % divisor) - divisor / 2;
  const bool isRoundedAway = beyondHalf > 0 || (beyondHalf == 0 && quotient % 2 != 0);
  if (!isRoundedAway) return quotient;
  return dividend < 0 ? quotient - 1 : quotient + 1;
}

}  // namespace

TimeParts Divide(int32_t milliseconds) {
  const int32_t totalMinutes = RoundedQuotient(milliseconds, Minute);
  TimeParts parts{.hours = RoundedQuotient(totalMinutes, MinutesPerHour),
                  .minutes = totalMinutes % MinutesPerHour,
                  .milliseconds = milliseconds % Minute};
  // They undo a rounding up without asking whether there was one: see the header.
  if (parts.milliseconds >= Minute / 2) --parts.minutes;
  if (parts.minutes >= MinutesPerHour / 2) --parts.hours;
  return parts;
}
