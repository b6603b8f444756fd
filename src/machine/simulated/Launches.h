// The programs that were started on the simulated machine.
#pragma once

#include <string>
#include <vector>

namespace Simulated {

struct Launch {
  std::string path;
  std::string arguments;
  std::string bytes;  // of the program, as it was then
};

class Launches {
 public:
  const std::vector<Launch>& All() const { return all_; }

  // For the service.
  void Add(const Launch& launch) { all_.push_back(launch); }

 private:
  std::vector<Launch> all_;
};

}  // namespace Simulated
