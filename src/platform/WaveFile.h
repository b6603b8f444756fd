// Wave files on the disk.
#pragma once

#include <string>

#include "base/Wave.h"

namespace Platform {

// Larger files are not read: six minutes of stereo as a compact disc has it.
inline constexpr size_t LargestWaveFile = 64 << 20;

// Reads a wave file, in bounded memory however large the file is or grows meanwhile.
// Fails as FileReader and DecodeWave do, and with RuntimeError InvalidCall and the cause
// SoundTooLarge.
Wave ReadWaveFile(const std::string& path);

}  // namespace Platform
