// The vehicle checker beside a second one that was written for plainness alone.
#include "tests/VerdictProperty.h"
#include "tests/vehicles/RandomVehicle.h"
#include "tests/vehicles/ReferenceVehicleChecker.h"
#include "vehicles/VehicleChecker.h"

namespace {

const VerdictProperty Property{.path = "C:\\Games\\Skidrun2\\vehicles\\rocket\\rocket.vhc",
                               .makeFile = RandomFiles::Vehicle,
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
