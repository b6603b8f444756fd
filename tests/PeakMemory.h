// How much memory an action takes.
#pragma once

#include <fstream>
#include <functional>
#include <optional>
#include <string>

namespace PeakMemory {

// The value of a line of the kernel's report on this process, in bytes.
inline std::optional<size_t> Reported(const std::string& name) {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    size_t kilobytes = 0;
    if (word == name + ":" && status >> kilobytes) return kilobytes * 1024;
  }
  return std::nullopt;
}

// By how many bytes the process grows at most while the action runs. Nothing where the kernel does
// not tell.
inline std::optional<size_t> Of(const std::function<void()>& action) {
  std::ofstream("/proc/self/clear_refs") << "5";  // the peak is now what is in use
  const auto before = Reported("VmHWM");
  action();
  const auto peak = Reported("VmHWM");
  if (!before || !peak) return std::nullopt;
  return *peak - *before;
}

}  // namespace PeakMemory
