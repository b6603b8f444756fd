#include "e2e/driver/SoundMeasures.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <complex>
#include <cstddef>
#include <numbers>

#include "e2e/driver/Fourier.h"

namespace E2e {
namespace {

using Spectrum = std::vector<std::complex<double>>;

// How strong each frequency is: the rate is divided among twice as many.
std::vector<double> Levels(const Sound& sound) {
  const size_t count = sound.samples.size();
  // Longer than the sound, so that a peak has a few neighbours on its slopes.
  Spectrum spectrum(std::bit_ceil(count) * 2);
  for (size_t i = 0; i < count; ++i) {
    const double window =
        0.5 - 0.5 * std::cos(2 * std::numbers::pi * (static_cast<double>(i) + 0.5) /
                             static_cast<double>(count));
    spectrum[i] = sound.samples[i] * window;
  }
  Fourier::Transform(spectrum);
  std::vector<double> levels(spectrum.size() / 2);
  for (size_t i = 0; i < levels.size(); ++i) levels[i] = std::abs(spectrum[i]);
  return levels;
}

bool IsHeard(float sample) {
  return std::abs(sample) > Silence;
}

}  // namespace

Sound Part(const Sound& sound, double beginSeconds, double seconds) {
  const auto position = [&sound](double at) {
    const double sample = std::round(at * sound.rate);
    return static_cast<std::ptrdiff_t>(
        std::clamp(sample, 0.0, static_cast<double>(sound.samples.size())));
  };
  return {sound.rate,
          {sound.samples.begin() + position(beginSeconds),
           sound.samples.begin() + position(beginSeconds + seconds)}};
}

Sound WithoutSilenceAround(const Sound& sound) {
  const auto begin = std::find_if(sound.samples.begin(), sound.samples.end(), IsHeard);
  const auto end = std::find_if(sound.samples.rbegin(), sound.samples.rend(), IsHeard).base();
  if (begin >= end) return {sound.rate, {}};
  return {sound.rate, {begin, end}};
}

double Rms(const Sound& sound) {
  if (sound.samples.empty()) return 0;
  double sum = 0;
  for (const float sample : sound.samples) sum += static_cast<double>(sample) * sample;
  return std::sqrt(sum / static_cast<double>(sound.samples.size()));
}

double Loudest(const Sound& sound) {
  float loudest = 0;
  for (const float sample : sound.samples) loudest = std::max(loudest, std::abs(sample));
  return loudest;
}

std::vector<Stretch> Silences(const Sound& sound, double leastSeconds) {
  std::vector<Stretch> silences;
  const size_t count = sound.samples.size();
  for (size_t begin = 0; begin < count;) {
    size_t end = begin;
    while (end < count && !IsHeard(sound.samples[end])) ++end;
    const double rate = sound.rate;
    const Stretch stretch{static_cast<double>(begin) / rate, static_cast<double>(end) / rate};
    if (end > begin && stretch.end - stretch.begin >= leastSeconds) silences.push_back(stretch);
    begin = end + 1;
  }
  return silences;
}

bool IsSilent(const Sound& sound) {
  return std::none_of(sound.samples.begin(), sound.samples.end(), IsHeard);
}

std::vector<double> Clicks(const Sound& sound) {
  constexpr double Sharper = 4;
  constexpr float Least = 0.01F;
  const auto count = static_cast<std::ptrdiff_t>(sound.samples.size());
  const std::ptrdiff_t reach = sound.rate / 20;
  const std::ptrdiff_t width = sound.rate / 500;  // of a click itself
  std::vector<float> bends(sound.samples.size());
  for (std::ptrdiff_t i = 2; i < count; ++i) {
    bends[i] = std::abs(sound.samples[i] - 2 * sound.samples[i - 1] + sound.samples[i - 2]);
  }
  const auto sharpest = [&](std::ptrdiff_t begin, std::ptrdiff_t end) {
    begin = std::clamp<std::ptrdiff_t>(begin, 0, count);
    end = std::clamp<std::ptrdiff_t>(end, begin, count);
    return begin == end ? 0 : *std::max_element(bends.begin() + begin, bends.begin() + end);
  };
  std::vector<double> clicks;
  for (std::ptrdiff_t i = 2; i < count; ++i) {
    if (bends[i] < Least) continue;
    const float around = std::max(sharpest(i - reach, i - width), sharpest(i + width, i + reach));
    if (bends[i] < Sharper * around) continue;
    clicks.push_back(static_cast<double>(i) / sound.rate);
    i += width;
  }
  return clicks;
}

std::vector<Peak> Peaks(const Sound& sound, size_t count) {
  if (IsSilent(sound)) return {};
  constexpr double Weakest = 0.01;
  const std::vector<double> levels = Levels(sound);
  const double hertzPerLevel =
      static_cast<double>(sound.rate) / 2 / static_cast<double>(levels.size());
  std::vector<Peak> peaks;
  for (size_t i = 1; i + 1 < levels.size(); ++i) {
    if (levels[i] <= levels[i - 1] || levels[i] < levels[i + 1]) continue;
    // The top of the curve through the three.
    const double below = std::log(levels[i - 1] + 1e-12);
    const double here = std::log(levels[i] + 1e-12);
    const double above = std::log(levels[i + 1] + 1e-12);
    const double bend = below - 2 * here + above;
    const double aside = bend < 0 ? 0.5 * (below - above) / bend : 0;
    peaks.push_back({(static_cast<double>(i) + aside) * hertzPerLevel, levels[i]});
  }
  std::sort(peaks.begin(), peaks.end(),
            [](const Peak& one, const Peak& other) { return one.level > other.level; });
  if (peaks.empty()) return {};
  const double strongest = peaks.front().level;
  for (Peak& peak : peaks) peak.level /= strongest;
  std::erase_if(peaks, [](const Peak& peak) { return peak.level < Weakest; });
  if (peaks.size() > count) peaks.resize(count);
  return peaks;
}

double DominantFrequency(const Sound& sound) {
  const std::vector<Peak> peaks = Peaks(sound, 1);
  return peaks.empty() ? 0 : peaks.front().hertz;
}

}  // namespace E2e
