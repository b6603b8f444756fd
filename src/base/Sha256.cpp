#include "base/Sha256.h"

#include <algorithm>
#include <bit>

namespace {

// The first 32 bits of the fractions of the cube roots of the first 64 primes.
constexpr std::array<uint32_t, 64> Constants = {
    0x428A2F98, 0x71374491, 0xB5C0FBCF, 0xE9B5DBA5, 0x3956C25B, 0x59F111F1, 0x923F82A4, 0xAB1C5ED5,
    0xD807AA98, 0x12835B01, 0x243185BE, 0x550C7DC3, 0x72BE5D74, 0x80DEB1FE, 0x9BDC06A7, 0xC19BF174,
    0xE49B69C1, 0xEFBE4786, 0x0FC19DC6, 0x240CA1CC, 0x2DE92C6F, 0x4A7484AA, 0x5CB0A9DC, 0x76F988DA,
    0x983E5152, 0xA831C66D, 0xB00327C8, 0xBF597FC7, 0xC6E00BF3, 0xD5A79147, 0x06CA6351, 0x14292967,
    0x27B70A85, 0x2E1B2138, 0x4D2C6DFC, 0x53380D13, 0x650A7354, 0x766A0ABB, 0x81C2C92E, 0x92722C85,
    0xA2BFE8A1, 0xA81A664B, 0xC24B8B70, 0xC76C51A3, 0xD192E819, 0xD6990624, 0xF40E3585, 0x106AA070,
    0x19A4C116, 0x1E376C08, 0x2748774C, 0x34B0BCB5, 0x391C0CB3, 0x4ED8AA4A, 0x5B9CCA4F, 0x682E6FF3,
    0x748F82EE, 0x78A5636F, 0x84C87814, 0x8CC70208, 0x90BEFFFA, 0xA4506CEB, 0xBEF9A3F7, 0xC67178F2};

uint32_t BigEndianAt(const char* bytes) {
  uint32_t number = 0;
  for (int i = 0; i < 4; ++i) number = number << 8 | static_cast<unsigned char>(bytes[i]);
  return number;
}

}  // namespace

void Sha256::Add(std::string_view bytes) {
  const size_t waiting = size_ % BlockSize;
  size_ += bytes.size();
  if (waiting > 0) {
    const size_t taken = std::min(BlockSize - waiting, bytes.size());
    std::copy_n(bytes.data(), taken, rest_.data() + waiting);
    bytes.remove_prefix(taken);
    if (waiting + taken < BlockSize) return;
    AddBlock(rest_.data());
  }
  for (; bytes.size() >= BlockSize; bytes.remove_prefix(BlockSize)) AddBlock(bytes.data());
  std::copy_n(bytes.data(), bytes.size(), rest_.data());
}

std::string Sha256::Hex() {
  const uint64_t bits = size_ * 8;
  // A bit that is set, zeros up to eight bytes before the end of a block, and the length in bits.
  std::string end(1, '\x80');
  while ((size_ + end.size()) % BlockSize != BlockSize - 8) end += '\0';
  for (int shift = 56; shift >= 0; shift -= 8) end += static_cast<char>(bits >> shift);
  Add(end);
  std::string hex;
  for (const uint32_t word : state_) {
    for (int shift = 28; shift >= 0; shift -= 4) hex += "0123456789abcdef"[word >> shift & 15];
  }
  return hex;
}

void Sha256::AddBlock(const char* block) {
  std::array<uint32_t, 64> w{};
  for (size_t i = 0; i < 16; ++i) w[i] = BigEndianAt(block + 4 * i);
  for (size_t i = 16; i < w.size(); ++i) {
    const uint32_t x = w[i - 15];
    const uint32_t y = w[i - 2];
    w[i] = w[i - 16] + (std::rotr(x, 7) ^ std::rotr(x, 18) ^ x >> 3) + w[i - 7] +
           (std::rotr(y, 17) ^ std::rotr(y, 19) ^ y >> 10);
  }
  // The eight words have these names in the standard.
  auto [a, b, c, d, e, f, g, h] = state_;
  for (size_t i = 0; i < w.size(); ++i) {
    const uint32_t choice = (e & f) ^ (~e & g);
    const uint32_t first =
        h + (std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25)) + choice + Constants[i] + w[i];
    const uint32_t majority = (a & b) ^ (a & c) ^ (b & c);
    const uint32_t second = (std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22)) + majority;
    h = g;
    g = f;
    f = e;
    e = d + first;
    d = c;
    c = b;
    b = a;
    a = first + second;
  }
  const std::array<uint32_t, 8> added = {a, b, c, d, e, f, g, h};
  for (size_t i = 0; i < added.size(); ++i) state_[i] += added[i];
}
