// What to do about a track that has no description. One for a run: PerRun<TrkWavOptions>().
#pragma once

#include "packaging/WavOptions.h"

class TrkWavOptions final : public WavOptions {
 public:
  TrkWavOptions() : WavOptions(PackagingTexts.TrkSoundNonexistentOptionsTitle) {}
};
