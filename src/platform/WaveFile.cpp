#include "platform/WaveFile.h"

#include "base/RuntimeError.h"
#include "base/SoundTexts.h"
#include "platform/Files.h"
#include "platform/LongStep.h"

namespace Platform {

Wave ReadWaveFile(const std::string& path) {
  constexpr size_t BlockSize = 256 << 10;
  const LongStep step;
  FileReader file(path);
  std::string bytes;
  for (;;) {
    step.AnswerOthers();
    const size_t size = bytes.size();
    bytes.resize(size + BlockSize);
    const size_t count = file.Read(bytes.data() + size, BlockSize);
    bytes.resize(size + count);
    if (count == 0) return DecodeWave(bytes, path);
    if (bytes.size() > LargestWaveFile) {
      throw RuntimeError(RuntimeError::InvalidCall, SoundTexts.SoundTooLarge, path);
    }
  }
}

}  // namespace Platform
