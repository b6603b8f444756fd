// What the real microphone hears is recorded by the library that ships, and measured; and the
// library is found beside the program alone. Around the tests a tone of 440 Hz left and 660 Hz
// right is played into the microphone.
#include <gmock/gmock.h>

#include <cmath>
#include <fstream>

#include "e2e/driver/SoundMeasures.h"
#include "e2e/driver/Wait.h"
#include "machine/win32/RecordingLibrary.h"
#include "platform/Clock.h"
#include "platform/Executable.h"
#include "platform/Recorder.h"
#include "tests/machine/RealMachine.h"
#include "tests/machine/TestMachine.h"

namespace {

using Platform::Recorder;
using Platform::RecordingFailure;

constexpr char RecordOption[] = "--record";
constexpr char LibraryOption[] = "--library";

// This program, or a copy of it, started with an argument and a path.
class Process {
 public:
  Process(const std::string& program, const char* option, const std::string& path,
          const std::string& folder) {
    std::string command = "\"" + program + "\" " + option + " \"" + path + "\"";
    STARTUPINFOA start{};
    start.cb = sizeof start;
    EXPECT_TRUE(CreateProcessA(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                               folder.c_str(), &start, &process_));
  }
  ~Process() {
    Kill();
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
  }
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  void Kill() const {
    TerminateProcess(process_.hProcess, 1);
    WaitForEnd();
  }
  void WaitForEnd() const { WaitForSingleObject(process_.hProcess, 30'000); }

 private:
  PROCESS_INFORMATION process_{};
};

std::string OwnPath() {
  return TestMachine::FolderOfExecutable() + "\\" + TestMachine::NameOfExecutable() + ".exe";
}

// One channel of a wave of 16 bits.
E2e::Sound Channel(const Wave& wave, size_t channel) {
  E2e::Sound sound{wave.rate, {}};
  for (size_t i = channel * 2; i + 1 < wave.samples.size(); i += wave.FrameSize()) {
    const auto low = static_cast<unsigned char>(wave.samples[i]);
    const auto high = static_cast<unsigned char>(wave.samples[i + 1]);
    sound.samples.push_back(static_cast<float>(static_cast<int16_t>(low | high << 8)) / 32'768);
  }
  return sound;
}

class Microphone : public ContractTest {
 protected:
  void SetUp() override {
    if (RealMachine::SpeakersFile().empty()) GTEST_SKIP() << "nobody plays into the microphone";
  }

  // Records for so long; how long it was is told.
  Wave Take(double seconds, int channels, double& took) {
    Recorder recorder;
    EXPECT_EQ(recorder.Start(path, 44'100, channels, Platform::DefaultRecordingDevice),
              RecordingFailure::None);
    const double begun = Platform::SteadySeconds();
    E2e::ComesTrue([&] { return Platform::SteadySeconds() - begun >= seconds; });
    EXPECT_TRUE(recorder.IsRecording());
    took = Platform::SteadySeconds() - begun;
    EXPECT_EQ(recorder.Stop(), RecordingFailure::None);
    return DecodeWave(TestMachine::BytesOf(path).value_or(""));
  }

  const std::string path = TestMachine::ScratchFolder() + "\\take.wav";
};

TEST_F(Microphone, IsInTheListOfDevices) {
  const auto names = Platform::RecordingDevices();
  EXPECT_THAT(names, testing::Not(testing::IsEmpty()));
  EXPECT_THAT(names, testing::Each(testing::Not("")));
}

// A busy machine loses sound on the way from its microphone, which is not the library's doing; what
// that did wrong would be wrong each time. So it is tried until it is right, or never is.
TEST_F(Microphone, IsRecordedOnBothSidesInFullLengthAndWithoutAGap) {
  std::string heard;
  EXPECT_TRUE(E2e::ComesTrue([&] {
    double took = 0;
    const Wave wave = Take(2, 2, took);
    EXPECT_EQ(wave.channels, 2);
    EXPECT_EQ(wave.rate, 44'100);
    EXPECT_EQ(wave.bits, 16);
    bool isRight = std::abs(wave.Seconds() - took) < 0.1;
    heard = std::to_string(wave.Seconds()) + " s of " + std::to_string(took);
    constexpr double Hertz[] = {440, 660};
    for (const size_t side : {0, 1}) {
      const E2e::Sound sound = Channel(wave, side);
      const double hertz = E2e::DominantFrequency(sound);
      const size_t gaps = E2e::Silences(sound, 0.002).size();
      const size_t clicks = E2e::Clicks(sound).size();
      heard += ", " + std::to_string(hertz) + " Hz with " + std::to_string(gaps) + " gaps and " +
               std::to_string(clicks) + " clicks, " + std::to_string(E2e::Loudest(sound));
      isRight = isRight && std::abs(hertz - Hertz[side]) < 1 && gaps == 0 && clicks == 0 &&
                std::abs(E2e::Loudest(sound) - 0.5) < 0.02;
    }
    return isRight;
  })) << heard;
  RecordProperty("heard", heard);
}

TEST_F(Microphone, IsRecordedInMono) {
  std::string heard;
  EXPECT_TRUE(E2e::ComesTrue([&] {
    double took = 0;
    const Wave wave = Take(1, 1, took);
    EXPECT_EQ(wave.channels, 1);
    const auto peaks = E2e::Peaks(Channel(wave, 0), 2);
    heard = std::to_string(wave.Seconds()) + " s of " + std::to_string(took);
    for (const E2e::Peak& peak : peaks) heard += ", " + std::to_string(peak.hertz) + " Hz";
    // Of both sides.
    return std::abs(wave.Seconds() - took) < 0.1 && peaks.size() == 2 &&
           std::abs(peaks[0].hertz + peaks[1].hertz - 1'100) < 2;
  })) << heard;
}

TEST_F(Microphone, WhatAProgramHasRecordedWhenItIsEndedIsThere) {
  const Process program(OwnPath(), RecordOption, path, TestMachine::ScratchFolder());
  constexpr size_t SecondSize = 44'100 * 4;
  EXPECT_TRUE(
      E2e::ComesTrue([&] { return TestMachine::BytesOf(path).value_or("").size() > SecondSize; }));
  program.Kill();
  const std::string bytes = TestMachine::BytesOf(path).value_or("");
  const Wave wave = DecodeWave(bytes);
  const uint32_t told = *reinterpret_cast<const uint32_t*>(&bytes.at(40));
  EXPECT_EQ(wave.samples.size(), told) << "no more is told of than there is";
  EXPECT_LE(bytes.size() - 44 - told, SecondSize / 20) << "a buffer at most is not told of";
  EXPECT_NEAR(E2e::DominantFrequency(Channel(wave, 0)), 440, 5);
}

// --- Where the library is found ---

class LibraryPlace : public ContractTest {
 protected:
  LibraryPlace() {
    TestMachine::PutFolder(folder);
    TestMachine::PutFolder(elsewhere);
    EXPECT_TRUE(CopyFileA(OwnPath().c_str(), program.c_str(), FALSE));
  }

  static void PutLibrary(const std::string& path) {
    const std::string library = TestMachine::FolderOfExecutable() + "\\orec.dll";
    EXPECT_TRUE(CopyFileA(library.c_str(), path.c_str(), FALSE));
  }

  // What a program without a library of its own is told, in a current folder.
  std::string Found(const std::string& currentFolder) const {
    const std::string note = TestMachine::ScratchFolder() + "\\note.txt";
    DeleteFileA(note.c_str());
    Process(program, LibraryOption, note, currentFolder).WaitForEnd();
    return TestMachine::BytesOf(note).value_or("no answer");
  }

  const std::string folder = TestMachine::ScratchFolder() + "\\program";
  const std::string elsewhere = TestMachine::ScratchFolder() + "\\elsewhere";
  const std::string program = folder + "\\program.exe";
};

TEST_F(LibraryPlace, BesideTheProgramItIsFound) {
  PutLibrary(folder + "\\orec.dll");
  EXPECT_EQ(Found(elsewhere), folder + "\\orec.dll");
}

TEST_F(LibraryPlace, NowhereElseItIsLookedFor) {
  PutLibrary(elsewhere + "\\orec.dll");
  char searched[32'767] = "";
  GetEnvironmentVariableA("PATH", searched, sizeof searched);
  SetEnvironmentVariableA("PATH", (elsewhere + ";" + searched).c_str());
  EXPECT_EQ(Found(elsewhere), "no library, 0 devices, no device");
  SetEnvironmentVariableA("PATH", searched);
}

TEST_F(LibraryPlace, AnotherFileOfThatNameIsAsGoodAsNone) {
  TestMachine::PutFile(folder + "\\orec.dll", "no library at all");
  EXPECT_EQ(Found(elsewhere), "no library, 0 devices, no device");
  DeleteFileA((folder + "\\orec.dll").c_str());
  // A library, but another one.
  char system[MAX_PATH] = "";
  GetSystemDirectoryA(system, sizeof system);
  const std::string other = std::string(system) + "\\version.dll";
  EXPECT_TRUE(CopyFileA(other.c_str(), (folder + "\\orec.dll").c_str(), FALSE));
  EXPECT_EQ(Found(elsewhere), "no library, 0 devices, no device");
}

// Told by the program that LibraryPlace starts.
std::string WhatIsFound() {
  if (Platform::FindRecordingLibrary()) {
    char path[MAX_PATH] = "";
    GetModuleFileNameA(GetModuleHandleA("orec.dll"), path, sizeof path);
    return path;
  }
  Recorder recorder;
  const auto failure = recorder.Start(Platform::ProgramFolder() + "\\take.wav", 44'100, 2, 0);
  return "no library, " + std::to_string(Platform::RecordingDevices().size()) + " devices, " +
         (failure == RecordingFailure::NoDevice ? "no device" : "another failure");
}

}  // namespace

bool RealMachine::WasStartedToRecord(int count, char** arguments) {
  if (count != 3) return false;
  const std::string option = arguments[1];
  if (option == RecordOption) {
    Recorder recorder;
    recorder.Start(arguments[2], 44'100, 2, Platform::DefaultRecordingDevice);
    // Until it is ended from outside.
    while (recorder.IsRecording()) Sleep(INFINITE);
    return true;
  }
  if (option != LibraryOption) return false;
  std::ofstream(arguments[2], std::ios::binary) << WhatIsFound();
  return true;
}
