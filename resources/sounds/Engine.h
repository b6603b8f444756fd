// The sound of a running engine, from what its cylinders do.
#pragma once

#include <array>
#include <cstdint>

#include "Vehicle.h"

// Where the crankshaft is at each sample, and what the engine does there.
struct Motion {
  // Of one sample. Noise is a function of its place, so that a loop can have the same noise each
  // time round.
  struct Moment {
    double cycles;   // since some beginning; the whole part counts cycles
    double speed;    // cycles in a second
    double firing;   // 1 while it idles, 0 if nothing is burnt
    uint32_t noise;  // the place of the noise
  };
  std::vector<Moment> moments;
  int cyclesInLoop;  // after that many, the cycles are the same again
};

// The parts of an engine's sound. They are made apart, so that their levels can be set.
enum EnginePart { Exhaust, Intake, Valves, Knock, Whines };
inline constexpr size_t EnginePartCount = 5;
using EngineParts = std::array<Samples, EnginePartCount>;

// The parts that can be heard while an engine goes through a motion. It stood still before.
EngineParts Run(const Vehicle& vehicle, const Running& running, const Motion& motion);

// An engine at one speed, as it is looped. It begins where it is quiet, so that neither its
// beginning nor its joint is heard.
class EngineLoop {
 public:
  EngineLoop(const Vehicle& vehicle, const Running& running);

  // Once round: the loop itself, from -1 to 1.
  const Samples& samples() const { return samples_; }
  // What the engine does at a sample of the loop, which may stand before its beginning or behind
  // its end.
  Motion::Moment At(int64_t sample) const;
  // The sound of the engine in another motion, as loud as it is in the loop, with something else
  // that is heard beside it at a level in decibels below that of the loop. It stood still before.
  Samples Play(const Motion& motion, const Samples& beside, double level) const;

 private:
  Samples Mix(const EngineParts& parts) const;
  Samples Finish(const Samples& mix) const;

  const Vehicle& vehicle_;
  const Running& running_;
  int64_t length_;
  int64_t start_ = 0;  // the sample of the motion at which the loop begins
  std::array<double, EnginePartCount> gains_{};
  double pressure_ = 1;  // of the mix on the ear
  double volume_ = 1;    // of what comes of it
  Samples samples_;
};
