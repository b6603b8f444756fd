// The named mutexes of the simulated machine.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace Simulated {

class Mutexes {
 public:
  // The names that the program holds.
  const std::vector<std::string>& Held() const { return held_; }

  // Another program holds the name, which keeps nobody from holding it too.
  void HoldInAnotherProgram(const std::string& name) { heldByOthers_.push_back(name); }
  // True while any program holds the name: what an installer asks for.
  bool Exists(const std::string& name) const {
    return std::count(held_.begin(), held_.end(), name) +
               std::count(heldByOthers_.begin(), heldByOthers_.end(), name) >
           0;
  }

  // For the service.
  void Hold(const std::string& name) { held_.push_back(name); }
  // At the end of a run, when the system closes what the program has left open.
  void Release(const std::string& name) { std::erase(held_, name); }

 private:
  std::vector<std::string> held_;
  std::vector<std::string> heldByOthers_;
};

}  // namespace Simulated
