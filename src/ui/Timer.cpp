#include "ui/Timer.h"

#include <memory>

#include "platform/LongStep.h"
#include "ui/FormView.h"
#include "ui/Forms.h"
#include "ui/Stage.h"

namespace Platform {

Timer::Timer(Form& form, const Options& options) : form_(form), options_(options) {
  form_.timers_.push_back(this);
}

Timer::~Timer() {
  Stop();
  std::erase(form_.timers_, this);
}

void Timer::Start() {
  // Begun anew, so that the first tick is a whole interval away.
  Stop();
  if (!form_.view()) return;
  form_.view()->StartTimer(*this);
  isRunning_ = true;
}

void Timer::Stop() {
  if (isRunning_ && form_.view()) form_.view()->StopTimer(*this);
  isRunning_ = false;
}

bool Timer::MayTick() const {
  if (!isRunning_ || isTicking_) return false;
  if (!options_.ticksUnderBoxes) return TheStage().LetsIn(form_);
  return !TheStage().HasEnded() && !LongStep::IsRunning();
}

void Timer::Tick() {
  if (!OnTimer || !MayTick()) return;
  // The handler may be the end of the window, and with it of this timer.
  const std::weak_ptr<const void> life = form_.life();
  // A box that the handler shows runs a loop, in which the time is over again and again.
  isTicking_ = true;
  Dispatch(OnTimer);
  if (!life.expired()) isTicking_ = false;
}

}  // namespace Platform
