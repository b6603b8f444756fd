// The named mutexes of the simulated machine.
#pragma once

#include <string>
#include <vector>

namespace Simulated {

class Mutexes {
 public:
  // The names that the program holds.
  const std::vector<std::string>& Held() const { return held_; }

  // For the service.
  void Hold(const std::string& name) { held_.push_back(name); }

 private:
  std::vector<std::string> held_;
};

}  // namespace Simulated
