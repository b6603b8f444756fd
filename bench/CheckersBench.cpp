// The two checkers on a large file, beside a plain reader with the same rules and beside "wc -l".
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include "bench/Arguments.h"
#include "bench/Contest.h"
#include "bench/PlainReaders.h"
#include "machine/simulated/Machine.h"
#include "tests/HostFile.h"
#include "tracks/TrackChecker.h"
#include "vehicles/VehicleChecker.h"

namespace {

void Require(bool isSo, const char* what) {
  if (isSo) return;
  std::fprintf(stderr, "%s\n", what);
  std::exit(1);
}

// A piece of a track, long enough that nothing learns it by heart.
std::string Parts() {
  std::mt19937 random(1);
  std::string text;
  for (int i = 0; i < 50000; ++i) {
    text += std::to_string(random() % 13) + "\r\n" + std::to_string(random() % 4) + "\r\n" +
            std::to_string(5000 + random() % 25000) + "\r\n";
  }
  return text;
}

// Whole vehicles, one after the other, with internal sounds and random numbers.
std::string Vehicles() {
  std::mt19937 random(2);
  const auto number = [&](unsigned low, unsigned high) {
    return std::to_string(low + random() % (high - low)) + "\r\n";
  };
  const auto sound = [&] { return "car" + number(1, 5); };
  std::string text;
  for (int i = 0; i < 4000; ++i) {
    text += "enginesound=" + sound() + "throttlesound=car" + number(1, 3) +
            "startsound=" + sound() + "hornsound=" + sound() + "acceleration=" + number(1, 100) +
            "deceleration=" + number(1, 100) + "skidrun=" + number(80, 400) +
            "idlefreq=" + number(8000, 30000) + "topfreq=" + number(30000, 100000) +
            "shiftfreq=" + number(8000, 60000) + "numberofgears=" + number(1, 9) +
            "steering=" + number(1, 200) + "steeringfactor=" + number(1, 101) +
            "haswipers=" + number(0, 2);
  }
  return text;
}

template <class Check, class IsGood>
void Compare(const std::string& name, const std::string& path, const HostFile& file,
             const Arguments& arguments, Check check, IsGood isGood) {
  Simulated::Machine machine;
  machine.files.MountHostFile(path, file.path());
  const std::string countLines = "wc -l <" + file.path() + " >/dev/null";

  Contest contest(name + ", " + std::to_string(arguments.megabytes) + " MB");
  contest.Add("checker", [&] {
    int32_t code = 0;
    std::string message;
    Require(check(path, code, message) == 0 && code == 0, "the checker found a fault");
  });
  contest.Add("plain reader",
              [&] { Require(isGood(file.path()), "the plain reader found a fault"); });
  contest.Add("wc -l", [&] { Require(std::system(countLines.c_str()) == 0, "wc failed"); });
  contest.Run(arguments.rounds);
}

}  // namespace

int main(int argc, char** argv) {
  const Arguments arguments(argc, argv);
  const size_t size = arguments.megabytes << 20;
  HostFile track;
  track.Repeat(Parts(), size);
  track.Repeat("-1\r\n1\r\n", 1);
  Compare("Track file", "C:\\Game\\tracks\\long.trk", track, arguments, CheckTrackFile,
          PlainReaders::IsGoodTrack);

  HostFile vehicle;
  vehicle.Repeat(Vehicles(), size);
  Compare("Vehicle file", "C:\\Game\\vehicles\\long\\long.vhc", vehicle, arguments,
          CheckVehicleFile, PlainReaders::IsGoodVehicle);
}
