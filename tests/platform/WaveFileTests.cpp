// Wave files on the disk.
#include "platform/WaveFile.h"

#include "base/SoundTexts.h"
#include "tests/Story.h"
#include "tests/WaveBytes.h"

namespace {

class WaveFile : public Story {
 protected:
  // The key of the cause why the file cannot be read; "" if it can.
  std::string Cause() {
    try {
      Platform::ReadWaveFile(path);
      return "";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.file(), path);
      return error.cause().key;
    }
  }

  const std::string path = "C:\\horn.wav";
  const Wave tone = WaveBytes::Tone(440, 0.5);
};

TEST_F(WaveFile, IsReadInBlocksWithOtherProgramsAnsweredBetweenThem) {
  machine.files.Put(path, WaveBytes::File(tone));
  machine.files.LimitReads(1000);
  const int before = machine.screen.answers;
  const Wave wave = Platform::ReadWaveFile(path);
  EXPECT_EQ(wave.samples, tone.samples);
  EXPECT_EQ(wave.rate, tone.rate);
  EXPECT_GE(machine.screen.answers, before + 20);
}

TEST_F(WaveFile, ThatCannotBeReadIsToldWithItsPath) {
  EXPECT_EQ(Cause(), "RTEFileNotFound");
  machine.files.Put(path, "MZ");
  EXPECT_EQ(Cause(), "SoundNotAWave");
}

TEST_F(WaveFile, ThatIsTooLargeIsNotHeldInMemory) {
  const std::string head = WaveBytes::Riff(WaveBytes::Chunk("fmt ", WaveBytes::Format{}.Bytes()) +
                                           "data\xFF\xFF\xFF\x7F");
  machine.files.Put(path, head + std::string(Platform::LargestWaveFile - head.size(), 'x'));
  EXPECT_EQ(Cause(), "");
  machine.files.Put(path, head + std::string(Platform::LargestWaveFile - head.size() + 1, 'x'));
  EXPECT_EQ(Cause(), "SoundTooLarge");
}

}  // namespace
