// Recording on the simulated machine: what stories need of it beyond the contract.
#include "platform/Recorder.h"

#include <gmock/gmock.h>

#include "machine/simulated/Machine.h"
#include "tests/WaveBytes.h"

namespace {

using Platform::Recorder;
using Platform::RecordingFailure;
using Simulated::After;

class RecorderTest : public testing::Test {
 protected:
  RecorderTest() { machine.files.PutFolder("C:\\Game"); }

  RecordingFailure Start() { return recorder.Start(path, 44'100, 2, 0); }
  Wave Taken() const { return DecodeWave(machine.files.Text(path)); }

  const std::string path = "C:\\Game\\hill.wav";
  Simulated::Machine machine;
  Recorder recorder;
};

TEST_F(RecorderTest, ATakeIsAsLongAsTheUserWaits) {
  EXPECT_EQ(Start(), RecordingFailure::None);
  machine.user.Waits(5'000);
  EXPECT_TRUE(recorder.IsRecording());
  EXPECT_EQ(recorder.Stop(), RecordingFailure::None);
  EXPECT_EQ(Taken().Seconds(), 5);
  EXPECT_EQ(Taken().samples, std::string(5 * 44'100 * 4, '\0')) << "nobody has spoken";
}

TEST_F(RecorderTest, AVoiceInMonoIsHeardOnBothSides) {
  machine.microphone.voice = Wave{1, 16, 44'100, "abcd"};
  Start();
  machine.user.Waits(1'000);
  recorder.Stop();
  EXPECT_EQ(Taken().Seconds(), 1);
  EXPECT_EQ(Taken().samples.substr(0, 10), std::string("ababcdcd\0\0", 10));
}

TEST_F(RecorderTest, TheMachineKnowsWhatWasRecorded) {
  machine.microphone.devices = {"Headset", "Line In"};
  recorder.Start(path, 44'100, 2, 1);
  EXPECT_TRUE(machine.microphone.IsOpen());
  recorder.Stop();
  EXPECT_FALSE(machine.microphone.IsOpen());
  ASSERT_EQ(machine.microphone.Takes().size(), 1u);
  EXPECT_EQ(machine.microphone.Takes()[0].path, path);
  EXPECT_EQ(machine.microphone.Takes()[0].device, 1);
}

TEST_F(RecorderTest, AnyCallCanBeMadeToFail) {
  machine.FailAnyCall(After{0});
  EXPECT_TRUE(Platform::RecordingDevices().empty());
  EXPECT_EQ(machine.FailedCall(), "RecordingDevices");
  machine.FailAnyCall(After{0});
  EXPECT_EQ(Start(), RecordingFailure::DeviceFailed);
  EXPECT_EQ(machine.FailedCall(), "Recorder::Start");
  EXPECT_FALSE(machine.files.Exists(path));

  bool hasFailed = true;
  int calls = 1;
  for (; hasFailed; ++calls) {
    machine.FailAnyCall(After{calls});
    const auto started = Start();
    machine.user.Waits(1'000);
    const auto stopped = recorder.Stop();
    hasFailed = machine.FailureHappened();
    const bool isTold = started != RecordingFailure::None || stopped != RecordingFailure::None;
    EXPECT_EQ(isTold, hasFailed) << machine.FailedCall();
    EXPECT_FALSE(recorder.IsRecording());
    EXPECT_FALSE(machine.microphone.IsOpen());
  }
  EXPECT_GT(calls, 5);
}

TEST_F(RecorderTest, AFullDiskLeavesAWholeFile) {
  Start();
  machine.user.Waits(1'000);
  machine.files.FailWrites(After{0}, RuntimeError::DiskFull);
  EXPECT_EQ(recorder.Stop(), RecordingFailure::FileFailed);
  EXPECT_EQ(machine.files.Text(path), WaveBytes::File(Wave{2, 16, 44'100, ""}));
}

TEST_F(RecorderTest, ADeviceThatGoesAwayIsNoticedAfterSomeSeconds) {
  Start();
  machine.user.Waits(2'000);
  machine.microphone.Unplug();
  machine.user.Waits(2'900);
  EXPECT_TRUE(recorder.IsRecording());
  machine.user.Waits(100);
  EXPECT_FALSE(recorder.IsRecording());
  EXPECT_EQ(Taken().Seconds(), 2);
  EXPECT_TRUE(machine.files.OpenFiles().empty());
  EXPECT_EQ(recorder.Stop(), RecordingFailure::DeviceFailed);
}

TEST(RecorderOfAMachine, ThatIsLeftRecordingIsComplainedAbout) {
  std::vector<std::string> heard;
  const auto before =
      Simulated::OnComplaint([&heard](const std::string& what) { heard.push_back(what); });
  auto machine = std::make_unique<Simulated::Machine>();
  auto recorder = std::make_unique<Recorder>();
  recorder->Start("C:\\take.wav", 44'100, 2, Platform::DefaultRecordingDevice);
  machine->microphone.Open({});
  recorder.reset();
  machine.reset();
  Simulated::OnComplaint(before);
  EXPECT_THAT(heard, testing::ElementsAre("the program left a recording open"));
}

}  // namespace
