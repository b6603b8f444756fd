// What every machine promises of sounds. Included once by each machine's tests.
#pragma once

#include <gmock/gmock.h>

#include <optional>
#include <sstream>
#include <vector>

#include "base/PerRun.h"
#include "base/RuntimeError.h"
#include "platform/Sound.h"
#include "tests/WaveBytes.h"
#include "tests/machine/TestMachine.h"
#include "ui/Forms.h"

namespace TestMachine {
inline void PrintTo(const SoundPlaying& sound, std::ostream* out) {
  *out << sound.samples.size() << " bytes, " << sound.channels << " channels, " << sound.bits
       << " bits, at " << sound.rate << (sound.isLooping ? ", looped" : ", once");
}
}  // namespace TestMachine

class SoundContract : public ContractTest {
 protected:
  SoundContract() { Platform::StartProgram(owner); }

  void SetUp() override {
    if (!TestMachine::HasSoundDevice()) GTEST_SKIP() << "there is no sound device";
  }

  // What is heard of a wave of at most 16 bits.
  static TestMachine::SoundPlaying Heard(const Wave& wave, Platform::Looping looping) {
    return {wave.samples, wave.channels, wave.bits, wave.rate, looping == Platform::Looping::Yes};
  }
  // The same at another rate.
  static TestMachine::SoundPlaying HeardAt(int rate, const Wave& wave, Platform::Looping looping) {
    TestMachine::SoundPlaying heard = Heard(wave, looping);
    heard.rate = rate;
    return heard;
  }

  // The key of the cause for which an action fails; "" if it does not.
  static std::string CauseFor(const std::function<void()>& action) {
    try {
      action();
      return "";
    } catch (const RuntimeError& error) {
      return error.cause().key;
    }
  }

  // What the system said of the failure of an action, as the last line of the user's box has it:
  // "Opening the sound device: 88780078". Empty if it said nothing.
  static std::string SystemCauseFor(const std::function<void()>& action) {
    try {
      action();
      ADD_FAILURE() << "it did not fail";
    } catch (const RuntimeError& error) {
      const SystemCause& system = error.system();
      if (!system.step.english) return "";
      std::ostringstream said;
      said << system.step.english << ": " << std::hex << system.code;
      return said.str();
    }
    return "";
  }

  static std::vector<TestMachine::SoundPlaying> Playing() { return TestMachine::SoundsPlaying(); }

  static constexpr auto Once = Platform::Looping::No;
  static constexpr auto Looped = Platform::Looping::Yes;

  Platform::Form owner{FixedText("Owner")};
  // Long enough that none ends before a test lets it.
  const Wave tone = WaveBytes::Tone(441, 60, 8'000);
  const Wave otherTone = WaveBytes::Tone(882, 30, 4'000);
};

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(SoundContract, TheDeviceIsOpenedOnce) {
  EXPECT_FALSE(Platform::IsSoundDeviceOpen());
  Platform::OpenSoundDevice();
  EXPECT_TRUE(Platform::IsSoundDeviceOpen());
  EXPECT_NO_THROW(Platform::OpenSoundDevice());
  EXPECT_TRUE(Platform::IsSoundDeviceOpen());
}

TEST_F(SoundContract, TheDeviceIsOpenedForTheFirstSound) {
  Platform::SoundBuffer sound(tone);
  EXPECT_TRUE(Platform::IsSoundDeviceOpen());
  EXPECT_FALSE(sound.IsPlaying());
  EXPECT_THAT(Playing(), IsEmpty());
}

TEST_F(SoundContract, ASoundIsPlayedOnceToItsEnd) {
  Platform::SoundBuffer sound(otherTone);
  for (int times = 0; times < 2; ++times) {
    sound.Play(Once);
    EXPECT_TRUE(sound.IsPlaying());
    EXPECT_THAT(Playing(), ElementsAre(Heard(otherTone, Once)));
    TestMachine::LetSoundsEnd();
    EXPECT_FALSE(sound.IsPlaying());
    EXPECT_THAT(Playing(), IsEmpty());
  }
}

TEST_F(SoundContract, ALoopedSoundPlaysUntilItIsStopped) {
  Platform::SoundBuffer sound(otherTone);
  for (int times = 0; times < 2; ++times) {
    sound.Play(Looped);
    TestMachine::LetSoundsEnd();
    EXPECT_TRUE(sound.IsPlaying());
    EXPECT_THAT(Playing(), ElementsAre(Heard(otherTone, Looped)));
    sound.Stop();
    EXPECT_FALSE(sound.IsPlaying());
    EXPECT_THAT(Playing(), IsEmpty());
  }
  EXPECT_NO_THROW(sound.Stop());
}

TEST_F(SoundContract, APlayingSoundBeginsAnew) {
  Platform::SoundBuffer sound(tone);
  sound.Play(Once);
  sound.Play(Looped);
  EXPECT_THAT(Playing(), ElementsAre(Heard(tone, Looped)));
  sound.Play(Once);
  EXPECT_THAT(Playing(), ElementsAre(Heard(tone, Once)));
}

TEST_F(SoundContract, SeveralPlayAtTheSameTime) {
  Platform::SoundBuffer one(tone);
  Platform::SoundBuffer other(otherTone);
  one.Play(Looped);
  other.Play(Once);
  EXPECT_THAT(Playing(), ElementsAre(Heard(tone, Looped), Heard(otherTone, Once)));
  EXPECT_TRUE(one.IsPlaying());
  EXPECT_TRUE(other.IsPlaying());
  TestMachine::LetSoundsEnd();
  EXPECT_TRUE(one.IsPlaying());
  EXPECT_FALSE(other.IsPlaying());
}

TEST_F(SoundContract, EveryFormatIsPlayed) {
  for (const int channels : {1, 2}) {
    for (const int rate : {LowestRate, 8'000, 44'100, HighestRate}) {
      for (const int bits : {8, 16, 24, 32}) {
        const Wave wave{channels, bits, rate, std::string(4'800, '\x31')};
        Platform::SoundBuffer sound(wave);
        sound.Play(Looped);
        EXPECT_THAT(Playing(), ElementsAre(Heard(AtMost16Bits(wave), Looped)));
      }
    }
  }
}

TEST_F(SoundContract, ASoundOfOneFrameIsPlayed) {
  Platform::SoundBuffer sound(Wave{1, 8, 8'000, "\x70"});
  sound.Play(Looped);
  EXPECT_TRUE(sound.IsPlaying());
}

TEST_F(SoundContract, ASoundThatGoesIsStopped) {
  {
    Platform::SoundBuffer sound(tone);
    sound.Play(Looped);
  }
  EXPECT_THAT(Playing(), IsEmpty());
}

TEST_F(SoundContract, ASoundThatIsMovedGoesOn) {
  Platform::SoundBuffer first(tone);
  first.Play(Looped);
  Platform::SoundBuffer second(std::move(first));
  EXPECT_TRUE(second.IsPlaying());
  EXPECT_THAT(Playing(), ElementsAre(Heard(tone, Looped)));
  second = Platform::SoundBuffer(otherTone);
  EXPECT_THAT(Playing(), IsEmpty()) << "the one that it was is gone";
  EXPECT_FALSE(second.IsPlaying());
}

TEST_F(SoundContract, ASoundIsPlayedAtAnotherRate) {
  Platform::SoundBuffer sound(tone);
  sound.SetFrequency(11'025);
  sound.Play(Looped);
  EXPECT_THAT(Playing(), ElementsAre(HeardAt(11'025, tone, Looped)));
  for (const int rate : {LowestRate, HighestRate, 33'075}) {
    sound.SetFrequency(rate);
    EXPECT_THAT(Playing(), ElementsAre(HeardAt(rate, tone, Looped)));
  }
  sound.Stop();
  sound.Play(Looped);
  EXPECT_THAT(Playing(), ElementsAre(HeardAt(33'075, tone, Looped)));
}

TEST_F(SoundContract, AnImpossibleRateIsToldAndChangesNothing) {
  Platform::SoundBuffer sound(tone);
  sound.Play(Looped);
  for (const int rate :
       {0, -1, LowestRate - 1, HighestRate + 1, 2'147'483'647, -2'147'483'647 - 1}) {
    EXPECT_EQ(CauseFor([&] { sound.SetFrequency(rate); }), "SoundFrequencyNotPossible") << rate;
    EXPECT_TRUE(sound.IsPlaying());
    EXPECT_THAT(Playing(), ElementsAre(Heard(tone, Looped)));
  }
}

TEST_F(SoundContract, WithoutAnyDataThereIsNoSound) {
  EXPECT_EQ(CauseFor([] { Platform::SoundBuffer(Wave{1, 16, 8'000, ""}); }), "SoundHasNoData");
  EXPECT_EQ(CauseFor([] { Platform::SoundBuffer(Wave{2, 16, 8'000, "abc"}); }), "SoundHasNoData");
}

TEST_F(SoundContract, LostMemoryIsFilledAnew) {
  Platform::SoundBuffer sound(tone);
  sound.SetFrequency(11'025);
  sound.Play(Looped);
  TestMachine::LoseSounds();
  EXPECT_THAT(Playing(), IsEmpty());
  EXPECT_TRUE(sound.IsPlaying());
  EXPECT_THAT(Playing(), ElementsAre(HeardAt(11'025, tone, Looped)));

  sound.Stop();
  TestMachine::LoseSounds();
  EXPECT_FALSE(sound.IsPlaying());
  sound.Play(Once);
  EXPECT_THAT(Playing(), ElementsAre(HeardAt(11'025, tone, Once)));
}

TEST_F(SoundContract, MemoryThatIsLostAgainAndAgainEndsTheSound) {
  Platform::SoundBuffer sound(tone);
  sound.Play(Looped);
  int times = 0;
  while (sound.IsPlaying() && times < 100) {
    TestMachine::LoseSounds();
    ++times;
  }
  EXPECT_LT(times, 10);
  EXPECT_THAT(Playing(), IsEmpty());
}

TEST_F(SoundContract, WhenTheDeviceGoesAwayTheSoundIsOver) {
  for (const auto looping : {Once, Looped}) {
    Platform::SoundBuffer sound(tone);
    sound.Play(looping);
    TestMachine::UnplugSoundDevice();
    EXPECT_FALSE(sound.IsPlaying());
    EXPECT_FALSE(sound.IsPlaying());
    EXPECT_NO_THROW(sound.Stop());
    EXPECT_EQ(CauseFor([&] { sound.Play(looping); }), "SoundNotAvailable");
    EXPECT_FALSE(sound.IsPlaying());
    EXPECT_FALSE(Platform::IsSoundDeviceOpen());
    TestMachine::PlugInSoundDevice();
    EXPECT_THAT(Playing(), IsEmpty());
    sound.Play(looping);
    EXPECT_THAT(Playing(), ElementsAre(Heard(tone, looping)));
  }
}

TEST_F(SoundContract, WhenAnotherDeviceIsThereTheSoundGoesOnThere) {
  Platform::SoundBuffer sound(tone);
  sound.SetFrequency(11'025);
  for (const auto looping : {Once, Looped}) {
    sound.Play(looping);
    TestMachine::UnplugSoundDevice();
    TestMachine::PlugInSoundDevice();
    EXPECT_THAT(Playing(), IsEmpty());
    EXPECT_TRUE(sound.IsPlaying());
    EXPECT_THAT(Playing(), ElementsAre(HeardAt(11'025, tone, looping)));
  }
}

TEST_F(SoundContract, AllSoundsGoOnOnTheOtherDevice) {
  Platform::SoundBuffer one(tone);
  Platform::SoundBuffer other(otherTone);
  Platform::SoundBuffer silent(tone);
  one.Play(Looped);
  other.Play(Looped);
  TestMachine::UnplugSoundDevice();
  TestMachine::PlugInSoundDevice();
  EXPECT_TRUE(one.IsPlaying());
  EXPECT_TRUE(other.IsPlaying());
  EXPECT_FALSE(silent.IsPlaying());
  EXPECT_THAT(Playing(), ElementsAre(Heard(tone, Looped), Heard(otherTone, Looped)));
  silent.Play(Once);
  EXPECT_TRUE(one.IsPlaying());
  EXPECT_THAT(Playing(),
              ElementsAre(Heard(tone, Looped), Heard(otherTone, Looped), Heard(tone, Once)));
}

TEST_F(SoundContract, AGoneDeviceIsLeftWithoutAFailure) {
  Platform::SoundBuffer sound(tone);
  sound.Play(Looped);
  TestMachine::UnplugSoundDevice();
  EXPECT_NO_THROW(sound.SetFrequency(11'025));
  EXPECT_NO_THROW(sound.Stop());
  EXPECT_FALSE(sound.IsPlaying());
  TestMachine::PlugInSoundDevice();
  sound.Play(Looped);
  EXPECT_THAT(Playing(), ElementsAre(HeardAt(11'025, tone, Looped)));
}

TEST_F(SoundContract, WithoutADeviceNoSoundIsMade) {
  TestMachine::UnplugSoundDevice();
  EXPECT_EQ(CauseFor([] { Platform::OpenSoundDevice(); }), "SoundNotAvailable");
  EXPECT_FALSE(Platform::IsSoundDeviceOpen());
  EXPECT_EQ(CauseFor([&] { Platform::SoundBuffer sound(tone); }), "SoundNotAvailable");
  TestMachine::PlugInSoundDevice();
  Platform::SoundBuffer sound(tone);
  sound.Play(Once);
  EXPECT_THAT(Playing(), ElementsAre(Heard(tone, Once)));
}

TEST_F(SoundContract, ASoundIsMadeOnAnotherDeviceIfTheFirstHasGone) {
  Platform::OpenSoundDevice();
  TestMachine::UnplugSoundDevice();
  TestMachine::PlugInSoundDevice();
  Platform::SoundBuffer sound(tone);
  sound.Play(Once);
  EXPECT_THAT(Playing(), ElementsAre(Heard(tone, Once)));
}

TEST_F(SoundContract, AtTheEndOfTheRunAllFallsSilent) {
  Platform::SoundBuffer one(tone);
  Platform::SoundBuffer other(otherTone);
  one.Play(Looped);
  other.Play(Once);
  RunObjects::End();
  EXPECT_THAT(Playing(), IsEmpty());
  EXPECT_FALSE(one.IsPlaying());
  EXPECT_EQ(CauseFor([&] { other.Play(Once); }), "SoundNotAvailable");
}

// --- What the system said of a failure ---

TEST_F(SoundContract, WithoutADeviceTheUserIsToldTheSystemsCodeForThat) {
  const std::string noDriver = "Opening the sound device: 88780078";
  Platform::SoundBuffer sound(tone);
  TestMachine::UnplugSoundDevice();
  // What was tried last counts: the device that has gone gives codes of every kind.
  EXPECT_EQ(SystemCauseFor([&] { sound.Play(Once); }), noDriver);
  EXPECT_EQ(SystemCauseFor([] { Platform::OpenSoundDevice(); }), noDriver);
  EXPECT_EQ(SystemCauseFor([&] { Platform::SoundBuffer(Wave(tone)); }), noDriver);
}

TEST_F(SoundContract, ADeviceThatTakesNoSoundSaysWhy) {
  TestMachine::LetSoundDeviceRefuse(TestMachine::SoundCall::Make);
  EXPECT_EQ(SystemCauseFor([&] { Platform::SoundBuffer(Wave(tone)); }),
            "Making a sound buffer: 8878000a");
  EXPECT_TRUE(Platform::IsSoundDeviceOpen());
}

TEST_F(SoundContract, ADeviceThatPlaysNoSoundSaysWhy) {
  TestMachine::LetSoundDeviceRefuse(TestMachine::SoundCall::Play);
  Platform::SoundBuffer sound(tone);
  EXPECT_EQ(SystemCauseFor([&] { sound.Play(Once); }), "Playing a sound: 8878000a");
  EXPECT_FALSE(sound.IsPlaying());
}

TEST_F(SoundContract, ADeviceThatKnowsNoSuchRateSaysWhy) {
  Platform::SoundBuffer sound(tone);
  sound.Play(Looped);
  TestMachine::LetSoundDeviceRefuse(TestMachine::SoundCall::SetFrequency);
  EXPECT_EQ(SystemCauseFor([&] { sound.SetFrequency(11'025); }),
            "Setting the frequency of a sound: 8878000a");
  EXPECT_EQ(CauseFor([&] { sound.SetFrequency(11'025); }), "SoundFrequencyNotPossible");
  EXPECT_EQ(SystemCauseFor([&] { sound.SetFrequency(HighestRate + 1); }), "")
      << "the device was not even asked";
  EXPECT_THAT(Playing(), ElementsAre(Heard(tone, Looped)));
}
