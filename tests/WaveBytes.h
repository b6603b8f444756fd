// The bytes of wave files, whole and odd, for tests.
#pragma once

#include <cmath>
#include <cstdint>
#include <string>

#include "base/Wave.h"

namespace WaveBytes {

// A number of so many bytes, the low one first.
inline std::string Number(uint64_t number, int size) {
  std::string bytes;
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> (8 * i));
  return bytes;
}

// A chunk with its padding, or one that lies about its size.
inline std::string Chunk(const std::string& name, const std::string& body) {
  return name + Number(body.size(), 4) + body + std::string(body.size() % 2, '\0');
}
inline std::string LyingChunk(const std::string& name, uint32_t size, const std::string& body) {
  return name + Number(size, 4) + body;
}

inline std::string Riff(const std::string& chunks) {
  return "RIFF" + Number(4 + chunks.size(), 4) + "WAVE" + chunks;
}

// What a "fmt " chunk holds.
struct Format {
  int tag = 1;
  int channels = 1;
  uint32_t rate = 22'050;
  int bits = 16;
  int frameSize = -1;  // that which follows from the others

  std::string Bytes() const {
    const int size = frameSize >= 0 ? frameSize : channels * bits / 8;
    return Number(tag, 2) + Number(channels, 2) + Number(rate, 4) +
           Number(rate * static_cast<uint64_t>(size), 4) + Number(size, 2) + Number(bits, 2);
  }
};

// The same as an extensible format, whose GUID names the tag.
inline std::string Extensible(Format format) {
  const int tag = format.tag;
  format.tag = 0xFFFE;
  return format.Bytes() + Number(22, 2) + Number(format.bits, 2) + Number(4, 4) + Number(tag, 2) +
         std::string("\0\0\0\0\x10\0\x80\0\0\xAA\0\x38\x9B\x71", 14);
}

inline std::string File(const Format& format, const std::string& samples) {
  return Riff(Chunk("fmt ", format.Bytes()) + Chunk("data", samples));
}

inline std::string File(const Wave& wave) {
  return File({1, wave.channels, static_cast<uint32_t>(wave.rate), wave.bits}, wave.samples);
}

// A sine of 16 bits, mono, that can be looped if the seconds hold whole periods of it.
inline Wave Tone(double hertz, double seconds, int rate = 22'050, double loudness = 0.5) {
  constexpr double Pi = 3.14159265358979323846;
  Wave wave{1, 16, rate, ""};
  const int count = static_cast<int>(std::lround(seconds * rate));
  for (int i = 0; i < count; ++i) {
    const double sample = loudness * std::sin(2 * Pi * hertz * i / rate);
    wave.samples += Number(static_cast<uint16_t>(std::lround(32'767 * sample)), 2);
  }
  return wave;
}

}  // namespace WaveBytes
