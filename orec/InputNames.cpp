#include "orec/InputNames.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "orec/InTime.h"
#include "orec/Input.h"
#include "orec/TimeLimits.h"

namespace ORec {

namespace {

// Whoever lists devices may go by line ends, or leave out what has no name; then the numbers of all
// that follow would be wrong.
std::string Listable(std::string name, int number) {
  for (char& c : name) {
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  }
  if (name.find_first_not_of(' ') == std::string::npos) {
    return "Input device " + std::to_string(number + 1);
  }
  return name;
}

// The system cuts names at 31 characters, so that those of two devices are often the same.
std::string Unlike(const std::vector<std::string>& others, const std::string& name) {
  std::string unlike = name;
  for (int times = 2; std::count(others.begin(), others.end(), unlike) > 0; ++times) {
    unlike = name + " (" + std::to_string(times) + ")";
  }
  return unlike;
}

std::string AskName(int number) {
  if (number >= CountInputs()) return {};
  std::vector<std::string> names;
  for (int i = 0; i <= number; ++i) names.push_back(Unlike(names, Listable(NameOfInput(i), i)));
  return names.back();
}

}  // namespace

int InputCount() {
  return InTime<int>(TheLimits().asking, CountInputs).value_or(0);
}

std::string InputName(int number) {
  if (number < 0) return {};
  return InTime<std::string>(TheLimits().asking, [number] { return AskName(number); }).value_or("");
}

}  // namespace ORec
