#include "base/Maths.h"

#include <cmath>
#include <limits>

#include "base/RuntimeError.h"

namespace Maths {

int32_t ToInt32(double value) {
  // The default rounding mode is halves to even, and nothing in the program changes it.
  const double whole = std::nearbyint(value);
  // Asked so, and not the other way round, a value that is no number fails too.
  if (!(whole >= std::numeric_limits<int32_t>::min() &&
        whole <= std::numeric_limits<int32_t>::max())) {
    throw RuntimeError(RuntimeError::Overflow);
  }
  return static_cast<int32_t>(whole);
}

}  // namespace Maths
