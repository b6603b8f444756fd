#include "platform/simulated/Complaints.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace Simulated {

namespace {
std::function<void(const std::string&)>& Handler() {
  static std::function<void(const std::string&)> handler;
  return handler;
}
}  // namespace

void OnComplaint(std::function<void(const std::string&)> handler) {
  Handler() = std::move(handler);
}

void Complain(const std::string& what) {
  if (Handler()) return Handler()(what);
  std::fprintf(stderr, "simulated machine: %s\n", what.c_str());
  std::abort();
}

}  // namespace Simulated
