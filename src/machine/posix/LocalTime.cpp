#include "platform/LocalTime.h"

#include <time.h>

namespace Platform {

namespace {

constexpr uint64_t Second = 10'000'000;
constexpr uint64_t SecondsTo1970 = 11'644'473'600;

// A moment that the calendar of Windows cannot tell either, nor this one in its years.
bool IsBeyond(uint64_t time) {
  return time / Second >= uint64_t{1} << 38 || time / Second < SecondsTo1970;
}

time_t ToNative(uint64_t time) {
  return static_cast<time_t>(time / Second - SecondsTo1970);
}

// With what the seconds leave of the other time.
uint64_t FromNative(time_t seconds, uint64_t other) {
  return (static_cast<uint64_t>(seconds) + SecondsTo1970) * Second + other % Second;
}

}  // namespace

uint64_t ToLocalTime(uint64_t moment) {
  if (IsBeyond(moment)) return moment;
  const time_t seconds = ToNative(moment);
  tm parts;
  if (!localtime_r(&seconds, &parts)) return moment;
  return FromNative(timegm(&parts), moment);
}

uint64_t FromLocalTime(uint64_t shown) {
  if (IsBeyond(shown)) return shown;
  const time_t seconds = ToNative(shown);
  tm parts;
  if (!gmtime_r(&seconds, &parts)) return shown;
  parts.tm_isdst = -1;  // as the zone has it at that date
  return FromNative(mktime(&parts), shown);
}

}  // namespace Platform
