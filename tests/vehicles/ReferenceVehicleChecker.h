// The vehicle checker once more, written without regard to speed or memory.
#pragma once

#include <map>
#include <set>

#include "platform/Files.h"
#include "platform/Numbers.h"
#include "tests/ReferenceCheck.h"

namespace Reference {

inline Verdict CheckVehicle(const std::string& path, const std::string& bytes) {
  const std::string folder = path.substr(0, path.rfind('\\'));
  const std::set<std::string> engines{"car1", "car2", "car3", "car4", "cycle1", "cycle2"};
  const std::map<std::string, std::set<std::string>> sounds{{"enginesound", engines},
                                                            {"startsound", engines},
                                                            {"hornsound", engines},
                                                            {"throttlesound", {"car1", "car2"}}};
  const std::set<std::string> numbers{"acceleration",   "deceleration", "skidrun",       "idlefreq",
                                      "topfreq",        "shiftfreq",    "numberofgears", "steering",
                                      "steeringfactor", "haswipers"};
  int32_t number = 0;
  try {
    for (const std::string& line : Lines(bytes)) {
      ++number;
      std::vector<std::string> pieces{""};
      for (const char c : line) {
        if (c == '=') {
          pieces.emplace_back();
        } else {
          pieces.back() += c;
        }
      }
      if (pieces.size() == 1) {
        return {number, 3, "Invalid syntax. Line should be in the format variable=value."};
      }
      const std::string& name = pieces[0];
      const std::string& value = pieces[1];
      if (sounds.contains(name)) {
        const std::string file = folder + "\\" + value;
        if (!sounds.at(name).contains(value) && !Platform::FileExists(file)) {
          return {number, 4, "The sound " + file + " does not exist."};
        }
      } else if (numbers.contains(name)) {
        const auto parsed = Platform::ParseNumber(value);
        if (!parsed) {
          return {number, 2, "Invalid data entry. The value for this variable must be a number."};
        }
        const int32_t whole = Whole(*parsed);
        if (name == "steeringfactor" && !(1 <= whole && whole <= 100)) {
          return {number, -1, "Invalid steering factor. Must be a number between 1 and 100."};
        }
        if (name == "haswipers" && whole != 0 && whole != 1) {
          return {number, -2, "haswipers out of range. Should be 0 or 1."};
        }
      } else {
        return {number, 1,
                "Invalid variable name (" + name +
                    "). Please remember that variable names are case sensitive."};
      }
    }
  } catch (const Unreadable&) {
    return {-1, -3, "Vhc file does not exist."};
  }
  return {0, 0, "Vehicle file checked with no errors."};
}

}  // namespace Reference
