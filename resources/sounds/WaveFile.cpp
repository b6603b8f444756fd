#include "WaveFile.h"

#include <algorithm>
#include <cstdint>

#include "Exact.h"

namespace {

// The lowest byte first, as a WAV file has all its numbers.
void Put(std::string& bytes, uint32_t number, int count) {
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

}  // namespace

std::string WaveFileOf(const Samples& samples) {
  constexpr uint32_t SampleBytes = 2;
  const auto size = static_cast<uint32_t>(samples.size() * SampleBytes);
  std::string bytes = "RIFF";
  Put(bytes, 36 + size, 4);
  bytes += "WAVEfmt ";
  Put(bytes, 16, 4);
  Put(bytes, 1, 2);  // PCM
  Put(bytes, 1, 2);  // channels
  Put(bytes, Rate, 4);
  Put(bytes, Rate * SampleBytes, 4);
  Put(bytes, SampleBytes, 2);
  Put(bytes, 8 * SampleBytes, 2);
  bytes += "data";
  Put(bytes, size, 4);
  for (const double sample : samples) {
    const double value = std::clamp(sample * 32768, -32768.0, 32767.0);
    Put(bytes, static_cast<uint32_t>(Exact::Floor(value + 0.5)), SampleBytes);
  }
  return bytes;
}
