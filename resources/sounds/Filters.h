// What sound passes through on its way to the ear.
#pragma once

#include <cstddef>
#include <vector>

// Samples in a second, of every sound that is made here. It is that of the sounds of the game, so
// that an engine at a frequency of 22050 sounds as it was made.
inline constexpr int Rate = 22050;

// Sound, as values around 0.
using Samples = std::vector<double>;

// The mean loudness of a sound: the root of the mean square.
double Loudness(const Samples& samples);
// One sound on top of another of the same length.
void Add(Samples& sum, const Samples& part, double gain);
// The sample of a loop at which it is quietest, within its first tenth: there its beginning is not
// heard, nor its joint if there were one.
size_t QuietPlace(const Samples& loop);

// Lets through what is below a frequency.
class LowPass {
 public:
  explicit LowPass(double hertz);
  double operator()(double sample);

 private:
  double share_;
  double value_ = 0;
};

// Lets through what is above a frequency.
class HighPass {
 public:
  explicit HighPass(double hertz) : low_(hertz) {}
  double operator()(double sample) { return sample - low_(sample); }

 private:
  LowPass low_;
};

// A body that rings: what it does to its own frequency, and how far around that, in Hz. A narrow
// one rings for long. The level is that of its own frequency.
struct Resonance {
  double hertz;
  double width;
  double level = 1;
};

class Resonator {
 public:
  explicit Resonator(const Resonance& resonance);
  double operator()(double sample);

 private:
  double gain_;
  double back1_;
  double back2_;
  double in1_ = 0, in2_ = 0;
  double out1_ = 0, out2_ = 0;
};

// Several bodies side by side.
class Body {
 public:
  explicit Body(const std::vector<Resonance>& resonances);
  double operator()(double sample);

 private:
  std::vector<Resonator> resonators_;
};

// A pipe that is closed at the engine and open at its end: what comes back from there has changed
// its sign and lost its edge.
struct PipeShape {
  double seconds;     // there and back
  double reflection;  // the share that comes back, below 1
  double hertz;       // above this, less of it comes back
  double level = 1;   // how loud its end is heard
};

class Pipe {
 public:
  explicit Pipe(const PipeShape& shape);
  double operator()(double sample);

 private:
  double reflection_;
  LowPass edge_;
  Samples within_;
  size_t place_ = 0;
};
