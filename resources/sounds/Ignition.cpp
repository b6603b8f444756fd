#include "Ignition.h"

#include "Exact.h"

namespace {

constexpr double Engages = 0.05;  // seconds; the relay has thrown the starter's gear into the ring
constexpr double SpinsUp = 0.12;  // seconds that the starter takes
constexpr uint32_t BrushSeed = 700;
constexpr uint32_t RelaySeed = 701;

double SecondsAt(size_t sample) {
  return static_cast<double>(sample) / Rate;
}

// Compression and expansion in turn, from 1 to -1, as the crankshaft meets them.
double Compression(const Vehicle& vehicle, double cycles) {
  return Exact::Cosine(Exact::Fraction(cycles * static_cast<double>(vehicle.cylinders.size())));
}

// The engine from standing still to where the loop goes on.
Motion MotionOf(const Vehicle& vehicle, const Starting& starting, const EngineLoop& idle) {
  const int64_t length = Exact::Floor(starting.ends * Rate);
  Motion motion{{}, vehicle.idle.cycles};
  for (int64_t i = 0; i < length; ++i) motion.moments.push_back(idle.At(i - length));
  // Backwards, because it is the end that is fixed: the crankshaft may begin anywhere.
  for (size_t i = motion.moments.size() - 1; i-- > 0;) {
    const double t = SecondsAt(i);
    if (t >= starting.settles) continue;
    const double cycles = motion.moments[i + 1].cycles;
    const double rises = Exact::Smooth(starting.catches, starting.flares, t);
    const double falls = Exact::Smooth(starting.flares, starting.settles, t);
    const double turned = starting.crank * Exact::Smooth(Engages, Engages + SpinsUp, t) *
                          (1 - starting.ripple * Compression(vehicle, cycles));
    Motion::Moment& moment = motion.moments[i];
    moment.speed *= turned + (starting.flare - turned) * rises + (1 - starting.flare) * falls;
    moment.cycles = cycles - moment.speed / Rate;
    // What is only compressed comes out with a push as well. The first firings burn what the
    // starter has drawn in, and more once the throttle opens.
    moment.firing = t < starting.catches ? 0.35 : 0.7 + 0.6 * rises - 0.3 * falls;
  }
  return motion;
}

// The relay, and the starter until it has run down.
Samples StarterIn(const Motion& motion, const Vehicle& vehicle, const Starting& starting) {
  Body brushes({{1500, 900}, {3400, 1400, 0.7}});
  Body relay({{170, 60, 3}, {820, 150, 2}, {2300, 400, 1.5}});
  Samples samples;
  double note = 0;  // of the gear, in Hz
  double turns = 0;
  for (size_t i = 0; i < motion.moments.size(); ++i) {
    const Motion::Moment& now = motion.moments[i];
    const double t = SecondsAt(i);
    const bool isEngaged = t < starting.catches;
    // Once the engine runs by itself, the starter is thrown out and runs down.
    note = isEngaged ? 2 * starting.teeth * now.speed : note * (1 - 4.0 / Rate);
    turns += note / Rate;
    const double strain = isEngaged ? 1 + 0.6 * Compression(vehicle, now.cycles) : 0.6;
    const double loud = strain * Exact::Smooth(Engages, Engages + 0.03, t) *
                        (1 - Exact::Smooth(starting.catches + 0.02, starting.catches + 0.2, t));
    double gear = 0;
    constexpr double Overtones[] = {1, 0.55, 0.6, 0.3, 0.35, 0.15, 0.2};
    for (int n = 1; n <= 7; ++n) gear += Overtones[n - 1] * Exact::Sine(n * turns);
    const double motor =
        Exact::Sine(turns * starting.motor) + 0.4 * Exact::Sine(2 * turns * starting.motor);
    const double brushed = brushes(Exact::Noise(BrushSeed, now.noise) * (1.2 + Exact::Sine(turns)));
    const double struck = t < 0.01 ? 0 : Exact::Exp((0.01 - t) / 0.004);
    samples.push_back(loud * (gear + 0.5 * motor + 1.5 * brushed) +
                      relay(struck * Exact::Noise(RelaySeed, now.noise)));
  }
  return samples;
}

}  // namespace

Samples IgnitionOf(const Vehicle& vehicle, const EngineLoop& idle) {
  const Starting& starting = vehicle.starting.value();
  const Motion motion = MotionOf(vehicle, starting, idle);
  return idle.Play(motion, StarterIn(motion, vehicle, starting), starting.level);
}
