// What sound is made of here: samples of 16 bits, signed, the low byte first; frame by frame, left
// before right.
#pragma once

#include <cstddef>

namespace ORec {

struct Format {
  int rate = 44'100;  // frames a second
  int channels = 2;   // 1 or 2

  static constexpr int SampleBits = 16;
  size_t FrameSize() const { return static_cast<size_t>(channels) * SampleBits / 8; }
};

}  // namespace ORec
