#include "platform/Clock.h"

#include "machine/win32/System.h"

namespace Platform {

double SecondsSinceMidnight() {
  // Random numbers ask for the time at every draw, and the local time is slow to come by. Between
  // two ticks of the system's timer it is not asked for again.
  static ULONGLONG lastTick = 0;
  static double seconds = 0;
  const ULONGLONG tick = GetTickCount64();
  if (tick != lastTick) {
    SYSTEMTIME now;
    GetLocalTime(&now);
    seconds = now.wHour * 3600 + now.wMinute * 60 + now.wSecond + now.wMilliseconds / 1000.0;
    lastTick = tick;
  }
  return seconds;
}

double SteadySeconds() {
  return static_cast<double>(GetTickCount64()) / 1000;
}

}  // namespace Platform
