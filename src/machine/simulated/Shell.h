// The shell of the simulated machine: it remembers what it has opened.
#pragma once

#include <string>
#include <vector>

namespace Simulated {

class Shell {
 public:
  const std::vector<std::string>& Opened() const { return opened_; }

  // For the service.
  void Open(const std::string& target) { opened_.push_back(target); }

 private:
  std::vector<std::string> opened_;
};

}  // namespace Simulated
