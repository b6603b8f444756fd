// Descriptions that are recorded through the microphone, and tracks and vehicles that are packaged.
// Around the tests a tone of 440 Hz left and 660 Hz right is played into the microphone.
#include <windows.h>

#include <psapi.h>

#include <cstdint>

#include "e2e/driver/Keyboard.h"
#include "e2e/driver/PackTest.h"
#include "e2e/driver/PlainArchive.h"
#include "e2e/driver/Recording.h"

namespace E2e {
namespace {

const std::string TrackOptions = "Track description sound doesn't exist. What to do?";
const std::string VehicleOptions = "Vehicle description sound doesn't exist. What to do?";

// One channel of the pack's own recordings: 16 bits, two channels, 44100 a second.
Sound ChannelOf(const std::string& wave, size_t channel) {
  constexpr size_t HeadSize = 44;
  Sound sound;
  for (size_t at = HeadSize + 2 * channel; at + 1 < wave.size(); at += 4) {
    const auto sample = static_cast<int16_t>(NumberAt(wave, at, 2));
    sound.samples.push_back(static_cast<float>(sample) / 32'768);
  }
  return sound;
}

class Packaging : public PackTest {
 protected:
  std::string track(const std::string& name) const { return gameFolder() + "\\tracks\\" + name; }
  std::string vehicle(const std::string& name) const {
    return gameFolder() + "\\vehicles\\" + name;
  }

  void OpenDevices(const char* menu, const std::string& name, const std::string& options) {
    Pack& pack = StartPack();
    pack.ChooseMenu({menu, "Package"});
    pack.ChooseFile(name);
    pack.WaitForWindow(options);
    pack.Press("Down");
    pack.WaitForRow("Record new .wav file");
    pack.Press("Enter");
  }
  void StartRecording() {
    OpenDevices("Track", "hill.trk", TrackOptions);
    RunningPack().WaitForWindow("Choose recording device");
    RunningPack().Press("Enter");
    EXPECT_EQ(
        RunningPack().AnswerBox(),
        Information("Start recording",
                    "Click OK to start recording your track description. You have five seconds "
                    "maximum. If you have finished recording before the allotted time, press space "
                    "bar."));
    const Window window = RunningPack().WaitForWindow("Recording...");
    EXPECT_EQ(window.focus(), window);
  }
  size_t TakeSize() const {
    return Exists(track("hill.wav")) ? ReadFile(track("hill.wav")).size() : 0;
  }
  void ExpectTone(const std::string& wave, double leastSeconds, double mostSeconds) const {
    const Sound left = ChannelOf(wave, 0);
    EXPECT_GE(left.Seconds(), leastSeconds);
    EXPECT_LE(left.Seconds(), mostSeconds);
    EXPECT_NEAR(DominantFrequency(left), 440, 2);
    EXPECT_NEAR(DominantFrequency(ChannelOf(wave, 1)), 660, 2);
  }
};

const char Happy[] = "Are you happy with this recording?";

TEST_F(Packaging, ATrackWithADescriptionIsPackagedAtOnce) {
  const std::string hill = ReadFile(track("hill.trk"));
  WriteFile(track("hill.wav"), "a hill");
  Pack& pack = StartPack();
  pack.ChooseMenu({"Track", "Package"});
  pack.ChooseFile("HILL.trk");
  const BoxText told = pack.AnswerBox();
  EXPECT_EQ(told.title, "Congratulations!");
  EXPECT_THAT(told.text,
              testing::StartsWith("Your track has successfully been packaged to the zip file "));
  EXPECT_THAT(told.text, testing::EndsWith("\\tracks\\hill.zip"));
  pack.WaitForMain();
  EXPECT_THAT(Unpacked(track("hill.zip")),
              testing::ElementsAre(Packed{"hill.wav", "a hill"}, Packed{"hill.trk", hill}));
  EXPECT_FALSE(Exists(track("hill.trk")));
  EXPECT_FALSE(Exists(track("hill.wav")));
}

TEST_F(Packaging, ATrackIsRecordedRefusedRecordedAgainKeptAndPackaged) {
  if (Given().speakers.empty()) GTEST_SKIP() << "nobody plays into the microphone";
  const std::string hill = ReadFile(track("hill.trk"));
  StartRecording();
  Pack& pack = RunningPack();

  // The first take runs for its five seconds, and is heard again.
  Recording recording(Given().speakers);
  recording.WaitForSound();
  const std::string first = ReadFile(track("hill.wav"));
  ExpectTone(first, 4.8, 5.5);
  const Sound heard = recording.Take(1);
  const auto peaks = Peaks(heard, 2);
  ASSERT_EQ(peaks.size(), 2u);
  EXPECT_NEAR(std::min(peaks[0].hertz, peaks[1].hertz), 440, 5);
  EXPECT_NEAR(std::max(peaks[0].hertz, peaks[1].hertz), 660, 5);
  EXPECT_EQ(pack.AnswerBox("N"), Question("Recording complete", Happy));

  // The second is ended by the space bar.
  pack.WaitForWindow("Recording...");
  WaitUntil("half a second of the second take",
            [&] { return TakeSize() > 100'000 && TakeSize() < first.size(); });
  pack.Press("Space");
  const BoxText question = Question("Recording complete", Happy);
  std::string second;
  WaitUntil("the second take's end", [&] {
    const std::string now = ReadFile(track("hill.wav"));
    return std::exchange(second, now) == now;
  });
  EXPECT_EQ(pack.AnswerBox("Y"), question);
  EXPECT_EQ(pack.AnswerBox().title, "Congratulations!");
  pack.WaitForMain();
  const std::vector<Packed> packed = Unpacked(track("hill.zip"));
  ASSERT_EQ(packed.size(), 2u);
  EXPECT_EQ(packed[0].name, "hill.wav");
  ExpectTone(packed[0].bytes, 0.5, 4.5);
  EXPECT_EQ(packed[1], (Packed{"hill.trk", hill}));
  LeaveForOtherPrograms(track("hill.zip"), packed);
  EXPECT_FALSE(Exists(track("hill.wav")));
  EXPECT_FALSE(Exists(track("hill.trk")));
}

TEST_F(Packaging, ClosingTheRecordingLeavesAWholeFile) {
  if (Given().speakers.empty()) GTEST_SKIP() << "nobody plays into the microphone";
  for (const char* leave : {"Alt+F4", "Escape"}) {
    StartRecording();
    Pack& pack = RunningPack();
    WaitUntil("some of the take", [&] { return TakeSize() > 100'000; });
    pack.Press(leave);
    EXPECT_EQ(pack.AnswerBox(),
              Information("Aborted", "Packager aborted. No wave file/recording device."));
    pack.WaitForMain();
    const std::string wave = ReadFile(track("hill.wav"));
    EXPECT_EQ(NumberAt(wave, 40, 4), wave.size() - 44);
    EXPECT_TRUE(Exists(track("hill.trk")));
    DeleteFileA(track("hill.wav").c_str());
    pack.Press("Alt+F4");
    WaitUntil("the pack's end", [&] { return !pack.program().IsRunning(); });
  }
}

TEST_F(Packaging, AVehicleGoesWithItsSoundsAndADescriptionFromElsewhere) {
  const std::string lines = "enginesound=own.wav\r\nthrottlesound=car1\r\nhornsound=Horn.wav\r\n";
  WriteFile(vehicle("Rocket.vhc"), lines);
  WriteFile(vehicle("own.wav"), "an engine");
  WriteFile(vehicle("Horn.wav"), "a horn");
  const std::string spoken = scratch.path() + "\\spoken.wav";
  WriteFile(spoken, "a rocket");
  Pack& pack = StartPack();
  pack.Press("Ctrl+P");
  pack.WaitForWindow("Package what?");
  pack.Press("Enter");
  pack.ChooseFile("Rocket.vhc");
  pack.WaitForWindow(VehicleOptions);
  pack.WaitForRow("Open existing .wav file");
  pack.Press("Enter");
  EXPECT_EQ(pack.WaitForFileDialog().title(), "Open .wav sound");
  pack.ChooseFile(spoken);
  const BoxText told = pack.AnswerBox();
  EXPECT_EQ(told.title, "Congratulations!");
  EXPECT_THAT(told.text, testing::EndsWith("\\vehicles\\rocket.zip"));
  pack.WaitForMain();
  const std::vector<Packed> packed = {{"rocket.wav", "a rocket"},
                                      {"rocket.vhc", lines},
                                      {"own.wav", "an engine"},
                                      {"Horn.wav", "a horn"}};
  EXPECT_EQ(Unpacked(vehicle("rocket.zip")), packed);
  LeaveForOtherPrograms(vehicle("rocket.zip"), packed);
  for (const char* name : {"Rocket.vhc", "rocket.wav", "own.wav", "Horn.wav"}) {
    EXPECT_FALSE(Exists(vehicle(name))) << name;
  }
  EXPECT_EQ(ReadFile(spoken), "a rocket");
}

TEST_F(Packaging, AVehicleWithoutOneOfItsSoundsStaysAsItIs) {
  WriteFile(vehicle("Rocket.vhc"), "throttlesound=car3\r\n");
  WriteFile(vehicle("rocket.wav"), "a rocket");
  Pack& pack = StartPack();
  pack.ChooseMenu({"Vehicle", "Package"});
  pack.ChooseFile("Rocket.vhc");
  EXPECT_EQ(pack.AnswerBox(), Critical("Data Error", "Throttle file doesn't exist."));
  pack.WaitForMain();
  EXPECT_FALSE(Exists(vehicle("rocket.zip")));
  EXPECT_TRUE(Exists(vehicle("rocket.wav")));
}

TEST_F(Packaging, AVehicleWhoseDeviceIsChosenNeedsATrack) {
  if (Given().speakers.empty()) GTEST_SKIP() << "there is no microphone";
  OpenDevices("Vehicle", "Hornet\\Hornet.vhc", VehicleOptions);
  Pack& pack = RunningPack();
  pack.WaitForWindow("Choose recording device");
  pack.Press("Enter");
  EXPECT_EQ(pack.AnswerBox(),
            Critical("Error",
                     "A device that is chosen here records the description of a track, and no "
                     "track has been chosen. Nothing was recorded."));
  pack.WaitForMain();
  EXPECT_FALSE(Exists(vehicle("Hornet\\hornet.wav")));
}

// Without the recording library it is as if there were no device.
TEST_F(Packaging, WithoutDevicesTwoBoxesTellSo) {
  DeleteFileA((PutProgramFolder() + "\\orec.dll").c_str());
  OpenDevices("Track", "hill.trk", TrackOptions);
  Pack& pack = RunningPack();
  EXPECT_EQ(pack.AnswerBox(),
            Critical("Error", "There doesn't seem to be any audio devices on your system."));
  EXPECT_EQ(pack.AnswerBox(),
            Information("Aborted", "Packager aborted. No wave file/recording device."));
  pack.WaitForMain();
  EXPECT_FALSE(Exists(track("hill.wav")));
}

// Bytes that no deflating makes smaller, the same each time.
std::string Noise(size_t size) {
  std::string noise(size, '\0');
  uint32_t state = 1;
  for (char& c : noise) {
    state = state * 1'664'525 + 1'013'904'223;
    c = static_cast<char>(state >> 24);
  }
  return noise;
}

size_t MostMemory(const RunningProgram& program) {
  PROCESS_MEMORY_COUNTERS memory{};
  EXPECT_TRUE(K32GetProcessMemoryInfo(program.process(), &memory, sizeof memory));
  return memory.PeakWorkingSetSize;
}

TEST_F(Packaging, ThatTakesLongAnswersOthersAndNoKeyAndNeedsLittleMemory) {
  constexpr size_t Size = 64 << 20;
  const std::string noise = Noise(Size);
  WriteFile(track("hill.wav"), noise);
  Pack& pack = StartPack();
  const Window main = pack.WaitForMain();
  pack.ChooseMenu({"Track", "Package"});
  pack.WaitForFileDialog();
  const size_t before = MostMemory(pack.program());
  pack.ChooseFile("hill.trk");
  int answers = 0;
  for (; !Exists(track("hill.zip")) && !HasFailure(); ++answers) {
    DWORD_PTR answer = 0;
    constexpr UINT PatienceMs = 20'000;
    EXPECT_TRUE(SendMessageTimeoutA(main.handle(), WM_GETTEXTLENGTH, 0, 0, SMTO_NORMAL, PatienceMs,
                                    &answer));
    // What would answer the box that comes at the end, or begin something else.
    if (answers == 3) {
      for (const char* keys : {"Enter", "Ctrl+N", "Ctrl+C", "Escape", "Alt+F4"}) {
        Keyboard::Press(keys);
      }
    }
  }
  EXPECT_GT(answers, 10);
  EXPECT_EQ(pack.AnswerBox().title, "Congratulations!");
  pack.PressInVain("Ctrl+A");
  EXPECT_EQ(TopWindows(pack.program().processId()).size(), 1U);
  const size_t after = MostMemory(pack.program());
  RecordProperty("answers", answers);
  RecordProperty("memory", static_cast<int>(after - before));
  EXPECT_LT(after - before, Size / 4);
  EXPECT_TRUE(Unpacked(track("hill.zip")).at(0) == (Packed{"hill.wav", noise}));
}

}  // namespace
}  // namespace E2e
