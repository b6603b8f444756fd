#include "HornSound.h"

#include <algorithm>

#include "Exact.h"

namespace {

constexpr uint32_t BreathSeed = 800;
constexpr double Highest = 9500;  // Hz; overtones above would come back as others

// How much the trumpet lifts an overtone.
double LiftOf(const std::vector<Resonance>& trumpet, double hertz) {
  double lift = 0;
  for (const Resonance& each : trumpet) {
    const double away = 2 * (hertz - each.hertz) / each.width;
    lift += each.level / (1 + away * away);
  }
  return lift;
}

void AddTone(Samples& samples, const Horn& horn, int hertz, double loud) {
  double falls = 1;
  for (int n = 1; n * hertz < Highest; ++n) {
    const double level = loud * falls * (1 + LiftOf(horn.trumpet, n * hertz));
    // In step with each other, overtones would make one peak; turned in pairs they do not.
    const double turned = n % 4 < 2 ? level : -level;
    for (size_t i = 0; i < samples.size(); ++i) {
      const auto steps = static_cast<int64_t>(i) * hertz * n % Rate;
      samples[i] += turned * Exact::Sine(static_cast<double>(steps) / Rate);
    }
    falls *= horn.fall;
  }
}

// Twice round, so that the second time the trumpet rings as it does each time.
Samples BreathOf(const Horn& horn) {
  Body trumpet(horn.trumpet);
  Samples samples;
  for (uint32_t i = 0; i < 2 * Rate; ++i) {
    const double breath = trumpet(Exact::Noise(BreathSeed, i % Rate));
    if (i >= Rate) samples.push_back(breath);
  }
  return samples;
}

}  // namespace

Samples SoundOf(const Horn& horn) {
  Samples samples(Rate);
  for (size_t i = 0; i < horn.tones.size(); ++i) {
    AddTone(samples, horn, horn.tones[i], 1);
    // A second diaphragm a little beside the first makes the tone live.
    AddTone(samples, horn, horn.tones[i] + static_cast<int>(i) + 1, 0.2);
  }
  const Samples breath = BreathOf(horn);
  Add(samples, breath, Exact::Decibels(horn.breath) * Loudness(samples) / Loudness(breath));
  const double volume = Exact::Decibels(horn.level) / Loudness(samples);
  for (double& sample : samples) sample *= volume;
  std::rotate(samples.begin(), samples.begin() + static_cast<ptrdiff_t>(QuietPlace(samples)),
              samples.end());
  return samples;
}
