// Sounds: what a wave file holds, read from its bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// A sound in memory. A frame is one sample of each channel.
struct Wave {
  int channels = 1;   // 1 or 2
  int bits = 16;      // of a sample: 8, 16, 24 or 32
  int rate = 44'100;  // frames a second
  // Frame by frame, left before right; the low byte of a sample first. Samples of 8 bits count from
  // 0 with silence at 128, wider ones are signed. Whole frames only.
  std::string samples;

  size_t FrameSize() const { return static_cast<size_t>(channels) * bits / 8; }
  size_t Frames() const { return samples.size() / FrameSize(); }
  // How long it lasts when played at its own rate.
  double Seconds() const { return static_cast<double>(Frames()) / rate; }
};

// The rates that a sound can have, and be played at: those of DirectSound.
inline constexpr int LowestRate = 100;
inline constexpr int HighestRate = 200'000;

// Reads a wave file: PCM of 8, 16, 24 or 32 bits, mono or stereo, also as WAVE_FORMAT_EXTENSIBLE.
// Chunks are found by their sizes, in any order, and unknown ones are skipped; the first "fmt " and
// the first "data" count. Sizes that lie are met all the time, since a program that is cut off
// leaves them so: what they promise beyond the end is left out, and so is the rest of a frame.
//   bytes  the whole file.
//   file   its path, which a failure carries; empty if it is none.
// Fails with RuntimeError InvalidCall whose cause is one of SoundTexts: not a wave file, damaged
// (no format), compressed, a format not supported (no PCM, another width, more channels, a rate
// that cannot be played), no sound data.
Wave DecodeWave(std::string_view bytes, const std::string& file = "");

// The same sound with samples of at most 16 bits, which every sound device takes: of wider ones the
// upper 16 bits.
Wave AtMost16Bits(Wave wave);
