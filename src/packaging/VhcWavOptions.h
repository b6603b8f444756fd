// What to do about a vehicle that has no description. One for a run: PerRun<VhcWavOptions>().
#pragma once

#include "packaging/WavOptions.h"

class VhcWavOptions final : public WavOptions {
 public:
  VhcWavOptions() : WavOptions(PackagingTexts.VhcSoundNonexistentOptionsTitle) {}
};
