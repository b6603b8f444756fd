// What a test must not overlook: an unexpected question, a step of the script that never came, a
// window that no screen reader can name.
#pragma once

#include <functional>
#include <string>

namespace Simulated {

using ComplaintHandler = std::function<void(const std::string&)>;

// Sets who hears the complaints, for all machines; the tests make each a failure. Without anybody
// to hear it, a complaint ends the process. Returns who heard them before.
ComplaintHandler OnComplaint(ComplaintHandler handler);

void Complain(const std::string& what);

}  // namespace Simulated
