#include "platform/simulated/Clock.h"

#include <cmath>

#include "platform/Clock.h"
#include "platform/simulated/Machine.h"

namespace Simulated {

double Clock::Look() {
  constexpr double SecondsPerDay = 24 * 60 * 60;
  const double now = seconds_;
  seconds_ = std::fmod(seconds_ + tick_, SecondsPerDay);
  return now;
}

}  // namespace Simulated

namespace Platform {

double SecondsSinceMidnight() {
  return Simulated::TheMachine().clock.Look();
}

}  // namespace Platform
