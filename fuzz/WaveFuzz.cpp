// Wave files of any bytes: a sound or a cause, and never a sound of more than the file holds.
#include <cstdint>
#include <string>
#include <string_view>

#include "base/RuntimeError.h"
#include "base/SoundTexts.h"
#include "base/Wave.h"
#include "fuzz/Require.h"
#include "tests/WaveBytes.h"

namespace {

bool IsCause(const LangText& cause) {
  for (const LangText& text : TextsOf(SoundTexts)) {
    if (std::string_view(text.key) == cause.key) return true;
  }
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  try {
    const Wave wave = DecodeWave(bytes);
    Require(wave.channels == 1 || wave.channels == 2);
    Require(wave.bits == 8 || wave.bits == 16 || wave.bits == 24 || wave.bits == 32);
    Require(wave.rate >= LowestRate && wave.rate <= HighestRate);
    Require(!wave.samples.empty() && wave.samples.size() % wave.FrameSize() == 0);
    Require(bytes.find(wave.samples) != std::string::npos);
    // Written as plainly as can be, it is the same sound.
    const Wave again = DecodeWave(WaveBytes::File(wave));
    Require(again.samples == wave.samples && again.channels == wave.channels &&
            again.bits == wave.bits && again.rate == wave.rate);
    const Wave narrow = AtMost16Bits(wave);
    Require(narrow.bits <= 16 && narrow.Seconds() == wave.Seconds());
  } catch (const RuntimeError& error) {
    Require(error.number() == RuntimeError::InvalidCall && IsCause(error.cause()));
  }
  return 0;
}
