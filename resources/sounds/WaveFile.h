// Sound as a file.
#pragma once

#include <string>

#include "Filters.h"

// The bytes of a WAV file: PCM, 16 bits, one channel. What is beyond -1 and 1 is cut off.
std::string WaveFileOf(const Samples& samples);
