// What shows that the sounds of the vehicles are still, bit by bit, the ones that were last
// listened to: whatever compiler made them, with whatever options, and in the shipped program too.
#pragma once

#include <cstdint>
#include <string>

// The CRC-32 of the 22 files one after another, in the order of InternalSoundKinds. After a change
// of the sounds that was meant, put here what the failing test says, and run scripts/draw-sounds.py
// for the page that shows them. If it differs without one, the compiler has rounded differently:
// look for fused or reordered arithmetic, not for a new number.
inline constexpr uint32_t InternalSoundsChecksum = 0xE4248545;

// The CRC-32 of bytes that follow others, whose CRC-32 is given.
inline uint32_t Crc32(const std::string& bytes, uint32_t before = 0) {
  uint32_t sum = ~before;
  for (const char each : bytes) {
    sum ^= static_cast<unsigned char>(each);
    for (int bit = 0; bit < 8; ++bit) sum = (sum & 1) != 0 ? sum >> 1 ^ 0xEDB88320u : sum >> 1;
  }
  return ~sum;
}
