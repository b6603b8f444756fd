#include "tests/resources/SoundAnalysis.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <numbers>

#include "e2e/driver/Fourier.h"

namespace Analysis {
namespace {

constexpr double Pi = std::numbers::pi;

uint32_t NumberAt(const std::string& bytes, size_t place, int count) {
  uint32_t number = 0;
  for (int i = count - 1; i >= 0; --i) {
    number = number << 8 | static_cast<unsigned char>(bytes[place + static_cast<size_t>(i)]);
  }
  return number;
}

double Decibels(double power) {
  return 10 * std::log10(power + 1e-30);
}

// The value that a share of the values stay below.
double Quantile(std::vector<double> values, double share) {
  const auto place = static_cast<ptrdiff_t>(share * static_cast<double>(values.size() - 1));
  std::nth_element(values.begin(), values.begin() + place, values.end());
  return values[static_cast<size_t>(place)];
}

double BendOf(double before, double at, double after) {
  return std::abs(before - 2 * at + after);
}

}  // namespace

WaveFile Read(const std::string& bytes) {
  WaveFile file;
  const auto faulty = [&file](const char* fault) {
    file.fault = fault;
    return file;
  };
  if (bytes.size() < 12 || bytes.substr(0, 4) != "RIFF" || bytes.substr(8, 4) != "WAVE") {
    return faulty("no RIFF file of the form WAVE");
  }
  if (NumberAt(bytes, 4, 4) != bytes.size() - 8) return faulty("the size is not that of the file");
  size_t place = 12;
  bool hasData = false;
  while (place < bytes.size()) {
    if (bytes.size() - place < 8) return faulty("something behind the last chunk");
    const std::string id = bytes.substr(place, 4);
    const size_t size = NumberAt(bytes, place + 4, 4);
    place += 8;
    if (size > bytes.size() - place) return faulty("a chunk that is longer than the file");
    if (id == "fmt ") {
      if (size != 16) return faulty("a format of an unusual size");
      if (NumberAt(bytes, place, 2) != 1) return faulty("not PCM");
      file.channels = static_cast<int>(NumberAt(bytes, place + 2, 2));
      file.rate = static_cast<int>(NumberAt(bytes, place + 4, 4));
      file.bits = static_cast<int>(NumberAt(bytes, place + 14, 2));
      const int block = file.channels * file.bits / 8;
      if (NumberAt(bytes, place + 8, 4) != static_cast<uint32_t>(file.rate * block) ||
          NumberAt(bytes, place + 12, 2) != static_cast<uint32_t>(block)) {
        return faulty("a format that contradicts itself");
      }
    } else if (id == "data") {
      if (file.rate == 0) return faulty("data before the format");
      if (size % 2 != 0) return faulty("half a sample");
      hasData = true;
      for (size_t i = place; i < place + size; i += 2) {
        file.samples.push_back(static_cast<int16_t>(NumberAt(bytes, i, 2)) / 32768.0);
      }
    }
    place += size + size % 2;
  }
  if (!hasData || file.samples.empty()) return faulty("no samples");
  return file;
}

double LevelOf(const Samples& samples) {
  double sum = 0;
  for (const double sample : samples) sum += sample * sample;
  return Decibels(sum / static_cast<double>(samples.size()));
}

double PeakOf(const Samples& samples) {
  double peak = 0;
  for (const double sample : samples) peak = std::max(peak, std::abs(sample));
  return peak;
}

double OffsetOf(const Samples& samples) {
  double sum = 0;
  for (const double sample : samples) sum += sample;
  return sum / static_cast<double>(samples.size());
}

Samples Part(const Samples& samples, double fromSeconds, double seconds, int rate) {
  const auto from = static_cast<ptrdiff_t>(fromSeconds * rate);
  const auto begin = (from < 0 ? samples.end() : samples.begin()) + from;
  return {begin, begin + static_cast<ptrdiff_t>(seconds * rate)};
}

Spectrum SpectrumOf(const Samples& loop, int rate) {
  constexpr size_t Count = 32768;
  std::vector<std::complex<double>> values(Count);
  for (size_t i = 0; i < Count; ++i) {
    const double window = 0.5 - 0.5 * std::cos(2 * Pi * static_cast<double>(i) / Count);
    values[i] = window * loop[i % loop.size()];
  }
  Fourier::Transform(values);
  Spectrum spectrum{static_cast<double>(rate) / Count, {}};
  for (size_t i = 0; i < Count / 2; ++i) spectrum.powers.push_back(std::norm(values[i]));
  return spectrum;
}

double CentreOf(const Spectrum& spectrum) {
  double sum = 0;
  double weighted = 0;
  for (size_t i = 0; i < spectrum.powers.size(); ++i) {
    sum += spectrum.powers[i];
    weighted += spectrum.powers[i] * static_cast<double>(i);
  }
  return weighted / sum * spectrum.hertzPerLine;
}

std::vector<double> ThirdsOfOctaves(const Spectrum& spectrum) {
  const double third = std::cbrt(2.0);
  std::vector<double> bands;
  double all = 0;
  for (double low = 40; low < 8000; low *= third) {
    double sum = 0;
    const auto first = static_cast<size_t>(std::ceil(low / spectrum.hertzPerLine));
    const auto end = static_cast<size_t>(std::ceil(low * third / spectrum.hertzPerLine));
    for (size_t i = first; i < end; ++i) sum += spectrum.powers[i];
    bands.push_back(sum);
    all += sum;
  }
  for (double& band : bands) band = std::max(-60.0, Decibels(band / all));
  return bands;
}

double Distance(const Samples& one, const Samples& other, int rate) {
  const std::vector<double> bands1 = ThirdsOfOctaves(SpectrumOf(one, rate));
  const std::vector<double> bands2 = ThirdsOfOctaves(SpectrumOf(other, rate));
  double sum = 0;
  for (size_t i = 0; i < bands1.size(); ++i) {
    sum += (bands1[i] - bands2[i]) * (bands1[i] - bands2[i]);
  }
  return std::sqrt(sum / static_cast<double>(bands1.size()));
}

std::vector<double> TonesOf(const Spectrum& spectrum, double below) {
  const auto& powers = spectrum.powers;
  const auto lineOf = [&](double hertz) {
    return static_cast<size_t>(hertz / spectrum.hertzPerLine);
  };
  const size_t end = lineOf(below);
  const size_t beside = lineOf(15);
  const double strongest =
      *std::max_element(powers.begin(), powers.begin() + static_cast<ptrdiff_t>(end));
  std::vector<double> tones;
  for (size_t i = beside; i < end; ++i) {
    if (powers[i] < strongest / std::pow(10, 1.2)) continue;
    const auto around = powers.begin() + static_cast<ptrdiff_t>(i);
    const auto reach = static_cast<ptrdiff_t>(beside);
    if (*std::max_element(around - reach, around + reach + 1) > powers[i]) continue;
    const double hertz = static_cast<double>(i) * spectrum.hertzPerLine;
    const bool isOvertone = std::any_of(tones.begin(), tones.end(), [hertz](double tone) {
      return std::round(hertz / tone) >= 2 &&
             std::abs(hertz / tone - std::round(hertz / tone)) < 0.012 * std::round(hertz / tone);
    });
    if (!isOvertone) tones.push_back(hertz);
  }
  return tones;
}

Joint JointOf(const Samples& first, const Samples& second) {
  std::vector<double> steps;
  std::vector<double> bends;
  for (size_t i = 1; i + 1 < second.size(); ++i) {
    steps.push_back(std::abs(second[i] - second[i - 1]));
    bends.push_back(BendOf(second[i - 1], second[i], second[i + 1]));
  }
  const size_t last = first.size() - 1;
  return {std::abs(second[0] - first[last]), Quantile(steps, 0.5),
          std::max(BendOf(first[last - 1], first[last], second[0]),
                   BendOf(first[last], second[0], second[1])),
          Quantile(bends, 0.99)};
}

}  // namespace Analysis
