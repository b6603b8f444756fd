// Vehicle files of any bytes: the checker, reading in blocks of any size, says what a second one
// says that was written for plainness alone.
#include "fuzz/FileInput.h"
#include "fuzz/Require.h"
#include "tests/vehicles/ReferenceVehicleChecker.h"
#include "vehicles/VehicleChecker.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Simulated::Machine machine;
  const std::string path = "C:\\Game\\vehicles\\rocket\\rocket.vhc";
  const std::string bytes = PutFileInput(machine, path, data, size);
  machine.files.Put("C:\\Game\\vehicles\\rocket\\engine.wav", "");

  Reference::Verdict found{};
  found.result = CheckVehicleFile(path, found.code, found.message);
  RequireEqual(found, Reference::CheckVehicle(path, bytes));
  Require(machine.files.Text(path) == bytes);
  return 0;
}
