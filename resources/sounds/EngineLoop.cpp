#include "Engine.h"
#include "Exact.h"

namespace {

// The gain that brings a part to a level beside the exhaust. A part that is not there stays away.
double GainOf(const Samples& part, double decibels) {
  const double loudness = Loudness(part);
  return loudness > 0 ? Exact::Decibels(decibels) / loudness : 0;
}

// The half of a sound that the loop is: the half before it has brought pipes and bodies to where
// they are each time round.
Samples SecondHalf(const Samples& samples) {
  return {samples.begin() + static_cast<ptrdiff_t>(samples.size() / 2), samples.end()};
}

}  // namespace

EngineLoop::EngineLoop(const Vehicle& vehicle, const Running& running)
    : vehicle_(vehicle),
      running_(running),
      length_(Exact::Floor(running.cycles * 120 / running.rpm * Rate + 0.5)) {
  Motion twice{{}, running.cycles};
  for (int64_t i = -length_; i < length_; ++i) twice.moments.push_back(At(i));
  const EngineParts parts = Run(vehicle, running, twice);
  const double levels[EnginePartCount] = {0, running.intake, running.valves, running.knock,
                                          running.whine};
  for (size_t i = 0; i < EnginePartCount; ++i) gains_[i] = GainOf(SecondHalf(parts[i]), levels[i]);
  const Samples mix = Mix(parts);
  pressure_ = running.drive / Loudness(SecondHalf(mix));
  const Samples finished = SecondHalf(Finish(mix));
  volume_ = Exact::Decibels(running.level) / Loudness(finished);
  start_ = static_cast<int64_t>(QuietPlace(finished));
  for (int64_t i = 0; i < length_; ++i) {
    samples_.push_back(volume_ * finished[static_cast<size_t>((i + start_) % length_)]);
  }
}

Motion::Moment EngineLoop::At(int64_t sample) const {
  int64_t place = (sample + start_) % length_;
  if (place < 0) place += length_;
  const int64_t rounds = (sample + start_ - place) / length_;
  const double turn = static_cast<double>(place) / static_cast<double>(length_);
  // The speed swings a few times in a loop, each time differently.
  struct Swing {
    int times;
    double share;
    double from;
  };
  constexpr Swing Swings[] = {{1, 0.5, 0.1}, {2, 0.3, 0.45}, {3, 0.35, 0.8}, {5, 0.25, 0.3}};
  const double perLoop = running_.cycles;
  double cycles = turn;
  double speed = 1;
  for (const Swing& each : Swings) {
    const double swing = running_.wander * each.share;
    cycles += swing / (6.283185307179586 * each.times) * Exact::Sine(each.times * turn + each.from);
    speed += swing * Exact::Cosine(each.times * turn + each.from);
  }
  const double seconds = static_cast<double>(length_) / Rate;
  return {(static_cast<double>(rounds) + cycles) * perLoop, speed * perLoop / seconds, 1,
          static_cast<uint32_t>(place)};
}

Samples EngineLoop::Play(const Motion& motion, const Samples& beside, double level) const {
  Samples mix = Mix(Run(vehicle_, running_, motion));
  Add(mix, beside, GainOf(beside, level) * running_.drive / pressure_);
  mix = Finish(mix);
  for (double& sample : mix) sample *= volume_;
  return mix;
}

Samples EngineLoop::Mix(const EngineParts& parts) const {
  Samples mix(parts[Exhaust].size());
  for (size_t i = 0; i < EnginePartCount; ++i) Add(mix, parts[i], gains_[i]);
  return mix;
}

// Loud moments are rounded off, as an ear and a loudspeaker do; nothing gets beyond -1 and 1. What
// that has moved away from 0 is brought back.
Samples EngineLoop::Finish(const Samples& mix) const {
  HighPass middle(15);
  Samples finished;
  for (const double sample : mix) {
    const double pressed = pressure_ * sample;
    finished.push_back(middle(pressed / Exact::Root(1 + pressed * pressed)));
  }
  return finished;
}
