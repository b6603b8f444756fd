// The clock of the simulated machine. It stands still until told otherwise, or until the user
// waits.
#pragma once

#include <cstdint>

namespace Simulated {

class Clock {
 public:
  // Sets the time of day, in seconds since midnight.
  void Set(double seconds) { seconds_ = seconds; }
  // Moves the clock on by so much each time the program has looked at it.
  void TickPerCall(double seconds) { tick_ = seconds; }

  // Lets time go by. Timers tick only if the user waits: see User::Waits.
  void Pass(double seconds);
  // How much time has gone by since the machine was made.
  int64_t milliseconds() const;

  // For the service: the time of day, after which the clock ticks; and the time that only goes on.
  double Look();
  double Steady() const { return steady_; }

 private:
  double seconds_ = 12 * 60 * 60;
  double tick_ = 0;
  double steady_ = 0;
};

}  // namespace Simulated
