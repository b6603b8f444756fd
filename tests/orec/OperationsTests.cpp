// The nine functions of the recording library, on devices and a disk that do whatever a test wants.
#include "orec/orec.h"

#include <gmock/gmock.h>

#include <cstring>
#include <random>
#include <thread>

#include "base/Wave.h"
#include "orec/TimeLimits.h"
#include "tests/WaveBytes.h"
#include "tests/orec/SimulatedInputs.h"

extern "C" int32_t RecordNothingFromC(const char* path);

namespace {

using namespace std::chrono_literals;
using ORec::Code;
using testing::ElementsAre;
using testing::IsEmpty;

class OrecTest : public testing::Test {
 protected:
  OrecTest() {
    // What goes well may take long on a busy machine.
    LimitCalls(60s);
    ORec::TheLimits().silence = 60s;
    ORec_Init();
  }
  ~OrecTest() override {
    while (ORec_Free() == 0) continue;
  }

  static void LimitCalls(std::chrono::milliseconds limit) {
    ORec::Limits& limits = ORec::TheLimits();
    limits.asking = limits.opening = limits.starting = limits.stopping = limits.closing = limit;
  }
  int32_t Open(int32_t channels = 2, int32_t device = ORec_DefaultDevice) {
    return ORec_OpenFile(path, 8'000, channels, device);
  }
  int32_t Recording(int32_t channels = 2) {
    const int32_t take = Open(channels);
    EXPECT_GT(take, 0);
    EXPECT_EQ(ORec_StartRecording(take), 0);
    EXPECT_EQ(ORec_IsRecording(take), 1);
    return take;
  }
  // The sound that the file tells of so far.
  std::string Samples(const char* file = path) {
    const std::string bytes = world.BytesOf(file);
    const bool isEmpty = bytes.substr(40, 4) == std::string(4, '\0');
    return isEmpty ? "" : DecodeWave(bytes).samples;
  }
  static std::string NameOf(int32_t device, int32_t size = 255) {
    std::string buffer(300, '#');
    const int32_t length = ORec_GetInputDeviceName(device, buffer.data(), size);
    const std::string name = buffer.c_str();
    EXPECT_EQ(length, static_cast<int32_t>(name.size()));
    EXPECT_EQ(buffer.substr(name.size() + 1), std::string(299 - name.size(), '#'));
    return name;
  }
  // Sound that fills so many buffers of a twentieth of a second, each byte other than its
  // neighbours.
  static std::string Sound(double buffers, int channels = 2) {
    std::string sound;
    const auto size = static_cast<size_t>(buffers * 400 * channels * 2);
    for (size_t i = 0; i < size; ++i) sound += static_cast<char>(i * 7 + i / 251);
    return sound;
  }
  void WaitUntilItHasEnded(int32_t take) {
    const auto deadline = std::chrono::steady_clock::now() + 20s;
    while (ORec_IsRecording(take) && std::chrono::steady_clock::now() < deadline) {
      std::this_thread::yield();
    }
    EXPECT_EQ(ORec_IsRecording(take), 0);
  }

  static constexpr const char* path = "take.wav";
  SimulatedOrec::World world;
};

// --- Devices and their names ---

TEST_F(OrecTest, DevicesAreCountedAndNamed) {
  world.devices = {{"Line In"}, {"Microphone"}};
  EXPECT_EQ(ORec_GetInputDeviceCount(), 2);
  EXPECT_EQ(NameOf(0), "Line In");
  EXPECT_EQ(NameOf(1), "Microphone");
  EXPECT_EQ(NameOf(2), "");
  EXPECT_EQ(NameOf(ORec_DefaultDevice), "");
  EXPECT_EQ(NameOf(-2'147'483'647 - 1), "");
  EXPECT_EQ(NameOf(2'147'483'647), "");
}

TEST_F(OrecTest, WithoutDevicesTheCountIsNothing) {
  world.devices.clear();
  EXPECT_EQ(ORec_GetInputDeviceCount(), 0);
  EXPECT_EQ(NameOf(0), "");
}

TEST_F(OrecTest, EveryDeviceHasANameOfItsOwn) {
  world.devices = {{"USB"}, {""}, {"USB"}, {" \r\n"}, {"USB"}, {"USB (2)"}, {"A\r\nB"}};
  std::vector<std::string> names;
  for (int32_t i = 0; i < ORec_GetInputDeviceCount(); ++i) names.push_back(NameOf(i));
  EXPECT_THAT(names, ElementsAre("USB", "Input device 2", "USB (2)", "Input device 4", "USB (3)",
                                 "USB (2) (2)", "A  B"));
}

TEST_F(OrecTest, NamesAreCutAtTheBuffersEndButNotWithinACharacter) {
  world.devices = {{"Mikrof\xC3\xB6n"}};
  EXPECT_EQ(NameOf(0, 10), "Mikrof\xC3\xB6n");
  EXPECT_EQ(NameOf(0, 9), "Mikrof\xC3\xB6");
  EXPECT_EQ(NameOf(0, 8), "Mikrof");
  EXPECT_EQ(NameOf(0, 2), "M");
  EXPECT_EQ(NameOf(0, 1), "");
  char untouched = '#';
  for (const int32_t size : {0, -1, -2'147'483'647 - 1}) {
    EXPECT_EQ(ORec_GetInputDeviceName(0, &untouched, size), 0);
  }
  EXPECT_EQ(untouched, '#');
  EXPECT_EQ(ORec_GetInputDeviceName(0, nullptr, 255), 0);
}

TEST_F(OrecTest, AQuestionThatIsNeverAnsweredComesToNothing) {
  ORec::TheLimits().asking = 20ms;
  world.Block("NameOfInput");
  EXPECT_EQ(NameOf(0), "");
  world.Block("CountInputs");
  EXPECT_EQ(ORec_GetInputDeviceCount(), 0);
}

// --- Taking sound ---

TEST_F(OrecTest, WhatIsHeardIsInTheFile) {
  for (const int channels : {1, 2}) {
    const std::string sound = Sound(50.5, channels);
    const int32_t take = Recording(channels);
    world.Hear(sound);
    EXPECT_EQ(ORec_StopRecording(take), 0);
    EXPECT_EQ(ORec_IsRecording(take), 0);
    EXPECT_EQ(world.BytesOf(path), WaveBytes::File(Wave{channels, 16, 8'000, sound}));
    EXPECT_EQ(ORec_CloseFile(take), 0);
    EXPECT_THAT(world.OpenFiles(), IsEmpty());
    EXPECT_EQ(world.OpenDevices(), 0u);
    EXPECT_EQ(world.BytesOf(path), WaveBytes::File(Wave{channels, 16, 8'000, sound}));
  }
}

TEST_F(OrecTest, ItIsThereWhileItIsRecorded) {
  const int32_t take = Recording();
  world.Hear(Sound(2.5));
  // What has filled a buffer; the last one was taken, and is being written.
  EXPECT_EQ(ORec_IsRecording(take), 1);
  EXPECT_THAT(world.OpenFiles(), ElementsAre(path));
  world.Hear(Sound(3));
  for (const std::string& bytes : world.History(path)) {
    uint32_t told = 0;
    std::memcpy(&told, &bytes[40], sizeof told);
    EXPECT_LE(44 + told, bytes.size());
  }
  EXPECT_GE(Samples().size(), Sound(4).size());
  ORec_CloseFile(take);
}

TEST_F(OrecTest, TheFileThatWasThereIsOverwritten) {
  world.Put(path, std::string(100'000, 'x'));
  const int32_t take = Open();
  EXPECT_EQ(world.BytesOf(path), WaveBytes::File(Wave{2, 16, 8'000, ""}));
  ORec_StartRecording(take);
  world.Hear(Sound(1));
  ORec_CloseFile(take);
  EXPECT_EQ(Samples(), Sound(1));
}

TEST_F(OrecTest, AStopAtOnceLeavesAShortTake) {
  const int32_t take = Recording();
  EXPECT_EQ(ORec_StopRecording(take), 0);
  EXPECT_EQ(ORec_CloseFile(take), 0);
  EXPECT_EQ(Samples(), "");
}

TEST_F(OrecTest, ADeviceThatForgetsItsLastBufferWhenItStopsLosesNothing) {
  world.keepsBufferAtStop = true;
  const int32_t take = Recording();
  world.Hear(Sound(1.5));
  ORec_CloseFile(take);
  EXPECT_EQ(Samples(), Sound(1.5));
}

TEST_F(OrecTest, RecordingGoesOnAfterAStop) {
  const int32_t take = Recording();
  for (int times = 0; times < 3; ++times) {
    world.Hear(Sound(1.25));
    EXPECT_EQ(ORec_StopRecording(take), 0);
    EXPECT_EQ(ORec_StopRecording(take), 0);
    EXPECT_EQ(ORec_StartRecording(take), 0);
    EXPECT_EQ(ORec_StartRecording(take), 0);
  }
  ORec_CloseFile(take);
  EXPECT_EQ(Samples(), Sound(1.25) + Sound(1.25) + Sound(1.25));
}

TEST_F(OrecTest, SeveralRecordAtATime) {
  const int32_t one = Recording();
  world.Hear(Sound(1));
  const int32_t other = ORec_OpenFile("other.wav", 8'000, 2, 0);
  EXPECT_NE(one, other);
  ORec_StartRecording(other);
  world.Hear(Sound(2));
  EXPECT_EQ(ORec_OpenFile(path, 8'000, 2, 0), ORec_FileFailed) << "it is open already";
  EXPECT_EQ(ORec_StopRecording(other), 0);
  EXPECT_EQ(ORec_IsRecording(one), 1);
  ORec_CloseFile(other);
  world.Hear(Sound(1));
  ORec_CloseFile(one);
  EXPECT_EQ(Samples(), Sound(1) + Sound(1));
  EXPECT_EQ(Samples("other.wav"), Sound(2));
}

TEST_F(OrecTest, EmptyBuffersAreNoSoundAndNoEnd) {
  const int32_t take = Recording();
  world.HearNothing();
  world.Hear(Sound(1));
  world.HearNothing();
  world.Hear(Sound(1));
  ORec_CloseFile(take);
  EXPECT_EQ(Samples(), Sound(1) + Sound(1));
}

TEST_F(OrecTest, ADeviceWithOneChannelIsHeardOnBoth) {
  world.devices = {{"Mono", {1}}};
  const int32_t take = Recording(2);
  world.Hear(WaveBytes::Number(0x0201, 2) + WaveBytes::Number(0x8403, 2));
  ORec_CloseFile(take);
  EXPECT_EQ(world.BytesOf(path),
            WaveBytes::File(Wave{2, 16, 8'000, "\x01\x02\x01\x02\x03\x84\x03\x84"}));
}

TEST_F(OrecTest, ADeviceWithTwoChannelsIsMixedForOne) {
  world.devices = {{"Stereo", {2}}};
  const int32_t take = Recording(1);
  world.Hear(WaveBytes::Number(100, 2) + WaveBytes::Number(300, 2));
  ORec_CloseFile(take);
  EXPECT_EQ(world.BytesOf(path), WaveBytes::File(Wave{1, 16, 8'000, WaveBytes::Number(200, 2)}));
}

TEST_F(OrecTest, ItIsUsableFromC) {
  EXPECT_EQ(RecordNothingFromC(path), 0);
  EXPECT_EQ(world.BytesOf(path), WaveBytes::File(Wave{2, 16, 44'100, ""}));
  EXPECT_EQ(ORec_Free(), 0) << "the one of the fixture";
}

// --- Anything at any time ---

TEST_F(OrecTest, BeforeInitNothingIsDone) {
  ORec_Free();
  EXPECT_EQ(ORec_Free(), ORec_NotInitialised);
  EXPECT_EQ(ORec_GetInputDeviceCount(), 0);
  EXPECT_EQ(NameOf(0), "");
  EXPECT_EQ(Open(), ORec_NotInitialised);
  EXPECT_EQ(ORec_StartRecording(1), ORec_BadArgument);
  EXPECT_FALSE(world.Exists(path));
}

TEST_F(OrecTest, FreeClosesWhatIsOpen) {
  const int32_t take = Recording();
  world.Hear(Sound(1.5));
  EXPECT_EQ(ORec_Free(), 0);
  EXPECT_EQ(Samples(), Sound(1.5));
  EXPECT_THAT(world.OpenFiles(), IsEmpty());
  EXPECT_EQ(world.OpenDevices(), 0u);
  EXPECT_EQ(ORec_StopRecording(take), ORec_BadArgument);
  ORec_Init();
  EXPECT_EQ(ORec_StopRecording(take), ORec_BadArgument);
  EXPECT_GT(Open(), take) << "a handle is never used again";
}

TEST_F(OrecTest, OnlyTheLastFreeClosesWhatIsOpen) {
  const int32_t take = Recording();
  ORec_Init();
  EXPECT_EQ(ORec_GetInputDeviceCount(), 1);
  ORec_Free();
  EXPECT_EQ(ORec_IsRecording(take), 1);
  ORec_CloseFile(take);
}

TEST_F(OrecTest, WhatIsNoHandleIsRefused) {
  const int32_t closed = Open();
  ORec_CloseFile(closed);
  for (const int32_t handle : {0, -1, closed, closed + 1, 2'147'483'647, -2'147'483'647 - 1}) {
    EXPECT_EQ(ORec_StartRecording(handle), ORec_BadArgument);
    EXPECT_EQ(ORec_StopRecording(handle), ORec_BadArgument);
    EXPECT_EQ(ORec_CloseFile(handle), ORec_BadArgument);
    EXPECT_EQ(ORec_IsRecording(handle), 0);
  }
}

TEST_F(OrecTest, WhatCannotBeRecordedIsRefused) {
  constexpr int32_t Most = 2'147'483'647;
  EXPECT_EQ(ORec_OpenFile(nullptr, 44'100, 2, 0), ORec_BadArgument);
  EXPECT_EQ(ORec_OpenFile("", 44'100, 2, 0), ORec_BadArgument);
  for (const int32_t rate : {0, -1, 7'999, 192'001, Most, -Most - 1}) {
    EXPECT_EQ(ORec_OpenFile(path, rate, 2, 0), ORec_BadArgument);
  }
  for (const int32_t channels : {0, -1, 3, Most, -Most - 1}) {
    EXPECT_EQ(ORec_OpenFile(path, 44'100, channels, 0), ORec_BadArgument);
  }
  EXPECT_EQ(ORec_OpenFile(path, 44'100, 2, -2), ORec_BadArgument);
  EXPECT_EQ(ORec_OpenFile(path, 44'100, 2, 1), ORec_NoDevice);
  EXPECT_EQ(ORec_OpenFile(path, 44'100, 2, Most), ORec_NoDevice);
  EXPECT_FALSE(world.Exists(path));
}

TEST_F(OrecTest, AnyOrderOfCallsIsSafe) {
  world.devices = {{"One"}, {"Mono", {1}}, {"None", {}}};
  for (unsigned seed = 0; seed < 40; ++seed) {
    std::mt19937 random(seed);
    const auto upTo = [&](int most) {
      return static_cast<int32_t>(random() % static_cast<unsigned>(most + 1));
    };
    int32_t last = 0;
    for (int i = 0; i < 60; ++i) {
      const int32_t handle = last - upTo(2);
      switch (upTo(8)) {
        case 0: ORec_Init(); break;
        case 1: ORec_Free(); break;
        case 2: ORec_GetInputDeviceCount(); break;
        case 3: NameOf(upTo(4) - 1, upTo(20) + 1); break;
        case 4:
          last = std::max(last,
                          ORec_OpenFile(upTo(1) ? path : "other.wav", 8'000, upTo(2), upTo(4) - 1));
          break;
        case 5: ORec_StartRecording(handle); break;
        case 6: ORec_StopRecording(handle); break;
        case 7: ORec_CloseFile(handle); break;
        case 8: ORec_IsRecording(handle); break;
      }
    }
    while (ORec_Free() == 0) continue;
    EXPECT_THAT(world.OpenFiles(), IsEmpty());
    EXPECT_EQ(world.OpenDevices(), 0u);
    ORec_Init();
  }
}

TEST_F(OrecTest, SeveralThreadsMayUseOneHandle) {
  const int32_t take = Open();
  std::vector<std::thread> users;
  for (int user = 0; user < 4; ++user) {
    users.emplace_back([take] {
      for (int times = 0; times < 50; ++times) {
        ORec_StartRecording(take);
        ORec_IsRecording(take);
        ORec_StopRecording(take);
      }
    });
  }
  for (std::thread& user : users) user.join();
  EXPECT_EQ(ORec_CloseFile(take), 0);
}

// --- Devices that refuse ---

TEST_F(OrecTest, ADeviceThatIsForbiddenIsToldAndTheFileStays) {
  world.Put(path, "the take before");
  world.devices = {{"Forbidden", {}, Code::Unspecified}};
  EXPECT_EQ(Open(), ORec_DeviceForbidden);
  EXPECT_EQ(world.BytesOf(path), "the take before");
}

TEST_F(OrecTest, WhyADeviceCannotBeHadIsTold) {
  const std::vector<std::pair<Code, int32_t>> told = {{Code::BadDevice, ORec_NoDevice},
                                                      {Code::NoDriver, ORec_NoDevice},
                                                      {Code::InUse, ORec_DeviceInUse},
                                                      {Code{32}, ORec_DeviceFailed},
                                                      {Code{11}, ORec_DeviceFailed}};
  for (const auto& [code, failure] : told) {
    world.devices = {{"Refusing", {}, code}};
    EXPECT_EQ(Open(1), failure);
    EXPECT_EQ(Open(2), failure);
  }
  EXPECT_FALSE(world.Exists(path));
}

TEST_F(OrecTest, WithoutAThreadNothingIsRecorded) {
  world.hasThreads = false;
  EXPECT_EQ(Open(), ORec_DeviceFailed);
  EXPECT_EQ(ORec_GetInputDeviceCount(), 0);
  EXPECT_EQ(NameOf(0), "");
}

TEST_F(OrecTest, ADeviceThatDoesNotStartHasFailed) {
  for (const char* call : {"Start", "Give"}) {
    world.goodCalls = {{call, 0}};
    const int32_t take = Open();
    EXPECT_LT(ORec_StartRecording(take), 0) << call;
    EXPECT_EQ(ORec_IsRecording(take), 0);
    EXPECT_THAT(world.OpenFiles(), IsEmpty());
    EXPECT_LT(ORec_StartRecording(take), 0) << "it stays so";
    EXPECT_LT(ORec_CloseFile(take), 0);
    EXPECT_EQ(Samples(), "");
  }
}

// --- Files that cannot be written ---

TEST_F(OrecTest, AFileThatCannotBeOpenedIsTold) {
  world.refusesFiles = true;
  EXPECT_EQ(Open(), ORec_FileFailed);
  EXPECT_EQ(world.OpenDevices(), 0u);
}

TEST_F(OrecTest, AFullDiskEndsTheTakeWithWhatItHas) {
  world.diskSpace = 44 + Sound(2.5).size();
  const int32_t take = Recording();
  world.Hear(Sound(2));
  world.Hear(Sound(1));
  WaitUntilItHasEnded(take);
  EXPECT_THAT(world.OpenFiles(), IsEmpty());
  EXPECT_EQ(Samples(), Sound(2));
  EXPECT_EQ(ORec_StopRecording(take), ORec_FileFailed);
  EXPECT_EQ(ORec_StartRecording(take), ORec_FileFailed);
  EXPECT_EQ(ORec_CloseFile(take), ORec_FileFailed);
}

TEST_F(OrecTest, ADiskThatTakesForEverHoldsUpNobody) {
  ORec::TheLimits().stopping = 20ms;
  ORec::TheLimits().closing = 20ms;
  const int32_t take = Recording();
  world.Hear(Sound(1));
  world.Block("WriteAt");
  world.Hear(Sound(1));
  EXPECT_EQ(ORec_IsRecording(take), 1);
  EXPECT_EQ(ORec_StopRecording(take), ORec_DeviceFailed);
  ORec_CloseFile(take);
  world.Unblock();
  world.WaitForThreads();
  EXPECT_THAT(world.OpenFiles(), IsEmpty());
  EXPECT_EQ(Samples().substr(0, Sound(1).size()), Sound(1));
}

// --- Devices that go away ---

TEST_F(OrecTest, ADeviceThatFallsSilentHasGone) {
  const int32_t take = Recording();
  world.Hear(Sound(3));
  ORec::TheLimits().silence = 50ms;
  WaitUntilItHasEnded(take);
  EXPECT_THAT(world.OpenFiles(), IsEmpty()) << "it is closed by itself";
  EXPECT_EQ(Samples(), Sound(3));
  EXPECT_EQ(ORec_StopRecording(take), ORec_DeviceFailed);
  EXPECT_EQ(ORec_CloseFile(take), ORec_DeviceFailed);
}

TEST_F(OrecTest, ADeviceThatNeverGivesAnythingHasGone) {
  ORec::TheLimits().silence = 50ms;
  world.isDeliveringNothing = true;
  const int32_t take = Open();
  EXPECT_EQ(ORec_StartRecording(take), 0);
  WaitUntilItHasEnded(take);
  EXPECT_EQ(ORec_CloseFile(take), ORec_DeviceFailed);
  EXPECT_EQ(Samples(), "");
}

TEST_F(OrecTest, ADeviceThatTakesNoBuffersBackHasGone) {
  // Twenty at the start, and then one more.
  world.goodCalls = {{"Give", 21}};
  const int32_t take = Recording();
  world.Hear(Sound(1));
  world.Hear(Sound(1));
  WaitUntilItHasEnded(take);
  EXPECT_EQ(ORec_CloseFile(take), ORec_DeviceFailed);
  EXPECT_EQ(Samples(), Sound(1) + Sound(1));
}

TEST_F(OrecTest, ADeviceThatKeepsItsBuffersHasFailedWithWhatItGave) {
  world.goodCalls = {{"Reset", 0}};
  const int32_t take = Recording();
  world.Hear(Sound(1.5));
  EXPECT_EQ(ORec_StopRecording(take), ORec_DeviceFailed);
  EXPECT_EQ(Samples(), Sound(1.5));
  ORec_CloseFile(take);
}

class BlockedOrecTest : public OrecTest, public testing::WithParamInterface<const char*> {};

// Whatever call it is that never comes back: nobody waits for ever, and what was heard is there.
TEST_P(BlockedOrecTest, HoldsUpNobodyAndLosesNothing) {
  const std::string call = GetParam();
  const int32_t take = Recording();
  world.Hear(Sound(2));
  ORec::TheLimits().closing = 20ms;
  if (call != "Close") ORec::TheLimits().stopping = 20ms;
  world.Block(call);
  const int32_t failure = call == "Close" ? 0 : ORec_DeviceFailed;
  EXPECT_EQ(ORec_StopRecording(take), failure);
  EXPECT_EQ(ORec_IsRecording(take), 0);
  EXPECT_EQ(ORec_CloseFile(take), failure);
  EXPECT_THAT(world.OpenFiles(), IsEmpty());
  EXPECT_EQ(Samples(), Sound(2));
  // The device answers after all, when the file is somebody else's.
  world.Put(path, "packed");
  world.Unblock();
  world.WaitForThreads();
  EXPECT_EQ(world.BytesOf(path), "packed");
  EXPECT_EQ(world.OpenDevices(), 0u);
}

INSTANTIATE_TEST_SUITE_P(Calls, BlockedOrecTest, testing::Values("Stop", "Reset", "Close"),
                         [](const auto& call) { return std::string(call.param); });

TEST_F(OrecTest, WhatADeviceHasHandedOverBeforeItBlocksIsNotLost) {
  for (int times = 0; times < 20; ++times) {
    const int32_t take = Recording();
    world.Block("Stop");
    world.HearAndGoOn(Sound(3));
    std::thread stopping([take] { ORec_StopRecording(take); });
    const auto deadline = std::chrono::steady_clock::now() + 20s;
    while (Samples() != Sound(3) && std::chrono::steady_clock::now() < deadline) {
      std::this_thread::yield();
    }
    EXPECT_EQ(Samples(), Sound(3));
    world.Unblock();
    stopping.join();
    ORec_CloseFile(take);
  }
}

TEST_F(OrecTest, ADeviceThatNeverOpensIsGivenUp) {
  LimitCalls(20ms);
  world.Block("Open");
  EXPECT_EQ(Open(), ORec_DeviceFailed);
  EXPECT_FALSE(world.Exists(path));
  world.Unblock();
  world.WaitForThreads();
  EXPECT_FALSE(world.Exists(path));
}

TEST_F(OrecTest, ADeviceThatNeverStartsIsGivenUp) {
  for (const char* call : {"Start", "Give"}) {
    LimitCalls(60s);
    const int32_t take = Open();
    world.Block(call);
    LimitCalls(20ms);
    EXPECT_EQ(ORec_StartRecording(take), ORec_DeviceFailed);
    EXPECT_EQ(ORec_CloseFile(take), ORec_DeviceFailed);
    EXPECT_THAT(world.OpenFiles(), IsEmpty());
    world.Unblock();
    world.WaitForThreads();
  }
}

}  // namespace
