// A program without windows that is run to its end.
#pragma once

#include <string>
#include <vector>

namespace E2e {

struct ConsoleOutcome {
  unsigned long status = 0;
  std::string said;  // on both of its outputs, in its own order
};

// Runs one of the staged tools, such as "sk2publish", and waits for its end.
//   arguments  none may hold a quotation mark or end in a backslash.
// Throws std::runtime_error if it cannot be started.
ConsoleOutcome RunTool(const std::string& name, const std::vector<std::string>& arguments);

}  // namespace E2e
