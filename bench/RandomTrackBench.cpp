// A random track beside the formatting and writing of the same bytes, which no generator can do
// without. It is meant to cost at most twice as much.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "base/LineReader.h"
#include "bench/Arguments.h"
#include "bench/Contest.h"
#include "machine/simulated/Machine.h"
#include "tracks/RandomTrackmaker.h"
#include "tracks/TrackManager.h"

namespace {

constexpr size_t BytesPerPart = 14;
const std::string Path = "C:\\Game\\tracks\\long.trk";

void WriteRandom(int32_t parts) {
  Platform::FileWriter file(Path);
  RandomTrackmaker::WriteRandomParts(parts, file);
  file.Finish();
}

// Writes parts that were drawn before, in blocks of the same size.
void WriteGiven(const std::vector<int32_t>& values) {
  Platform::FileWriter file(Path);
  std::string block;
  for (size_t i = 0; i < values.size(); i += 3) {
    TrackManager::AppendTrackPart(values[i], values[i + 1], values[i + 2], block);
    if (block.size() < 1 << 16) continue;
    file.Write(block);
    block.clear();
  }
  file.Write(block);
  file.Finish();
}

}  // namespace

int main(int argc, char** argv) {
  const Arguments arguments(argc, argv);
  Simulated::Machine machine;
  machine.files.PutFolder("C:\\Game\\tracks");
  machine.clock.TickPerCall(1e-7);

  const auto parts = static_cast<int32_t>((arguments.megabytes << 20) / BytesPerPart);
  WriteRandom(parts);
  const std::string drawn = machine.files.Text(Path);
  std::vector<int32_t> values;
  for (const std::string& line : LinesOf(drawn)) values.push_back(std::atoi(line.c_str()));
  WriteGiven(values);
  if (machine.files.Text(Path) != drawn) {
    std::fputs("the contenders do not write the same bytes\n", stderr);
    return 1;
  }

  Contest contest("Random track, " + std::to_string(parts) + " parts");
  contest.Add("drawn", [&] { WriteRandom(parts); });
  contest.Add("given", [&] { WriteGiven(values); });
  contest.Run(arguments.rounds);
}
