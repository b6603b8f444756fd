// make-sounds FOLDER: writes the sounds of the game's vehicles there, and sounds.rc, which makes
// them resources of the program. Run by the build, on the machine that builds.
#include <cstdio>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <string>

#include "HornSound.h"
#include "Ignition.h"
#include "WaveFile.h"
#include "platform/Resources.h"
#include "vehicles/InternalSounds.h"

namespace {

Samples SoundOf(VehicleVariable kind, const Vehicle& vehicle) {
  switch (kind) {
    case VehicleVariable::EngineSound: return EngineLoop(vehicle, vehicle.idle).samples();
    case VehicleVariable::ThrottleSound: return EngineLoop(vehicle, vehicle.load.value()).samples();
    case VehicleVariable::StartSound: return IgnitionOf(vehicle, EngineLoop(vehicle, vehicle.idle));
    default: return SoundOf(vehicle.horn);
  }
}

void Write(const std::string& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  if (!file.flush()) throw std::runtime_error(path + " cannot be written");
}

void MakeSounds(const std::string& folder) {
  std::string script = "// Made by make-sounds.\n";
  for (const InternalSoundKind& kind : InternalSoundKinds) {
    for (const std::string_view vehicle : kind.names) {
      const std::string name = std::string(vehicle) + std::string(kind.suffix);
      Write(folder + "/" + name + ".wav", WaveFileOf(SoundOf(kind.variable, VehicleOf(vehicle))));
      script += name + " " + std::to_string(Platform::SoundResource) + " \"" + name + ".wav\"\n";
    }
  }
  // Last, since the build takes it for the sign that all of them are there.
  Write(folder + "/sounds.rc", script);
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::fprintf(stderr, "usage: make-sounds FOLDER\n");
    return 2;
  }
  try {
    MakeSounds(arguments[1]);
    return 0;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "make-sounds: %s\n", failure.what());
    return 1;
  }
}
