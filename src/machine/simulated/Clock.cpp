#include "machine/simulated/Clock.h"

#include <cmath>

#include "machine/simulated/Machine.h"
#include "platform/Clock.h"

namespace Simulated {

double Clock::Look() {
  constexpr double SecondsPerDay = 24 * 60 * 60;
  const double now = seconds_;
  seconds_ += tick_;
  if (seconds_ >= SecondsPerDay) seconds_ = std::fmod(seconds_, SecondsPerDay);
  return now;
}

}  // namespace Simulated

namespace Platform {

double SecondsSinceMidnight() {
  return Simulated::TheMachine().clock.Look();
}

}  // namespace Platform
