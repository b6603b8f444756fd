// A vehicle file at random, good or nearly so, for whoever judges vehicles.
#pragma once

#include <string>
#include <vector>

#include "tests/RandomText.h"
#include "vehicles/VehicleVariables.h"

namespace RandomFiles {

inline std::string Vehicle(RandomText& random) {
  const std::vector<std::string> numbers{
      "1",   "0",    "100",  "22050", "0.5",        "1.5",          "2.5",         "1.4", "-1",
      " 7 ", "1e2",  "1e-1", "100.5", "2147483647", "2147483647.5", "99999999999", "abc", "1,000",
      "(5)", "&H10", "+3",   "3-",    "",           "1=2"};
  const std::vector<std::string> sounds{"car1",   "car2",   "car3",       "car4", "car5",
                                        "cycle1", "cycle2", "engine.wav", "",     "missing.wav",
                                        "Car1",   "car1=x", "ENGINE.WAV", "..",   "car1 "};
  std::string text;
  for (size_t lines = random.Below(18); lines > 0; --lines) {
    const size_t index = random.Below(VehicleVariableNames.size());
    const bool isSound = index < 4;
    // A fault in every line would end each check at once: most values are good ones.
    const auto& values = isSound != random.OneIn(40) ? sounds : numbers;
    text += VehicleVariableNames[index];
    text += "=";
    text += random.OneIn(3) ? random.OneOf(values) : isSound ? "car1" : "1";
    text += random.LineEnd();
  }
  return random.OneIn(2) ? text : random.Mutated(text);
}

}  // namespace RandomFiles
