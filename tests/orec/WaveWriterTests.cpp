// The file that a recording is written to.
#include "orec/WaveWriter.h"

#include <gmock/gmock.h>

#include "base/Wave.h"
#include "orec/Channels.h"
#include "tests/WaveBytes.h"
#include "tests/orec/SimulatedInputs.h"

namespace {

using ORec::Format;
using ORec::WaveWriter;
using ORec::WithChannels;

class WaveWriterTest : public testing::Test {
 protected:
  SimulatedOrec::World world;
};

TEST_F(WaveWriterTest, WritesWhatTheReaderReads) {
  for (const int channels : {1, 2}) {
    for (const int rate : {8'000, 44'100, 192'000}) {
      auto writer = WaveWriter::Create("a.wav", {rate, channels});
      ASSERT_TRUE(writer);
      EXPECT_EQ(world.BytesOf("a.wav"), WaveBytes::File(Wave{channels, 16, rate, ""}));
      EXPECT_TRUE(writer->Write("abcd"));
      EXPECT_TRUE(writer->Write(""));
      EXPECT_TRUE(writer->Write("efghijkl"));
      EXPECT_EQ(world.BytesOf("a.wav"), WaveBytes::File(Wave{channels, 16, rate, "abcdefghijkl"}));
      writer.reset();
      EXPECT_TRUE(world.OpenFiles().empty());
    }
  }
}

TEST_F(WaveWriterTest, IsWholeAfterEachWrite) {
  auto writer = WaveWriter::Create("a.wav", {});
  for (const char* samples : {"abcd", "efghijkl", "mnop"}) writer->Write(samples);
  const auto history = world.History("a.wav");
  EXPECT_EQ(history.size(), 7u);
  for (const std::string& bytes : history) {
    if (bytes.size() == 44) continue;  // nothing yet
    const uint32_t told = static_cast<unsigned char>(bytes[40]);
    EXPECT_LE(44 + told, bytes.size());
    EXPECT_EQ(static_cast<unsigned char>(bytes[4]), 36 + told);
    if (told == 0) continue;
    EXPECT_EQ(DecodeWave(bytes.substr(0, 44 + told)).samples,
              std::string("abcdefghijklmnop").substr(0, told));
  }
}

TEST_F(WaveWriterTest, AFullDiskLeavesWhatWasWritten) {
  world.diskSpace = 44 + 10;
  auto writer = WaveWriter::Create("a.wav", {});
  EXPECT_TRUE(writer->Write("abcdefgh"));
  EXPECT_FALSE(writer->Write("ijkl"));
  EXPECT_EQ(DecodeWave(world.BytesOf("a.wav")).samples, "abcdefgh");
}

TEST_F(WaveWriterTest, WithoutRoomForAHeaderThereIsNoWriter) {
  world.diskSpace = 43;
  EXPECT_FALSE(WaveWriter::Create("a.wav", {}));
  EXPECT_TRUE(world.OpenFiles().empty());
}

TEST_F(WaveWriterTest, EndsWithTheLastWholeFrameThatAWavFileCanHold) {
  world.keepsNoBytes = true;
  auto writer = WaveWriter::Create("a.wav", {});
  const std::string much(64 << 20, '\0');
  int whole = 0;
  while (whole < 100 && writer->Write(much)) ++whole;
  EXPECT_EQ(whole, 63);
  const std::string header = world.BytesOf("a.wav");
  // Four bytes a frame.
  EXPECT_EQ(header.substr(4, 4), WaveBytes::Number(0xFFFF'FFFC, 4));
  EXPECT_EQ(header.substr(40, 4), WaveBytes::Number(0xFFFF'FFFC - 36, 4));
  EXPECT_EQ(world.files["a.wav"].size, 0xFFFF'FFFC + 8ull);
  EXPECT_FALSE(writer->Write("abcd"));
  EXPECT_TRUE(writer->Write(""));
}

std::string Samples(const std::vector<int>& values) {
  std::string samples;
  for (const int value : values) samples += WaveBytes::Number(static_cast<uint16_t>(value), 2);
  return samples;
}

TEST(Channels, OneIsGivenToBoth) {
  EXPECT_EQ(WithChannels(Samples({1, -2, 32'767}), 1, 2), Samples({1, 1, -2, -2, 32'767, 32'767}));
}

TEST(Channels, OfTwoOneGetsTheMiddle) {
  EXPECT_EQ(
      WithChannels(Samples({10, 20, -10, -20, 32'767, 32'767, -32'768, -32'768, -1, 0}), 2, 1),
      Samples({15, -15, 32'767, -32'768, 0}));
}

TEST(Channels, TheRestOfAFrameIsLeftOut) {
  EXPECT_EQ(WithChannels("abc", 1, 1), "ab");
  EXPECT_EQ(WithChannels("abcdefg", 2, 2), "abcd");
  EXPECT_EQ(WithChannels("abc", 1, 2), "abab");
  EXPECT_EQ(WithChannels("abc", 2, 1), "");
  EXPECT_EQ(WithChannels("", 2, 1), "");
}

}  // namespace
