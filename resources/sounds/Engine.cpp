#include "Engine.h"

#include "Exact.h"

namespace {

using Exact::Exp;
using Exact::Fraction;
using Exact::Noise;

// When the valves move, in cycles after the cylinder fires.
constexpr double ExhaustOpens = 130.0 / 720;
constexpr double ExhaustCloses = 370.0 / 720;
constexpr double IntakeOpens = 350.0 / 720;
constexpr double IntakeCloses = 590.0 / 720;

// Seconds in which a blow on metal is over, and in which an explosion has spent its edge.
constexpr double ValveBlow = 0.0006;
constexpr double KnockBlow = 0.0011;

// The seeds of the noises. Each cylinder and pipe has its own of a kind.
constexpr uint32_t FiringSeed = 100;
constexpr uint32_t StreamSeed = 200;
constexpr uint32_t BreathSeed = 300;
constexpr uint32_t ValveSeed = 400;
constexpr uint32_t KnockSeed = 500;

// From 0 to 1 and back while a value goes from one place to another.
double Hump(double from, double to, double value) {
  if (value <= from || value >= to) return 0;
  const double sine = Exact::Sine((value - from) / (to - from) / 2);
  return sine * sine;
}

// What a cylinder adds to each part at a moment.
class CylinderAtWork {
 public:
  CylinderAtWork(const Cylinder& cylinder, uint32_t number, const Running& running,
                 int cyclesInLoop)
      : cylinder_(cylinder), number_(number), running_(running), cyclesInLoop_(cyclesInLoop) {}

  void Go(const Motion::Moment& now) {
    now_ = &now;
    cycles_ = now.cycles - cylinder_.angle / 720;
  }

  double IntoPipe() const {
    const double opened = Since(ExhaustOpens) - cylinder_.seconds;
    if (opened <= 0) return 0;
    // Pressure rises and falls off in about the same time at any speed.
    const double x = opened / running_.pulse;
    const double burst = now_->firing * Strength(ExhaustOpens) * x * x * Exp(2 - 2 * x);
    const double pushed = running_.push * Hump(ExhaustOpens, ExhaustCloses, Fraction(cycles_));
    const double stream = burst + pushed * (0.3 + 0.7 * now_->firing);
    return cylinder_.strength * stream *
           (1 + running_.turbulence *
                    Noise(StreamSeed + static_cast<uint32_t>(cylinder_.pipe), now_->noise));
  }

  double Breath() const {
    const double stream = Hump(IntakeOpens, IntakeCloses, Fraction(cycles_));
    return cylinder_.strength * stream * (1 + 0.8 * Noise(BreathSeed, now_->noise));
  }

  double Ticks() const {
    return Blow(ValveSeed, ExhaustCloses, ValveBlow) +
           0.7 * Blow(ValveSeed + 20, IntakeCloses, ValveBlow);
  }

  double Explosion() const { return now_->firing * Strength(0) * Blow(KnockSeed, 0, KnockBlow); }

 private:
  // Seconds since the cylinder was last at a place of its cycle.
  double Since(double place) const { return Fraction(cycles_ - place) / now_->speed; }

  // How strong the firing is that is at a place of its cycle.
  double Strength(double place) const {
    return 1 + running_.uneven * Noise(FiringSeed + number_, CycleAt(place));
  }

  // A short noise, which differs from cylinder to cylinder and from cycle to cycle.
  double Blow(uint32_t seed, double place, double seconds) const {
    const double since = Since(place);
    if (since > 12 * seconds) return 0;
    const double strength =
        1 + 0.25 * Noise(seed, number_) + 0.25 * Noise(seed + 40 + number_, CycleAt(place));
    return strength * Exp(-since / seconds) * Noise(seed, now_->noise);
  }

  uint32_t CycleAt(double place) const {
    const int64_t cycle = Exact::Floor(cycles_ - place) % cyclesInLoop_;
    return static_cast<uint32_t>(cycle < 0 ? cycle + cyclesInLoop_ : cycle);
  }

  const Cylinder& cylinder_;
  uint32_t number_;
  const Running& running_;
  int cyclesInLoop_;
  const Motion::Moment* now_ = nullptr;
  double cycles_ = 0;  // of this cylinder
};

}  // namespace

EngineParts Run(const Vehicle& vehicle, const Running& running, const Motion& motion) {
  std::vector<CylinderAtWork> cylinders;
  for (const Cylinder& each : vehicle.cylinders) {
    cylinders.emplace_back(each, static_cast<uint32_t>(cylinders.size()), running,
                           motion.cyclesInLoop);
  }
  std::vector<Pipe> pipes(vehicle.pipes.begin(), vehicle.pipes.end());
  LowPass muffler1(vehicle.muffler);
  LowPass muffler2(vehicle.muffler);
  HighPass mouth(vehicle.mouth);
  Body exhaust(vehicle.exhaust);
  Body intake(vehicle.intake);
  Body valves(vehicle.valves);
  Body block(vehicle.block);

  EngineParts parts;
  Samples intoPipes(pipes.size());
  for (const Motion::Moment& now : motion.moments) {
    double breath = 0;
    double ticks = 0;
    double explosions = 0;
    intoPipes.assign(pipes.size(), 0);
    if (now.speed > 0) {
      for (size_t i = 0; i < cylinders.size(); ++i) {
        cylinders[i].Go(now);
        intoPipes[vehicle.cylinders[i].pipe] += cylinders[i].IntoPipe();
        breath += cylinders[i].Breath();
        ticks += cylinders[i].Ticks();
        explosions += cylinders[i].Explosion();
      }
    }
    double tail = 0;
    for (size_t i = 0; i < pipes.size(); ++i) {
      tail += vehicle.pipes[i].level * pipes[i](intoPipes[i]);
    }
    const double muffled = muffler2(muffler1(tail));
    parts[Exhaust].push_back(mouth(muffled + exhaust(tail)));
    parts[Intake].push_back(intake(breath));
    parts[Valves].push_back(valves(ticks));
    parts[Knock].push_back(block(explosions));
    double notes = 0;
    for (const Whine& each : vehicle.whines) {
      notes += each.level * Exact::Sine(Fraction(now.cycles * each.perCycle));
    }
    parts[Whines].push_back(now.speed > 0 ? notes : 0);
  }
  return parts;
}
