#include "platform/LocalTime.h"

#include "machine/win32/System.h"

namespace Platform {

namespace {

// The calls take milliseconds; what lies below them is no matter of time zones.
constexpr uint64_t Millisecond = 10'000;

using Convert = BOOL (*)(const SYSTEMTIME& from, SYSTEMTIME& to);

uint64_t Converted(uint64_t time, Convert convert) {
  FILETIME native{static_cast<DWORD>(time), static_cast<DWORD>(time >> 32)};
  SYSTEMTIME from;
  SYSTEMTIME to;
  if (!FileTimeToSystemTime(&native, &from) || !convert(from, to) ||
      !SystemTimeToFileTime(&to, &native)) {
    return time;
  }
  const uint64_t whole = uint64_t{native.dwHighDateTime} << 32 | native.dwLowDateTime;
  return whole + time % Millisecond;
}

}  // namespace

uint64_t ToLocalTime(uint64_t moment) {
  return Converted(moment, [](const SYSTEMTIME& from, SYSTEMTIME& to) {
    return SystemTimeToTzSpecificLocalTime(nullptr, &from, &to);
  });
}

uint64_t FromLocalTime(uint64_t shown) {
  return Converted(shown, [](const SYSTEMTIME& from, SYSTEMTIME& to) {
    return TzSpecificLocalTimeToSystemTime(nullptr, &from, &to);
  });
}

}  // namespace Platform
