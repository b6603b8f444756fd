// What a sound does when its device does odd things, beyond what a real machine can be made to do.
#include "platform/Sound.h"

#include "tests/FailureSweep.h"
#include "tests/Story.h"
#include "tests/WaveBytes.h"
#include "ui/Forms.h"

namespace {

using Platform::Looping;
using Platform::SoundBuffer;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::SizeIs;

class Sound : public Story {
 protected:
  Sound() { Platform::StartProgram(main); }

  Platform::Form main{FixedText("Main")};
  const Wave tone = WaveBytes::Tone(441, 2);
};

TEST_F(Sound, ThatIsPlayedOnceIsOverByTheClockEvenIfTheDeviceSaysThatItPlays) {
  SoundBuffer sound(tone);
  sound.Play(Looping::No);
  machine.clock.Pass(2.9);
  EXPECT_TRUE(sound.IsPlaying());
  machine.clock.Pass(0.2);
  EXPECT_FALSE(sound.IsPlaying());
  EXPECT_THAT(machine.sound.Playing(), IsEmpty());
}

TEST_F(Sound, ThatIsPlayedSlowerIsOverLater) {
  SoundBuffer sound(tone);
  sound.SetFrequency(tone.rate / 2);
  sound.Play(Looping::No);
  machine.clock.Pass(4.9);
  EXPECT_TRUE(sound.IsPlaying());
  sound.SetFrequency(tone.rate);
  machine.clock.Pass(2.9);
  EXPECT_TRUE(sound.IsPlaying()) << "how much of it is left is not known";
  machine.clock.Pass(0.2);
  EXPECT_FALSE(sound.IsPlaying());
}

TEST_F(Sound, ThatLoopsIsNeverOverByTheClock) {
  SoundBuffer sound(tone);
  sound.Play(Looping::Yes);
  machine.clock.Pass(86'400 * 3);
  EXPECT_TRUE(sound.IsPlaying());
}

TEST_F(Sound, IsNotOverBeforeTheDeviceHasBegun) {
  SoundBuffer sound(tone);
  sound.Play(Looping::No);
  machine.sound.SilenceAll();  // as it is before it is heard
  EXPECT_TRUE(sound.IsPlaying());
  machine.clock.Pass(0.9);
  EXPECT_TRUE(sound.IsPlaying());
  machine.clock.Pass(0.2);
  EXPECT_FALSE(sound.IsPlaying());
}

TEST_F(Sound, ThatIsShortIsOverWhenItsTimeIs) {
  SoundBuffer sound(WaveBytes::Tone(441, 0.1));
  sound.Play(Looping::No);
  machine.sound.SilenceAll();
  EXPECT_TRUE(sound.IsPlaying());
  machine.clock.Pass(0.11);
  EXPECT_FALSE(sound.IsPlaying());
}

TEST_F(Sound, ThatHasBeenHeardIsOverAsSoonAsItIsSilent) {
  SoundBuffer sound(tone);
  sound.Play(Looping::No);
  EXPECT_TRUE(sound.IsPlaying());
  machine.sound.EndSounds();
  EXPECT_FALSE(sound.IsPlaying());
}

TEST_F(Sound, KeepsItsRateWhereTheDevicesOwnLimitIsLower) {
  machine.sound.SetHighestRate(100'000);
  SoundBuffer sound(tone);
  sound.Play(Looping::Yes);
  sound.SetFrequency(100'000);
  EXPECT_THROW(sound.SetFrequency(100'001), RuntimeError);
  EXPECT_TRUE(sound.IsPlaying());
  sound.Stop();
  EXPECT_THROW(sound.SetFrequency(100'001), RuntimeError) << "silent too";
  sound.Play(Looping::Yes);
  EXPECT_THAT(machine.sound.Playing(), ElementsAre(Field(&Simulated::PlayedSound::rate, 100'000)));
}

TEST_F(Sound, OpensTheDeviceAnewOnceOnly) {
  SoundBuffer sound(tone);
  sound.Play(Looping::Yes);
  EXPECT_EQ(machine.sound.Openings(), 1);
  for (int openings : {2, 2, 2}) {
    machine.sound.Unplug();
    machine.sound.PlugIn();
    const bool isPlaying = sound.IsPlaying();
    EXPECT_THAT(machine.sound.Playing(), SizeIs(isPlaying ? 1 : 0));
    EXPECT_EQ(machine.sound.Openings(), openings);
  }
  EXPECT_FALSE(sound.IsPlaying());
  sound.Play(Looping::Yes);
  EXPECT_TRUE(sound.IsPlaying()) << "what the user asks for again is tried again";
  EXPECT_EQ(machine.sound.Openings(), 3);
}

TEST_F(Sound, WhoseMemoryIsLostStaysOnItsDevice) {
  SoundBuffer sound(tone);
  sound.Play(Looping::Yes);
  for (int times = 0; times < 3; ++times) {
    machine.sound.LoseSounds();
    EXPECT_TRUE(sound.IsPlaying());
    EXPECT_EQ(machine.sound.Openings(), 1);
  }
  machine.sound.LoseSounds();
  EXPECT_TRUE(sound.IsPlaying());
  EXPECT_EQ(machine.sound.Openings(), 2) << "restoring does not help";
}

TEST_F(Sound, ThatLoopsAndFallsSilentIsTakenUpOnAnotherDevice) {
  SoundBuffer sound(tone);
  sound.Play(Looping::Yes);
  EXPECT_TRUE(sound.IsPlaying());
  machine.sound.SilenceAll();
  EXPECT_TRUE(sound.IsPlaying());
  EXPECT_EQ(machine.sound.Openings(), 2);
  EXPECT_THAT(machine.sound.Playing(), SizeIs(1));
  EXPECT_TRUE(sound.IsPlaying());
  machine.sound.SilenceAll();
  EXPECT_FALSE(sound.IsPlaying());
}

TEST_F(Sound, MayBePlayingWhenTheMachineGoes) {
  SoundBuffer sound(tone);
  sound.Play(Looping::Yes);
}

TEST_F(Sound, IsRememberedAsItWasPlayed) {
  SoundBuffer sound(tone);
  sound.SetFrequency(1'000);
  sound.Play(Looping::No);
  sound.Play(Looping::Yes);
  ASSERT_THAT(machine.sound.Played(), SizeIs(2));
  const auto& [samples, channels, bits, rate, isLooping] = machine.sound.Played()[0];
  EXPECT_EQ(samples, tone.samples);
  EXPECT_EQ(channels, 1);
  EXPECT_EQ(bits, 16);
  EXPECT_EQ(rate, 1'000);
  EXPECT_FALSE(isLooping);
  EXPECT_TRUE(machine.sound.Played()[1].isLooping);
}

// A single failure is never more than the sound that does not come, and most are not even heard.
TEST(SoundSweep, AnySingleFailureIsMendedOrTold) {
  const Wave tone = WaveBytes::Tone(441, 2);
  const auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After after) {
    Platform::Form main(FixedText("Main"));
    Platform::StartProgram(main);
    machine.FailAnyCall(after);
    bool isTold = false;
    try {
      SoundBuffer sound(tone);
      sound.SetFrequency(8'000);
      sound.Play(Looping::Yes);
      EXPECT_TRUE(sound.IsPlaying());
      EXPECT_THAT(machine.sound.Playing(), SizeIs(1));
      machine.sound.LoseSounds();
      EXPECT_TRUE(sound.IsPlaying());
      ASSERT_THAT(machine.sound.Playing(), SizeIs(1));
      EXPECT_EQ(machine.sound.Playing()[0].samples, tone.samples);
      EXPECT_EQ(machine.sound.Playing()[0].rate, 8'000);
      sound.Stop();
      EXPECT_FALSE(sound.IsPlaying());
      EXPECT_THAT(machine.sound.Playing(), IsEmpty());
    } catch (const RuntimeError&) {
      isTold = true;
    }
    EXPECT_THAT(machine.sound.Playing(), IsEmpty());
    EXPECT_EQ(isTold, machine.FailedCall() == "OpenSoundDevice" ||
                          machine.FailedCall() == "SoundOnDevice::SetFrequency");
  });
  EXPECT_THAT(calls, ElementsAre("OpenSoundDevice", "SoundOnDevice", "SoundOnDevice::SetFrequency",
                                 "SoundOnDevice::Stop", "SoundOnDevice::Play", "SoundOnDevice::Ask",
                                 "SoundOnDevice::Ask", "SoundOnDevice::Restore",
                                 "SoundOnDevice::Play", "SoundOnDevice::Stop"));
}

}  // namespace
