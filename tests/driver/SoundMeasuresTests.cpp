// What is measured in sounds is what is in them.
#include "e2e/driver/SoundMeasures.h"

#include <gmock/gmock.h>

#include <cmath>
#include <numbers>

namespace {

using E2e::Sound;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr int Rate = 44'100;

Sound Tone(double hertz, double seconds, double loudness = 0.5) {
  Sound sound{Rate, {}};
  const auto count = static_cast<int>(std::lround(seconds * Rate));
  for (int i = 0; i < count; ++i) {
    sound.samples.push_back(
        static_cast<float>(loudness * std::sin(2 * std::numbers::pi * hertz * i / Rate)));
  }
  return sound;
}

Sound Quiet(double seconds) {
  return {Rate, std::vector<float>(static_cast<size_t>(seconds * Rate))};
}

Sound operator+(Sound one, const Sound& other) {
  one.samples.insert(one.samples.end(), other.samples.begin(), other.samples.end());
  return one;
}

// Both at the same time.
Sound operator*(Sound one, const Sound& other) {
  for (size_t i = 0; i < one.samples.size(); ++i) one.samples[i] += other.samples[i];
  return one;
}

TEST(SoundMeasures, TheFrequencyOfAToneIsFoundWithinAThousandth) {
  for (const double hertz : {55.0, 110.5, 440.0, 441.7, 1'000.0, 7'777.7, 15'000.0}) {
    for (const double seconds : {0.3, 0.5, 1.0}) {
      EXPECT_NEAR(E2e::DominantFrequency(Tone(hertz, seconds)), hertz, hertz / 1000) << seconds;
    }
  }
}

TEST(SoundMeasures, TheStrongestOfSeveralTonesComesFirst) {
  const Sound chord = Tone(400, 0.5, 0.2) * Tone(500, 0.5, 0.4) * Tone(3'000, 0.5, 0.1);
  const auto peaks = E2e::Peaks(chord, 3);
  ASSERT_THAT(peaks, SizeIs(3));
  EXPECT_NEAR(peaks[0].hertz, 500, 1);
  EXPECT_NEAR(peaks[1].hertz, 400, 1);
  EXPECT_NEAR(peaks[2].hertz, 3'000, 1);
  EXPECT_DOUBLE_EQ(peaks[0].level, 1);
  EXPECT_NEAR(peaks[1].level, 0.5, 0.05);
  EXPECT_NEAR(peaks[2].level, 0.25, 0.05);
  EXPECT_THAT(E2e::Peaks(chord, 2), SizeIs(2));
}

TEST(SoundMeasures, SilenceHasNoFrequency) {
  EXPECT_THAT(E2e::Peaks(Quiet(0.5), 3), IsEmpty());
  EXPECT_EQ(E2e::DominantFrequency(Quiet(0.5)), 0);
  EXPECT_EQ(E2e::DominantFrequency(Sound{}), 0);
  EXPECT_EQ(E2e::DominantFrequency(Tone(440, 0.5, 0.0009)), 0);
}

TEST(SoundMeasures, TheLoudnessIsTheRootOfTheMeanSquare) {
  EXPECT_NEAR(E2e::Rms(Tone(441, 1)), 0.5 / std::numbers::sqrt2, 1e-4);
  EXPECT_EQ(E2e::Rms(Quiet(1)), 0);
  EXPECT_EQ(E2e::Rms(Sound{}), 0);
}

TEST(SoundMeasures, TheLoudestIsTheFurthestFromTheMiddle) {
  EXPECT_FLOAT_EQ(static_cast<float>(E2e::Loudest({Rate, {0.1F, -0.6F, 0.5F}})), 0.6F);
  EXPECT_EQ(E2e::Loudest(Sound{}), 0);
}

TEST(SoundMeasures, SilencesAreFoundWhereTheyAre) {
  const Sound sound = Quiet(0.2) + Tone(441, 0.3) + Quiet(0.01) + Tone(441, 0.2) + Quiet(0.5);
  const auto silences = E2e::Silences(sound, 0.1);
  ASSERT_THAT(silences, SizeIs(2));
  EXPECT_NEAR(silences[0].begin, 0, 0.001);
  EXPECT_NEAR(silences[0].end, 0.2, 0.001);
  EXPECT_NEAR(silences[1].begin, 0.71, 0.001);
  EXPECT_NEAR(silences[1].end, 1.21, 0.001);
  EXPECT_THAT(E2e::Silences(sound, 0.009), SizeIs(3)) << "the gap too";
  EXPECT_THAT(E2e::Silences(Tone(441, 1), 0.001), IsEmpty());
  EXPECT_TRUE(E2e::IsSilent(Quiet(1)));
  EXPECT_FALSE(E2e::IsSilent(sound));
}

TEST(SoundMeasures, SilenceAroundIsLeftOutAndSilenceWithinIsNot) {
  const Sound sound = Quiet(0.2) + Tone(441, 0.3) + Quiet(0.1) + Tone(441, 0.3) + Quiet(0.5);
  EXPECT_NEAR(E2e::WithoutSilenceAround(sound).Seconds(), 0.7, 0.001);
  EXPECT_THAT(E2e::WithoutSilenceAround(Quiet(1)).samples, IsEmpty());
  EXPECT_THAT(E2e::WithoutSilenceAround(Sound{}).samples, IsEmpty());
}

TEST(SoundMeasures, APartIsCutAtTheSoundsEnds) {
  const Sound sound = Tone(441, 1);
  EXPECT_THAT(E2e::Part(sound, 0.25, 0.5).samples, SizeIs(Rate / 2));
  EXPECT_EQ(E2e::Part(sound, 0.25, 0.5).samples[0], sound.samples[Rate / 4]);
  EXPECT_THAT(E2e::Part(sound, 0.9, 0.5).samples, SizeIs(Rate / 10));
  EXPECT_THAT(E2e::Part(sound, -1, 1.5).samples, SizeIs(Rate / 2));
  EXPECT_THAT(E2e::Part(sound, 2, 1).samples, IsEmpty());
}

TEST(SoundMeasures, AClickIsFoundWhereTheWaveBreaks) {
  // Whole periods, of a hundred samples each.
  const Sound whole = Tone(441, 132.0 / 441);
  EXPECT_THAT(E2e::Clicks(whole + whole + whole), IsEmpty());
  Sound broken = whole;
  broken.samples.resize(broken.samples.size() - 25);
  EXPECT_THAT(E2e::Clicks(broken + whole),
              ElementsAre(DoubleNear(132.0 / 441 - 25.0 / Rate, 0.001)));
  Sound missing = whole;
  for (int i = 0; i < 40; ++i) missing.samples[Rate / 10 + 10 + i] = 0;
  EXPECT_THAT(E2e::Clicks(missing), testing::Not(IsEmpty()));
}

TEST(SoundMeasures, WhatASoundDoesAllTheTimeIsNoClick) {
  // A stroke every fiftieth of a second, as of an engine.
  Sound strokes = Quiet(0.5);
  for (size_t i = 0; i < strokes.samples.size(); i += Rate / 50) strokes.samples[i] = 0.9F;
  EXPECT_THAT(E2e::Clicks(strokes), IsEmpty());
}

}  // namespace
