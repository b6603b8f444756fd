// From a wave to its frequencies.
#pragma once

#include <complex>
#include <cstddef>
#include <numbers>
#include <utility>
#include <vector>

namespace Fourier {

// The fast Fourier transform, in place. The number of values is a power of two.
inline void Transform(std::vector<std::complex<double>>& values) {
  const size_t size = values.size();
  // The results come out in the order of the places with their bits reversed.
  for (size_t i = 1, reversed = 0; i < size; ++i) {
    size_t bit = size / 2;
    for (; reversed & bit; bit /= 2) reversed ^= bit;
    reversed ^= bit;
    if (i < reversed) std::swap(values[i], values[reversed]);
  }
  for (size_t half = 1; half < size; half *= 2) {
    for (size_t k = 0; k < half; ++k) {
      // Each turn by itself, since a product of many small turns drifts.
      const auto turn =
          std::polar(1.0, -std::numbers::pi * static_cast<double>(k) / static_cast<double>(half));
      for (size_t i = k; i < size; i += 2 * half) {
        const auto turned = values[i + half] * turn;
        values[i + half] = values[i] - turned;
        values[i] += turned;
      }
    }
  }
}

}  // namespace Fourier
