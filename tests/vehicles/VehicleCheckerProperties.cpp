// The vehicle checker beside a second one that was written for plainness alone.
#include "tests/VerdictProperty.h"
#include "tests/vehicles/ReferenceVehicleChecker.h"
#include "vehicles/VehicleChecker.h"
#include "vehicles/VehicleVariables.h"

namespace {

std::string RandomVehicle(RandomText& random) {
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

const VerdictProperty Property{.path = "C:\\Games\\Skidrun2\\vehicles\\rocket\\rocket.vhc",
                               .makeFile = RandomVehicle,
                               .check = CheckVehicleFile,
                               .reference = Reference::CheckVehicle,
                               .firstCode = -3,
                               .lastCode = 4};

TEST(VehicleCheckerProperty, FindsInRandomFilesWhatAPlainCheckerFinds) {
  Simulated::Machine machine;
  machine.files.Put("C:\\Games\\Skidrun2\\vehicles\\rocket\\engine.wav", "");
  ExpectTheVerdictsOfThePlainChecker(machine, RandomText(3), Property);
}

TEST(VehicleCheckerProperty, FindsInLongLinesWhatAPlainCheckerFinds) {
  Simulated::Machine machine;
  machine.files.Put("C:\\Games\\Skidrun2\\vehicles\\rocket\\engine.wav", "");
  ExpectTheVerdictsOnLongLines(machine, RandomText(13), Property);
}

}  // namespace
