// Why a sound cannot be read or played, as the user is told.
#pragma once

#include "base/LangText.h"

struct SoundTextTable {
  LangText SoundNotAWave{"SoundNotAWave", "This is not a wave file."};
  LangText SoundDamaged{"SoundDamaged", "The wave file is damaged."};
  LangText SoundCompressed{
      "SoundCompressed",
      "The sound is compressed. Only uncompressed (PCM) wave files can be used."};
  LangText SoundFormatNotSupported{
      "SoundFormatNotSupported",
      "The sound's format is not supported. It must be PCM with 8, 16, "
      "24 or 32 bits, mono or stereo."};
  LangText SoundHasNoData{"SoundHasNoData", "The wave file holds no sound."};
  LangText SoundTooLarge{"SoundTooLarge", "The wave file is too large."};
  LangText SoundNotAvailable{
      "SoundNotAvailable",
      "Sound is not available. There is no sound device, or it does not answer."};
  LangText SoundFrequencyNotPossible{
      "SoundFrequencyNotPossible",
      "A sound cannot be played at this frequency. It must be between 100 and 200000."};
};
inline constexpr SoundTextTable SoundTexts;
