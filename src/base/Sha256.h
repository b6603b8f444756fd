// The SHA-256 checksum of FIPS 180-4, by which players can tell that a file is the one that its
// maker has published.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

class Sha256 {
 public:
  // Adds the next bytes of what is summed up.
  void Add(std::string_view bytes);

  // The checksum of all that was added, as 64 hexadecimal digits in small letters. Nothing may be
  // added afterwards.
  std::string Hex();

 private:
  static constexpr size_t BlockSize = 64;

  void AddBlock(const char* block);

  std::array<uint32_t, 8> state_ = {0x6A09E667, 0xBB67AE85, 0x3C6EF372, 0xA54FF53A,
                                    0x510E527F, 0x9B05688C, 0x1F83D9AB, 0x5BE0CD19};
  std::array<char, BlockSize> rest_{};  // of which the first size_ % BlockSize bytes wait
  uint64_t size_ = 0;
};
