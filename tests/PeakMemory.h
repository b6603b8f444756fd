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
// not tell: a test that asks must then skip itself, for it has shown nothing.
inline std::optional<size_t> Of(const std::function<void()>& action) {
  std::ofstream reset("/proc/self/clear_refs");
  const bool isReset = static_cast<bool>(reset << "5" << std::flush);  // to what is in use now
  const auto before = Reported("VmHWM");
  action();
  const auto peak = Reported("VmHWM");
  if (!isReset || !before || !peak) return std::nullopt;
  return *peak - *before;
}

}  // namespace PeakMemory
