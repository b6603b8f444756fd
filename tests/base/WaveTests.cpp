// Wave files, whole and odd, and what is said of those that cannot be used.
#include "base/Wave.h"

#include <gtest/gtest.h>

#include <functional>

#include "base/RuntimeError.h"
#include "base/SoundTexts.h"
#include "tests/WaveBytes.h"

namespace {

using WaveBytes::Chunk;
using WaveBytes::Extensible;
using WaveBytes::File;
using WaveBytes::Format;
using WaveBytes::LyingChunk;
using WaveBytes::Number;
using WaveBytes::Riff;

const std::string FormatChunk = Chunk("fmt ", Format{}.Bytes());
const std::string TwoFrames = "abcd";

// The key of the cause for which bytes are no sound that can be used; "" if they are.
std::string CauseFor(const std::string& bytes) {
  try {
    DecodeWave(bytes);
    return "";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), RuntimeError::InvalidCall);
    return error.cause().key;
  }
}

std::string SamplesOf(const std::string& bytes) {
  return DecodeWave(bytes).samples;
}

TEST(Wave, IsReadInEveryCommonFormat) {
  for (const bool isExtensible : {false, true}) {
    for (const int channels : {1, 2}) {
      for (const int bits : {8, 16, 24, 32}) {
        for (const uint32_t rate : {100U, 8'000U, 11'025U, 44'100U, 48'000U, 96'000U, 200'000U}) {
          const Format format{1, channels, rate, bits};
          const std::string samples = "twenty-four bytes of it.";
          const Wave wave =
              DecodeWave(Riff(Chunk("fmt ", isExtensible ? Extensible(format) : format.Bytes()) +
                              Chunk("data", samples)));
          EXPECT_EQ(wave.channels, channels);
          EXPECT_EQ(wave.bits, bits);
          EXPECT_EQ(wave.rate, static_cast<int>(rate));
          EXPECT_EQ(wave.samples, samples);
          EXPECT_EQ(wave.FrameSize(), channels * bits / 8u);
          EXPECT_DOUBLE_EQ(wave.Seconds(), 24.0 * 8 / (channels * bits) / rate);
        }
      }
    }
  }
}

TEST(Wave, UnknownChunksAreSkippedAndOddOnesArePadded) {
  EXPECT_EQ(SamplesOf(Riff(Chunk("LIST", "odd") + FormatChunk + Chunk("fact", "12345") +
                           Chunk("data", TwoFrames) + Chunk("id3 ", "after"))),
            TwoFrames);
  EXPECT_EQ(SamplesOf(Riff(Chunk("JUNK", "") + FormatChunk + Chunk("data", TwoFrames))), TwoFrames);
}

TEST(Wave, TheSoundMayStandBeforeItsFormat) {
  EXPECT_EQ(SamplesOf(Riff(Chunk("data", TwoFrames) + FormatChunk)), TwoFrames);
}

TEST(Wave, OfTwoChunksOfAKindTheFirstCounts) {
  const Wave wave = DecodeWave(Riff(FormatChunk + Chunk("fmt ", Format{1, 2}.Bytes()) +
                                    Chunk("data", TwoFrames) + Chunk("data", "efgh")));
  EXPECT_EQ(wave.channels, 1);
  EXPECT_EQ(wave.samples, TwoFrames);
}

TEST(Wave, AFormatMayBeLongerThanItMust) {
  EXPECT_EQ(
      SamplesOf(Riff(Chunk("fmt ", Format{}.Bytes() + Number(0, 2)) + Chunk("data", TwoFrames))),
      TwoFrames);
}

TEST(Wave, ASizeThatLiesIsCutToWhatIsThere) {
  for (const uint32_t size : {5U, 1'000'000U, 0x7FFF'FFFFU, 0xFFFF'FFFEU, 0xFFFF'FFFFU}) {
    EXPECT_EQ(SamplesOf(Riff(FormatChunk + LyingChunk("data", size, TwoFrames))), TwoFrames);
  }
}

TEST(Wave, TheSizeOfTheWholeFileMayLie) {
  std::string bytes = File(Format{}, TwoFrames);
  for (const uint32_t size : {0U, 4U, 0xFFFF'FFFFU}) {
    bytes.replace(4, 4, Number(size, 4));
    EXPECT_EQ(SamplesOf(bytes), TwoFrames);
  }
}

TEST(Wave, TheRestOfAFrameIsLeftOut) {
  EXPECT_EQ(SamplesOf(File(Format{}, "abcde")), TwoFrames);
  EXPECT_EQ(SamplesOf(File(Format{1, 2}, "abcdefg")), TwoFrames);
  EXPECT_EQ(SamplesOf(File(Format{1, 2, 8'000, 24}, "abcdefghijk")), "abcdef");
}

TEST(Wave, ALastChunkOfOddSizeNeedsNoPadding) {
  EXPECT_EQ(
      SamplesOf(Riff(Chunk("fmt ", Format{1, 1, 8'000, 8}.Bytes()) + LyingChunk("data", 3, "abc"))),
      "abc");
}

TEST(Wave, WhatIsNoWaveFileIsToldAsSuch) {
  const std::string whole = File(Format{}, TwoFrames);
  EXPECT_EQ(CauseFor(""), "SoundNotAWave");
  EXPECT_EQ(CauseFor("MZ"), "SoundNotAWave");
  EXPECT_EQ(CauseFor(std::string(1000, 'x')), "SoundNotAWave");
  EXPECT_EQ(CauseFor(whole.substr(0, 11)), "SoundNotAWave");
  EXPECT_EQ(CauseFor("RIFX" + whole.substr(4)), "SoundNotAWave");
  EXPECT_EQ(CauseFor("RIFF" + Number(4, 4) + "AVI " + whole.substr(12)), "SoundNotAWave");
}

TEST(Wave, WithoutAWholeFormatAFileIsDamaged) {
  EXPECT_EQ(CauseFor(Riff("")), "SoundDamaged");
  EXPECT_EQ(CauseFor(Riff(Chunk("data", TwoFrames))), "SoundDamaged");
  EXPECT_EQ(CauseFor(Riff(Chunk("fmt ", "") + Chunk("data", TwoFrames))), "SoundDamaged");
  EXPECT_EQ(
      CauseFor(Riff(Chunk("fmt ", Format{}.Bytes().substr(0, 15)) + Chunk("data", TwoFrames))),
      "SoundDamaged");
  EXPECT_EQ(CauseFor(Riff(LyingChunk("fmt ", 16, Format{}.Bytes().substr(0, 15)))), "SoundDamaged");
  EXPECT_EQ(CauseFor(Riff("fmt ")), "SoundDamaged") << "half a chunk's header";
}

TEST(Wave, WhatIsCompressedIsToldAsSuch) {
  for (const int tag : {2, 6, 7, 0x11, 0x31, 0x55, 0x161}) {
    EXPECT_EQ(CauseFor(File(Format{tag}, TwoFrames)), "SoundCompressed") << tag;
    EXPECT_EQ(CauseFor(Riff(Chunk("fmt ", Extensible(Format{tag})) + Chunk("data", TwoFrames))),
              "SoundCompressed")
        << tag;
  }
}

TEST(Wave, OtherFormatsAreNotSupported) {
  const auto cause = [](const Format& format) { return CauseFor(File(format, "abcdefghijkl")); };
  EXPECT_EQ(cause({3, 1, 8'000, 32}), "SoundFormatNotSupported") << "floating point";
  for (const int channels : {0, 3, 6, 65'535}) {
    EXPECT_EQ(cause({1, channels}), "SoundFormatNotSupported") << channels;
  }
  for (const int bits : {0, 1, 4, 12, 20, 40, 64, 65'528}) {
    EXPECT_EQ(cause({1, 1, 8'000, bits}), "SoundFormatNotSupported") << bits;
  }
  for (const uint32_t rate : {0U, 99U, 200'001U, 0x8000'0000U, 0xFFFF'FFFFU}) {
    EXPECT_EQ(cause({1, 1, rate}), "SoundFormatNotSupported") << rate;
  }
  for (const int frameSize : {0, 1, 3, 4, 65'535}) {
    EXPECT_EQ(cause({1, 1, 8'000, 16, frameSize}), "SoundFormatNotSupported") << frameSize;
  }
}

TEST(Wave, AnExtensibleFormatMustNameAFormatOfTheKnownKind) {
  const auto cause = [](const std::string& format) {
    return CauseFor(Riff(Chunk("fmt ", format) + Chunk("data", TwoFrames)));
  };
  const std::string whole = Extensible(Format{});
  EXPECT_EQ(cause(whole), "");
  EXPECT_EQ(cause(whole + "more"), "");
  EXPECT_EQ(cause(Extensible(Format{3, 1, 8'000, 32})), "SoundFormatNotSupported");
  EXPECT_EQ(cause(whole.substr(0, 39)), "SoundFormatNotSupported");
  EXPECT_EQ(cause(whole.substr(0, 18)), "SoundFormatNotSupported");
  std::string foreign = whole;
  foreign.back() ^= 1;
  EXPECT_EQ(cause(foreign), "SoundFormatNotSupported");
}

TEST(Wave, AFileWithoutSoundIsToldAsSuch) {
  EXPECT_EQ(CauseFor(Riff(FormatChunk)), "SoundHasNoData");
  EXPECT_EQ(CauseFor(File(Format{}, "")), "SoundHasNoData");
  EXPECT_EQ(CauseFor(File(Format{}, "a")), "SoundHasNoData") << "less than a frame";
  EXPECT_EQ(CauseFor(Riff(FormatChunk + LyingChunk("data", 1000, ""))), "SoundHasNoData");
  EXPECT_EQ(CauseFor(Riff(FormatChunk + LyingChunk("JUNK", 1000, Chunk("data", TwoFrames)))),
            "SoundHasNoData");
}

TEST(Wave, AFailureCarriesTheFile) {
  try {
    DecodeWave("", "C:\\horn.wav");
    ADD_FAILURE() << "did not fail";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.file(), "C:\\horn.wav");
  }
}

TEST(Wave, WhereverAFileIsCutOffItIsReadOrToldOf) {
  const std::string whole =
      Riff(Chunk("LIST", "odd") + Chunk("fmt ", Extensible(Format{})) + Chunk("data", "abcdefgh"));
  size_t sounds = 0;
  for (size_t size = 0; size <= whole.size(); ++size) {
    if (CauseFor(whole.substr(0, size)).empty()) ++sounds;
  }
  EXPECT_EQ(sounds, 7U) << "two bytes of the sound, three, and so on to all eight";
}

TEST(Wave, OfWiderSamplesTheUpper16BitsAreKept) {
  const auto narrowed = [](int bits, const std::string& samples) {
    return AtMost16Bits(Wave{1, bits, 8'000, samples});
  };
  EXPECT_EQ(narrowed(8, "abc").samples, "abc");
  EXPECT_EQ(narrowed(8, "abc").bits, 8);
  EXPECT_EQ(narrowed(16, "abcd").samples, "abcd");
  EXPECT_EQ(narrowed(24, "abcdef").samples, "bcef");
  EXPECT_EQ(narrowed(24, "abcdef").bits, 16);
  EXPECT_EQ(narrowed(32, "abcdefgh").samples, "cdgh");
  EXPECT_EQ(narrowed(32, "abcdefgh").bits, 16);
}

TEST(Wave, ANarrowedSoundLastsAsLong) {
  const Wave wide{2, 24, 8'000, std::string(6 * 400, 'x')};
  EXPECT_DOUBLE_EQ(AtMost16Bits(wide).Seconds(), wide.Seconds());
  EXPECT_EQ(AtMost16Bits(wide).channels, 2);
  EXPECT_EQ(AtMost16Bits(wide).rate, 8'000);
}

}  // namespace
