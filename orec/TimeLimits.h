// How long anything is waited for: a device that has gone may let a call wait for ever.
#pragma once

#include <atomic>
#include <chrono>

namespace ORec {

struct Limits {
  std::chrono::milliseconds asking{3'000};   // for the devices and their names
  std::chrono::milliseconds opening{4'000};  // wireless ones take seconds
  std::chrono::milliseconds starting{3'000};
  std::chrono::milliseconds stopping{2'000};
  std::chrono::milliseconds closing{1'000};
  // A device that gives no sound for so long has gone: the system has no message for that. The
  // threads of the recordings ask for it.
  std::atomic<std::chrono::milliseconds> silence{std::chrono::milliseconds(3'000)};
};

// The tests have less time.
inline Limits& TheLimits() {
  static Limits limits;
  return limits;
}

}  // namespace ORec
