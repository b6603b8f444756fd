// Files of any bytes, packed in two goes: whatever they hold, they come out of the archive as they
// went in, and the sources stay.
#include <algorithm>
#include <string>

#include "archive/Extraction.h"
#include "archive/Packing.h"
#include "fuzz/Require.h"
#include "machine/simulated/Machine.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Simulated::Machine machine;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  // The first byte tells where the one file ends and the other begins.
  const size_t cut = size == 0 ? 0 : std::min<size_t>(size, 1 + data[0] * size / 256);
  const std::string first = bytes.substr(0, cut);
  const std::string second = bytes.substr(cut);
  machine.files.Put("C:\\a\\hill.trk", first);
  machine.files.Put("C:\\b\\Hill.wav", second);
  Archive::Pack("C:\\a\\hill.zip", {"C:\\a\\hill.trk"});
  Archive::Pack("C:\\a\\hill.zip", {"C:\\b\\Hill.wav"});
  const std::string packed = machine.files.Text("C:\\a\\hill.zip");
  Archive::Extract("C:\\a\\hill.zip", "C:\\c\\d", "");
  Require(machine.files.Text("C:\\c\\d\\hill.trk") == first);
  Require(machine.files.Text("C:\\c\\d\\Hill.wav") == second);
  Require(machine.files.Text("C:\\a\\hill.trk") == first);
  Require(machine.files.Text("C:\\b\\Hill.wav") == second);
  // An entry that is replaced by the same file gives the same archive, with the two the other way
  // round: twice that is as before.
  Archive::Pack("C:\\a\\hill.zip", {"C:\\a\\hill.trk"});
  Archive::Pack("C:\\a\\hill.zip", {"C:\\b\\Hill.wav"});
  Require(machine.files.Text("C:\\a\\hill.zip") == packed);
  return 0;
}
