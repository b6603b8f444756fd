#include "platform/LocalTime.h"

#include "machine/simulated/Machine.h"

namespace Platform {

namespace {

int64_t Offset() {
  constexpr int64_t Minute = 60 * int64_t{10'000'000};
  return Simulated::TheMachine().locale.minutesAheadOfUtc * Minute;
}

}  // namespace

uint64_t ToLocalTime(uint64_t moment) {
  return moment + static_cast<uint64_t>(Offset());
}

uint64_t FromLocalTime(uint64_t shown) {
  return shown - static_cast<uint64_t>(Offset());
}

}  // namespace Platform
