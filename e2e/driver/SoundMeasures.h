// Measuring sounds: what is heard in them, by numbers.
#pragma once

#include <cstddef>
#include <vector>

namespace E2e {

// One channel of sound. Full scale is from -1 to 1.
struct Sound {
  int rate = 44'100;  // samples a second
  std::vector<float> samples;

  double Seconds() const { return static_cast<double>(samples.size()) / rate; }
};

// A part of a sound; what lies outside of it is left out.
Sound Part(const Sound& sound, double beginSeconds, double seconds);
// The sound without the silence before and behind it.
Sound WithoutSilenceAround(const Sound& sound);

// The root of the mean square: 1 for a square wave of full scale, 0.7 for a sine, 0 for silence.
double Rms(const Sound& sound);

// The furthest that the wave goes from the middle.
double Loudest(const Sound& sound);

// From where to where something reaches, in seconds from the sound's beginning.
struct Stretch {
  double begin;
  double end;
};
// Where nothing is heard for at least so long. What never is louder than this is silence: 60 dB
// below full scale.
inline constexpr double Silence = 0.001;
std::vector<Stretch> Silences(const Sound& sound, double leastSeconds);
// True if nothing is heard in all of it.
bool IsSilent(const Sound& sound);

// Where the wave breaks more sharply than it does anywhere else in the twentieth of a second before
// and after: where a loop does not fit together, or a block is missing. In seconds.
std::vector<double> Clicks(const Sound& sound);

// A peak of the spectrum.
struct Peak {
  double hertz;
  double level;  // 1 for the strongest
};
// The strongest peaks, the strongest first; none weaker than a hundredth of it. Those of a tone are
// right within a tenth of what one period in the whole sound would be; the sound should last some
// tenths of a second.
std::vector<Peak> Peaks(const Sound& sound, size_t count);
// The strongest of them; 0 for silence.
double DominantFrequency(const Sound& sound);

}  // namespace E2e
