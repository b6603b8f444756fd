// Track files of any bytes: the checker, reading in blocks of any size, says what a second one says
// that was written for plainness alone.
#include "fuzz/FileInput.h"
#include "fuzz/Require.h"
#include "tests/tracks/ReferenceTrackChecker.h"
#include "tracks/TrackChecker.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Simulated::Machine machine;
  const std::string path = "C:\\Game\\tracks\\hill.trk";
  const std::string bytes = PutFileInput(machine, path, data, size);

  Reference::Verdict found{};
  found.result = CheckTrackFile(path, found.code, found.message);
  RequireEqual(found, Reference::CheckTrack(path, bytes));
  Require(machine.files.Text(path) == bytes);
  return 0;
}
