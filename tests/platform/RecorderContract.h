// What every machine promises of recording. Included once by each machine's tests.
#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <vector>

#include "platform/Recorder.h"
#include "tests/WaveBytes.h"
#include "tests/machine/TestMachine.h"

class RecorderContract : public ContractTest {
 protected:
  using Failure = Platform::RecordingFailure;

  RecorderContract() { TestMachine::SetMicrophones({"Headset", "Line In"}); }

  // Frames that are all different, and no multiple of what a device delivers at a time.
  static Wave Voice(int channels) {
    Wave wave{channels, 16, 44'100, ""};
    for (int i = 0; i < 11'111 * channels; ++i) {
      wave.samples += WaveBytes::Number(static_cast<uint16_t>(i * 37), 2);
    }
    return wave;
  }
  Failure StartOn(int device) { return recorder.Start(path, 44'100, 2, device); }
  std::string Bytes() const { return TestMachine::BytesOf(path).value_or("no file"); }

  const Wave voice = Voice(2);
  const std::string path = TestMachine::ScratchFolder() + "\\hill.wav";
  Platform::Recorder recorder;
};

TEST_F(RecorderContract, DevicesAreListedByTheirNumbers) {
  EXPECT_THAT(Platform::RecordingDevices(), testing::ElementsAre("Headset", "Line In"));
  TestMachine::SetMicrophones({});
  EXPECT_THAT(Platform::RecordingDevices(), testing::IsEmpty());
}

TEST_F(RecorderContract, WhatIsSpokenIsInTheFile) {
  for (const int channels : {2, 1}) {
    const Wave spoken = Voice(channels);
    EXPECT_FALSE(recorder.IsRecording());
    EXPECT_EQ(recorder.Start(path, 44'100, channels, 0), Failure::None);
    EXPECT_TRUE(recorder.IsRecording());
    TestMachine::Speak(spoken);
    EXPECT_TRUE(recorder.IsRecording());
    EXPECT_EQ(recorder.Stop(), Failure::None);
    EXPECT_FALSE(recorder.IsRecording());
    EXPECT_EQ(Bytes(), WaveBytes::File(spoken));
  }
}

TEST_F(RecorderContract, EveryDeviceOfTheListRecords) {
  for (const int device : {Platform::DefaultRecordingDevice, 0, 1}) {
    EXPECT_EQ(StartOn(device), Failure::None);
    TestMachine::Speak(voice);
    recorder.Stop();
    EXPECT_EQ(Bytes(), WaveBytes::File(voice));
  }
}

TEST_F(RecorderContract, WithoutAnythingSpokenTheFileHoldsNoSound) {
  EXPECT_EQ(StartOn(0), Failure::None);
  EXPECT_EQ(recorder.Stop(), Failure::None);
  EXPECT_EQ(Bytes(), WaveBytes::File(Wave{2, 16, 44'100, ""}));
}

TEST_F(RecorderContract, AFileThatIsThereIsOverwritten) {
  TestMachine::PutFile(path, std::string(200'000, 'x'));
  TestMachine::SetAttributes(path, TestMachine::Hidden);
  for (int times = 0; times < 2; ++times) {
    EXPECT_EQ(StartOn(0), Failure::None);
    TestMachine::Speak(voice);
    EXPECT_EQ(recorder.Stop(), Failure::None);
    EXPECT_EQ(Bytes(), WaveBytes::File(voice));
    EXPECT_EQ(TestMachine::AttributesOf(path), TestMachine::Hidden);
  }
}

TEST_F(RecorderContract, StartEndsWhatWasRecordedBefore) {
  const std::string other = TestMachine::ScratchFolder() + "\\dale.wav";
  StartOn(0);
  TestMachine::Speak(voice);
  EXPECT_EQ(recorder.Start(other, 44'100, 2, 0), Failure::None);
  EXPECT_EQ(Bytes(), WaveBytes::File(voice));
  EXPECT_TRUE(recorder.IsRecording());
  EXPECT_EQ(recorder.Stop(), Failure::None);
}

TEST_F(RecorderContract, StopWithoutStartDoesNothing) {
  EXPECT_EQ(recorder.Stop(), Failure::None);
  StartOn(0);
  recorder.Stop();
  EXPECT_EQ(recorder.Stop(), Failure::None);
}

TEST_F(RecorderContract, ARecorderThatGoesIsStopped) {
  {
    Platform::Recorder passing;
    EXPECT_EQ(passing.Start(path, 44'100, 2, 0), Failure::None);
    TestMachine::Speak(voice);
  }
  EXPECT_EQ(Bytes(), WaveBytes::File(voice));
  EXPECT_EQ(StartOn(0), Failure::None) << "the file is closed";
}

TEST_F(RecorderContract, ADeviceThatCannotBeHadLeavesTheFileAsItIs) {
  TestMachine::PutFile(path, "the take before");
  EXPECT_EQ(StartOn(2), Failure::NoDevice);
  for (const auto why : {Failure::Forbidden, Failure::InUse, Failure::DeviceFailed}) {
    TestMachine::RefuseMicrophones(why);
    EXPECT_EQ(StartOn(0), why);
    EXPECT_FALSE(recorder.IsRecording());
  }
  TestMachine::SetMicrophones({});
  for (const int device : {Platform::DefaultRecordingDevice, 0}) {
    EXPECT_EQ(StartOn(device), Failure::NoDevice);
  }
  EXPECT_EQ(Bytes(), "the take before");
  EXPECT_EQ(recorder.Stop(), Failure::None);
}

TEST_F(RecorderContract, AFileThatCannotBeWrittenIsTold) {
  EXPECT_EQ(recorder.Start(TestMachine::ScratchFolder() + "\\nowhere\\hill.wav", 44'100, 2, 0),
            Failure::FileFailed);
  TestMachine::PutFile(path, "being packed");
  TestMachine::Hold(path, TestMachine::Sharing::ForReading);
  EXPECT_EQ(StartOn(0), Failure::FileFailed);
  EXPECT_FALSE(recorder.IsRecording());
  TestMachine::LetGo(path);
  EXPECT_EQ(Bytes(), "being packed");
  EXPECT_EQ(StartOn(0), Failure::None);
}

TEST_F(RecorderContract, NobodyElseRecordsIntoTheSameFile) {
  Platform::Recorder other;
  EXPECT_EQ(StartOn(0), Failure::None);
  EXPECT_EQ(other.Start(path, 44'100, 2, 1), Failure::FileFailed);
  EXPECT_TRUE(recorder.IsRecording());
}

TEST_F(RecorderContract, ADeviceThatGoesAwayEndsTheTakeAsFarAsItGot) {
  StartOn(0);
  TestMachine::Speak(voice);
  TestMachine::UnplugMicrophones();
  TestMachine::WaitUntil([&] { return !recorder.IsRecording(); });
  EXPECT_FALSE(recorder.IsRecording());
  const Wave heard = DecodeWave(Bytes());
  // What the device has not handed over is gone with it: less than a tenth of a second.
  EXPECT_GE(heard.Frames() + 4'410, voice.Frames());
  EXPECT_EQ(heard.samples, voice.samples.substr(0, heard.samples.size()));
  TestMachine::PutFile(path, "closed");
  EXPECT_EQ(recorder.Stop(), Failure::DeviceFailed);
  EXPECT_EQ(Bytes(), "closed");
}

TEST_F(RecorderContract, StoppingADeviceThatHasGoneEndsToo) {
  StartOn(0);
  TestMachine::Speak(voice);
  TestMachine::UnplugMicrophones();
  EXPECT_EQ(recorder.Stop(), Failure::DeviceFailed);
  EXPECT_FALSE(recorder.IsRecording());
  const Wave heard = DecodeWave(Bytes());
  EXPECT_GE(heard.Frames() + 4'410, voice.Frames());
  TestMachine::SetMicrophones({"Another"});
  EXPECT_EQ(StartOn(0), Failure::None);
  TestMachine::Speak(voice);
  EXPECT_EQ(recorder.Stop(), Failure::None);
  EXPECT_EQ(Bytes(), WaveBytes::File(voice));
}
