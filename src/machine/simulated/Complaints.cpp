#include "machine/simulated/Complaints.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace Simulated {

namespace {

ComplaintHandler& Handler() {
  static ComplaintHandler handler;
  return handler;
}

}  // namespace

ComplaintHandler OnComplaint(ComplaintHandler handler) {
  return std::exchange(Handler(), std::move(handler));
}

void Complain(const std::string& what) {
  if (Handler()) return Handler()(what);
  std::fprintf(stderr, "simulated machine: %s\n", what.c_str());
  std::abort();
}

}  // namespace Simulated
