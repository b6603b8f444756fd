#include "platform/Clock.h"

#include "platform/win32/System.h"

namespace Platform {

double SecondsSinceMidnight() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return now.wHour * 3600 + now.wMinute * 60 + now.wSecond + now.wMilliseconds / 1000.0;
}

}  // namespace Platform
