// Arithmetic with the rules of the pack's files.
#pragma once

#include <cstdint>

namespace Maths {

// The nearest whole number, halves to even (2.5 gives 2, 3.5 gives 4).
// Fails with RuntimeError Overflow if that number does not fit 32 bits, or is no number at all.
int32_t ToInt32(double value);

}  // namespace Maths
