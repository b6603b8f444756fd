#include "orec/Channels.h"

#include <cstdint>

namespace ORec {

namespace {

int SampleAt(std::string_view samples, size_t place) {
  const auto byte = [&](size_t i) { return static_cast<unsigned char>(samples[i]); };
  return static_cast<int16_t>(byte(place) | byte(place + 1) << 8);
}

std::string Doubled(std::string_view samples) {
  std::string doubled;
  doubled.reserve(samples.size() * 2);
  for (size_t i = 0; i + 2 <= samples.size(); i += 2) {
    doubled += samples.substr(i, 2);
    doubled += samples.substr(i, 2);
  }
  return doubled;
}

std::string Mixed(std::string_view samples) {
  std::string mixed;
  mixed.reserve(samples.size() / 2);
  for (size_t i = 0; i + 4 <= samples.size(); i += 4) {
    const int middle = (SampleAt(samples, i) + SampleAt(samples, i + 2)) / 2;
    mixed += static_cast<char>(middle);
    mixed += static_cast<char>(middle >> 8);
  }
  return mixed;
}

}  // namespace

std::string WithChannels(std::string_view samples, int from, int to) {
  if (from < to) return Doubled(samples);
  if (from > to) return Mixed(samples);
  const size_t frame = static_cast<size_t>(from) * 2;
  return std::string(samples.substr(0, samples.size() - samples.size() % frame));
}

}  // namespace ORec
