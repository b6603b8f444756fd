// What the vehicle editor plays, as it comes out of the speakers.
#include <cmath>
#include <numbers>
#include <random>

#include "e2e/driver/Recording.h"
#include "e2e/driver/VehicleEditorDriver.h"

namespace E2e {
namespace {

constexpr int Rate = 22'050;

std::string Number(uint32_t number, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text += static_cast<char>(number >> (8 * i));
  return text;
}

// A wave file with a tone of a whole number of periods, so that it can be looped.
std::string ToneFile(double hertz, double seconds) {
  std::string samples;
  const int count = static_cast<int>(seconds * Rate);
  for (int i = 0; i < count; ++i) {
    const double value = 0.3 * std::sin(2 * std::numbers::pi * hertz * i / Rate);
    samples += Number(static_cast<uint32_t>(static_cast<int>(value * 32767)), 2);
  }
  const auto size = static_cast<uint32_t>(samples.size());
  return "RIFF" + Number(36 + size, 4) + "WAVEfmt " + Number(16, 4) + Number(1, 2) + Number(1, 2) +
         Number(Rate, 4) + Number(Rate * 2, 4) + Number(2, 2) + Number(16, 2) + "data" +
         Number(size, 4) + samples;
}

class SoundTest : public VehicleEditorTest {
 protected:
  void SetUp() override {
    if (Given().speakers.empty()) GTEST_SKIP() << "nobody records the speakers";
  }

  // Presses Test Sound or Stop, and waits for the caption that comes of it.
  void PressTest(const std::string& caption) {
    RunningPack().Press("Alt+T");
    const Window editor = RunningPack().WaitForWindow(EditorTitle);
    WaitUntil("the caption " + caption, [&] { return editor.focus()->name() == caption; });
  }

  // What is heard from the beginning of the sound on.
  Sound HearTest(double seconds) {
    Recording recording(Given().speakers);
    PressTest("Stop");
    recording.WaitForSound();
    Sound heard = recording.Take(seconds);
    return heard;
  }

  void StopTest() {
    Recording recording(Given().speakers);
    PressTest("Test Sound");
    recording.WaitForSilence(0.5);
  }
};

TEST_F(SoundTest, SoundIsLoopedWithoutGapUntilItIsStopped) {
  constexpr double Hertz = 440;
  constexpr double Length = 0.2;
  Recording before(Given().speakers);
  StartVehicle("rocket");
  WriteFile(vehicle("tone.wav"), ToneFile(Hertz, Length));
  SetSoundFile("Horn Sound", "tone.wav");
  GoTo("Horn Sound");
  EXPECT_TRUE(IsSilent(before.SoFar()));

  Recording recording(Given().speakers);
  PressTest("Stop");
  recording.WaitForSound();
  EXPECT_NEAR(DominantFrequency(recording.Take(0.5)), Hertz, Hertz * 0.02);
  // On a busy machine the mixer itself leaves gaps now and then, so the stretch is tried again; a
  // loop that does not fit together is never heard without a click.
  bool isClean = false;
  for (int i = 0; i < 20 && !isClean; ++i) {
    const Sound loops = recording.Take(3.5 * Length);
    isClean = Silences(loops, 0.002).empty() && Clicks(loops).empty();
  }
  EXPECT_TRUE(isClean);

  StopTest();
  Recording after(Given().speakers);
  EXPECT_TRUE(IsSilent(after.Take(0.5)));
}

TEST_F(SoundTest, FrequenciesAreTheEngineAtTheirRates) {
  StartVehicle("rocket");
  SetInternalSound("Engine Sound", "car6");
  GoTo("Engine Sound");
  const double own = DominantFrequency(HearTest(1));
  StopTest();
  // The strongest tone of this engine: twelve cylinders at 980 turns a minute.
  EXPECT_NEAR(own, 98, 98 * 0.02);

  const struct {
    const char* row;
    const char* title;
    int rate;
  } rates[] = {{"Engine Idle Frequency", "Frequencies", 18'000},
               {"Engine Top Speed Frequency", "frequencies", 44'100},
               {"Engine Gear Shift Frequency", "Frequencies", 33'000}};
  for (const auto& [row, title, rate] : rates) {
    SetNumber(row, title, std::to_string(rate));
    GoTo(row);
    const double heard = DominantFrequency(HearTest(1));
    StopTest();
    EXPECT_NEAR(heard / own, static_cast<double>(rate) / Rate, 0.02 * rate / Rate) << row;
  }
}

TEST_F(SoundTest, IgnitionIsHeardOnceAndThenTheEngine) {
  constexpr double Hertz = 882;
  StartVehicle("rocket");
  WriteFile(vehicle("start.wav"), ToneFile(Hertz, 1));
  SetInternalSound("Engine Sound", "car6");
  GoTo("Engine Sound");
  const double engine = DominantFrequency(HearTest(1));
  StopTest();

  SetSoundFile("Ignition Sound", "start.wav");
  GoTo("Ignition Sound");
  Recording recording(Given().speakers);
  PressTest("Stop");
  recording.WaitForSound();
  EXPECT_NEAR(DominantFrequency(recording.Take(0.5)), Hertz, Hertz * 0.02);
  WaitUntil("the engine", [&] {
    return std::abs(DominantFrequency(recording.Take(0.5)) - engine) < engine * 0.02;
  });
  for (int i = 0; i < 4; ++i) {
    EXPECT_NEAR(DominantFrequency(recording.Take(0.5)), engine, engine * 0.02);
  }
  PressTest("Test Sound");
  recording.WaitForSilence(0.5);
}

TEST_F(SoundTest, ClosingTheEditorDuringTheIgnitionIsSilence) {
  StartVehicle("rocket");
  WriteFile(vehicle("start.wav"), ToneFile(882, 5));
  SetInternalSound("Engine Sound", "car1");
  SetSoundFile("Ignition Sound", "start.wav");
  GoTo("Ignition Sound");
  Recording recording(Given().speakers);
  PressTest("Stop");
  recording.WaitForSound();
  RunningPack().Press("Escape");
  RunningPack().WaitForMain();
  recording.WaitForSilence(0.5);
  // Neither does the engine come.
  Recording after(Given().speakers);
  EXPECT_TRUE(IsSilent(after.Take(0.5)));
}

TEST_F(SoundTest, OneHundredDamagedSoundsAreEachToldOrPlayed) {
  StartVehicle("rocket");
  const std::string good = ToneFile(441, 0.05);
  WriteFile(vehicle("horn.wav"), good);
  SetSoundFile("Horn Sound", "horn.wav");
  GoTo("Horn Sound");
  Pack& pack = RunningPack();
  const Window editor = pack.WaitForWindow(EditorTitle);
  std::mt19937 random(5);
  int told = 0;
  for (int i = 0; i < 100; ++i) {
    std::string bytes = good;
    // Mostly in the head, where the sizes and the format stand.
    for (size_t times = 1 + random() % 4; times > 0; --times) {
      const size_t at = random() % (random() % 4 ? 44 : bytes.size());
      bytes[at] = static_cast<char>(random());
    }
    if (random() % 5 == 0) bytes.resize(random() % bytes.size());
    WriteFile(vehicle("horn.wav"), bytes);
    pack.Press("Alt+T");
    WaitUntil("what becomes of the sound", [&] {
      return !editor.IsEnabled() || (editor.focus() && editor.focus()->name() == "Stop");
    });
    if (editor.IsEnabled()) {
      PressTest("Test Sound");
    } else {
      EXPECT_EQ(pack.AnswerBox().title, "Error");
      ++told;
    }
    ASSERT_EQ(pack.WaitForWindow(EditorTitle).focus()->name(), "Test Sound");
  }
  EXPECT_GT(told, 20);
}

}  // namespace
}  // namespace E2e
