#include "platform/RandomRange.h"

#include <bit>

#include "base/PerRun.h"
#include "platform/Clock.h"

namespace Platform {

namespace {

// Spreads every bit over all others; no two inputs have the same result. The shifts and multipliers
// are David Stafford's thirteenth variant of such a mixer, which stands up to long tests.
uint64_t Mix(uint64_t bits) {
  bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9;
  bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EB;
  return bits ^ (bits >> 31);
}

struct Generator {
  uint64_t state = 0;

  // The step is odd, so that even a clock that stands still leads through all 2^64 states before
  // one comes again.
  void Seed(double number) { state += Mix(std::bit_cast<uint64_t>(number)) | 1; }

  // Uniform in [0, 1).
  double Draw() const { return static_cast<double>(Mix(state) >> 11) * 0x1p-53; }
};

}  // namespace

int32_t RandomRange(int32_t low, int32_t high) {
  auto& generator = PerRun<Generator>();
  generator.Seed(SecondsSinceMidnight());
  // The product is rounded, but never up to the range itself: high is not reached.
  const double range = static_cast<double>(high) - low;
  return static_cast<int32_t>(low + static_cast<int64_t>(range * generator.Draw()));
}

}  // namespace Platform
