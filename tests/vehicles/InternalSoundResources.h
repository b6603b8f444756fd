// The sounds that the program carries with it, for tests: short ones that can be told apart.
#pragma once

#include <string>

#include "machine/simulated/Machine.h"
#include "platform/Resources.h"
#include "tests/WaveBytes.h"
#include "vehicles/InternalSounds.h"

// The samples of the sound in the resource of that name, such as "car1engine".
inline std::string SamplesOfResource(const std::string& name) {
  std::string samples;
  for (const char letter : name) samples.append(2, letter);
  return samples;
}

// At a rate of 22050 frames a second; 16 bits, mono.
inline void PutInternalSounds(Simulated::Machine& machine) {
  for (const InternalSoundKind& kind : InternalSoundKinds) {
    for (const std::string_view vehicle : kind.names) {
      const std::string name = std::string(vehicle) + std::string(kind.suffix);
      machine.executable.resources.push_back(
          {Platform::SoundResource, name,
           WaveBytes::File(WaveBytes::Format{}, SamplesOfResource(name))});
    }
  }
}
