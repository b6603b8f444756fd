// The program's one source of chance.
#pragma once

#include <cstdint>

namespace Platform {

// A random whole number from low up to, but not including, high; all are equally likely.
//   high   must be above low.
// The time of day is mixed into the running state of the generator at every call. It adds to what
// the state already holds, so that two calls within one tick of the clock are independent all the
// same.
int32_t RandomRange(int32_t low, int32_t high);

}  // namespace Platform
