#include "platform/Clock.h"

#include <time.h>

namespace Platform {

namespace {

constexpr double NanosecondsASecond = 1e9;

}  // namespace

double SecondsSinceMidnight() {
  timespec now;
  clock_gettime(CLOCK_REALTIME, &now);
  tm parts;
  localtime_r(&now.tv_sec, &parts);
  // A leap second does not lengthen the day.
  const int seconds = parts.tm_sec < 60 ? parts.tm_sec : 59;
  return parts.tm_hour * 3600 + parts.tm_min * 60 + seconds +
         static_cast<double>(now.tv_nsec) / NanosecondsASecond;
}

double SteadySeconds() {
  timespec now;
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / NanosecondsASecond;
}

}  // namespace Platform
