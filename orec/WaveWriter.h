// Writes a WAV file that is whole at any moment.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "orec/Format.h"
#include "orec/TargetFile.h"

namespace ORec {

class WaveWriter {
 public:
  // Makes the file, without any sound so far. Null if it cannot be written.
  static std::unique_ptr<WaveWriter> Create(const std::string& path, const Format& format);

  // Adds sound at the end, and then the sizes that tell of it: whatever happens in between, what
  // the sizes promise is there.
  //   samples  whole frames.
  // False if not all of it could be written, or the file would become larger than a WAV file can
  // be. What was there before is still whole.
  bool Write(std::string_view samples);

  // The most bytes of sound that the sizes of a WAV file can tell of.
  static constexpr uint64_t LargestSound = 0xFFFF'FFFF - 36;

 private:
  WaveWriter(std::unique_ptr<TargetFile> file, const Format& format);
  bool WriteHeader();

  std::unique_ptr<TargetFile> file_;
  Format format_;
  uint64_t size_ = 0;  // of the sound
};

}  // namespace ORec
