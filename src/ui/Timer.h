// A timer of a window: an event that comes again and again while it runs.
//
// Waiting for something to end, such as a sound, is a timer that looks whether it has ended. It is
// never a loop: the window would handle events in the middle of one of its own.
#pragma once

#include <functional>

namespace Platform {

class Form;

class Timer {
 public:
  struct Options {
    int milliseconds;  // from Start to the first tick, and from each tick to the next
    // By itself a timer is silent while a box, a dialog or a modal window stands over its window.
    bool ticksUnderBoxes = false;
  };
  Timer(Form& form, const Options& options);
  ~Timer();
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;

  int milliseconds() const { return options_.milliseconds; }
  bool IsRunning() const { return isRunning_; }

  // Runs from now on, also if it ran already. Does nothing while the window is not loaded. Fails
  // with DeviceError if the system has no room for another timer; it then does not run.
  void Start();
  // No tick comes any more. Unloading the window stops its timers.
  void Stop();

  // The time is over. A tick that falls into a long step, into its own handler, or under a box is
  // not lost: it comes, once, as soon as it can. Ticks are a little late now and then, so what
  // matters is measured, not counted.
  std::function<void()> OnTimer;

  // For the view, when the time is over: whether the tick can be heard now, and the tick.
  bool MayTick() const;
  void Tick();

 private:
  friend class Form;

  Form& form_;
  Options options_;
  bool isRunning_ = false;
  bool isTicking_ = false;
};

}  // namespace Platform
