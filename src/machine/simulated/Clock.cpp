#include "machine/simulated/Clock.h"

#include <cmath>

#include "machine/simulated/Machine.h"
#include "platform/Clock.h"

namespace Simulated {

void Clock::Pass(double seconds) {
  constexpr double SecondsPerDay = 24 * 60 * 60;
  steady_ += seconds;
  seconds_ += seconds;
  if (seconds_ >= SecondsPerDay) seconds_ = std::fmod(seconds_, SecondsPerDay);
}

int64_t Clock::milliseconds() const {
  return std::llround(steady_ * 1000);
}

double Clock::Look() {
  const double now = seconds_;
  Pass(tick_);
  return now;
}

}  // namespace Simulated

namespace Platform {

double SecondsSinceMidnight() {
  return Simulated::TheMachine().clock.Look();
}

double SteadySeconds() {
  return Simulated::TheMachine().clock.Steady();
}

}  // namespace Platform
