// What the sound service plays comes out of the speakers: recorded and measured.
#include <gmock/gmock.h>

#include <cmath>

#include "base/PerRun.h"
#include "e2e/driver/Recording.h"
#include "e2e/driver/Wait.h"
#include "platform/Sound.h"
#include "tests/WaveBytes.h"
#include "tests/machine/RealMachine.h"
#include "tests/machine/TestMachine.h"
#include "ui/Forms.h"

namespace {

using Platform::Looping;
using Platform::SoundBuffer;

class Speakers : public ContractTest {
 protected:
  Speakers() { Platform::StartProgram(main); }

  void SetUp() override {
    if (RealMachine::SpeakersFile().empty()) GTEST_SKIP() << "nobody records the speakers";
    // What the test before has played.
    Begun().WaitForSilence(0.2);
  }

  static E2e::Recording Begun() { return E2e::Recording(RealMachine::SpeakersFile()); }

  // What comes out next, once something does.
  static E2e::Sound Next(double seconds) {
    E2e::Recording recording = Begun();
    recording.WaitForSound();
    return recording.Take(seconds);
  }

  // A busy machine is late with what is to be played, and then there is a gap that is not the
  // program's, while what the program does wrong comes again and again. So these listen until what
  // they hear is right, or it never is.
  static void ExpectSoon(double hertz) {
    double heard = 0;
    EXPECT_TRUE(E2e::ComesTrue([&] {
      heard = E2e::DominantFrequency(Next(0.5));
      return std::abs(heard - hertz) < hertz * 0.02;
    })) << "wanted "
        << hertz << ", heard " << heard;
  }

  static constexpr double Loudness = 0.5;
  static constexpr double Hertz = 441;
  static constexpr int Rate = 22'050;

  Platform::Form main{FixedText("Main")};
  // Whole periods, so that its end meets its beginning.
  const Wave tone = WaveBytes::Tone(Hertz, 0.4, Rate, Loudness);
};

TEST_F(Speakers, AToneIsHeardAsItIs) {
  SoundBuffer sound(tone);
  sound.Play(Looping::Yes);
  ExpectSoon(Hertz);
  EXPECT_NEAR(E2e::Loudest(Next(0.5)), Loudness, 0.1);
}

TEST_F(Speakers, ItsPitchFollowsTheRate) {
  SoundBuffer sound(tone);
  sound.Play(Looping::Yes);
  for (const double ratio : {1.0, 0.5, 2.0, 3.0, 0.25}) {
    sound.SetFrequency(static_cast<int>(Rate * ratio));
    ExpectSoon(Hertz * ratio);
  }
}

// The shorter the sound, the sooner the machine plays it some times over without being late.
class LoopedSpeakers : public Speakers {
 protected:
  // Four lengths of the sound as soon as they came out without a gap.
  static E2e::Sound NextWithoutGap(const Wave& wave) {
    E2e::Sound heard;
    EXPECT_TRUE(E2e::ComesTrue([&] {
      heard = Next(4 * wave.Seconds());
      return E2e::Silences(heard, 0.002).empty();
    }));
    return heard;
  }

  // Forty-four whole periods.
  const Wave shortTone = WaveBytes::Tone(Hertz, 44 / Hertz, Rate, Loudness);
};

TEST_F(LoopedSpeakers, NeitherFallSilentNorClick) {
  SoundBuffer sound(shortTone);
  sound.Play(Looping::Yes);
  EXPECT_TRUE(E2e::ComesTrue([&] { return E2e::Clicks(NextWithoutGap(shortTone)).empty(); }));
}

TEST_F(LoopedSpeakers, ClickWhereTheSoundDoesNotFitTogether) {
  Wave broken = shortTone;
  constexpr int Period = 2 * Rate / static_cast<int>(Hertz);
  broken.samples.resize(broken.samples.size() - Period / 4 * 2);
  SoundBuffer sound(broken);
  sound.Play(Looping::Yes);
  EXPECT_TRUE(E2e::ComesTrue([&] { return E2e::Clicks(NextWithoutGap(broken)).size() == 4; }));
}

TEST_F(Speakers, ASoundIsHeardOnceAndThenThereIsSilence) {
  SoundBuffer sound(tone);
  E2e::Recording recording = Begun();
  sound.Play(Looping::No);
  recording.WaitForSound();
  const E2e::Sound heard = recording.WaitForSilence(3 * tone.Seconds());
  double seconds = heard.Seconds();
  for (const E2e::Stretch& gap : E2e::Silences(heard, 0.002)) seconds -= gap.end - gap.begin;
  EXPECT_NEAR(seconds, tone.Seconds(), 0.05);
  EXPECT_TRUE(E2e::ComesTrue([&] { return !sound.IsPlaying(); }));
}

TEST_F(Speakers, StopIsFollowedBySilenceAndPlayBeginsAtTheBeginning) {
  // High at first, and low for the rest.
  Wave wave = WaveBytes::Tone(1'764, 0.5, Rate, Loudness);
  wave.samples += WaveBytes::Tone(Hertz, 60, Rate, Loudness).samples;
  SoundBuffer sound(wave);
  for (int times = 0; times < 2; ++times) {
    E2e::Recording recording = Begun();
    sound.Play(Looping::Yes);
    recording.WaitForSound();
    EXPECT_NEAR(E2e::DominantFrequency(recording.Take(0.3)), 1'764, 1'764 * 0.02);
    ExpectSoon(Hertz);
    sound.Stop();
    recording.WaitForSilence(0.5);
  }
}

TEST_F(Speakers, SoundsOfEveryWidthAreHeardAlike) {
  for (const int bits : {8, 16, 24, 32}) {
    Wave wave{1, bits, Rate, ""};
    for (size_t i = 0; i + 1 < tone.samples.size(); i += 2) {
      const std::string sample = tone.samples.substr(i, 2);
      if (bits == 8) wave.samples += static_cast<char>(sample[1] ^ 0x80);
      if (bits > 8) wave.samples += std::string(bits / 8 - 2, '\0') + sample;
    }
    SoundBuffer sound(wave);
    sound.Play(Looping::Yes);
    ExpectSoon(Hertz);
    EXPECT_NEAR(E2e::Loudest(Next(0.5)), Loudness, 0.1) << bits;
    sound.Stop();
    Begun().WaitForSilence(0.2);
  }
}

TEST_F(Speakers, AllAreSilentAtTheEndOfTheRun) {
  SoundBuffer sound(tone);
  sound.Play(Looping::Yes);
  Next(0.1);
  RunObjects::End();
  Begun().WaitForSilence(0.5);
}

}  // namespace
