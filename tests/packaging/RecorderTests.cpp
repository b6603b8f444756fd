// The description recorder.
#include "packaging/SKFileRecorder.h"

#include <utility>

#include "machine/simulated/Window.h"
#include "platform/WaveFile.h"
#include "tests/FailureSweep.h"
#include "tests/packaging/PackagingStory.h"
#include "tracks/TrackInWork.h"

namespace {

using Packaged::File;
using Platform::Icon;
using Platform::RecordingFailure;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

const std::string StartTrack =
    "Click OK to start recording your track description. You have five seconds maximum. If you "
    "have finished recording before the allotted time, press space bar.";
const std::string StartVehicle =
    "Click OK to start recording your car description. You have five seconds maximum. If you have "
    "finished recording before the allotted time, press space bar.";
const std::string Happy = "Are you happy with this recording?";

class RecorderStory : public PackagingStory {
 protected:
  RecorderStory() {
    machine.microphone.devices = {"Headset", "Microphone"};
    machine.microphone.voice = WaveBytes::Tone(440, 6, 44100);
  }

  // Up to the window of the devices.
  void OpenDevices() {
    PackageTrack();
    ChoosesToRecord();
  }
  void StartRecording() {
    OpenDevices();
    user.Presses("Enter");
  }
  double SecondsOf(const std::string& path) {
    const Wave wave = Platform::ReadWaveFile(path);
    EXPECT_EQ(wave.rate, 44100);
    EXPECT_EQ(wave.channels, 2);
    EXPECT_EQ(wave.bits, 16);
    return static_cast<double>(wave.Frames()) / wave.rate;
  }
};

TEST_F(RecorderStory, TheDevicesAreListedAndTheFirstIsSelected) {
  OpenDevices();
  EXPECT_EQ(user.SeesWindow(), "Choose recording device");
  EXPECT_EQ(user.Hears(), "Input Devices:, list, Headset, 1 of 2");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "OK, button");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Cancel, button");
  user.Presses("Escape");
}

TEST_F(RecorderStory, TheWindowSaysThatItRecords) {
  StartRecording();
  EXPECT_EQ(user.SeesWindow(), "Recording...");
  EXPECT_THAT(
      user.HearsOnOpening(),
      ElementsAre("Recording...", "Recording. Press space bar to stop.", HasSubstr("window")));
  EXPECT_TRUE(machine.microphone.IsOpen());
  user.Presses("Escape");
}

TEST_F(RecorderStory, NothingIsRecordedBeforeTheStartMessageIsAnswered) {
  OpenDevices();
  user.WhenWindowOpens("Start recording", [&] {
    EXPECT_TRUE(machine.microphone.Takes().empty());
    user.Waits(10'000);
    user.Presses("Enter");
  });
  user.Presses("Enter");
  EXPECT_THAT(machine.microphone.Takes(), SizeIs(1));
  EXPECT_THAT(user.LastBox(), Shows(Icon::Information, StartTrack, "Start recording"));
  user.Presses("Escape");
}

TEST_F(RecorderStory, FiveSecondsAreRecordedFromTheChosenDeviceHeardAndPackaged) {
  OpenDevices();
  user.Presses("Down");
  user.Presses("Enter");
  user.Waits(4'900);
  EXPECT_TRUE(machine.microphone.IsOpen());
  EXPECT_TRUE(machine.sound.Playing().empty());
  user.Waits(200);
  EXPECT_FALSE(machine.microphone.IsOpen());
  ASSERT_THAT(machine.sound.Playing(), SizeIs(1));
  EXPECT_FALSE(machine.sound.Playing()[0].isLooping);
  EXPECT_NEAR(SecondsOf(Hill + ".wav"), 5, 0.01);
  const std::string take = machine.files.Text(Hill + ".wav");
  const auto& recorded = machine.microphone.Takes().at(0);
  EXPECT_EQ(recorded.path, Hill + ".wav");
  EXPECT_EQ(recorded.device, 1);

  // It is heard to its end before the question comes.
  user.Waits(4'500);
  EXPECT_THAT(user.Boxes(), SizeIs(1));
  user.AnswersYes();
  WaitsForBox();
  EXPECT_THAT(BoxTexts(), ElementsAre(StartTrack, Happy, HasSubstr("successfully been packaged")));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_THAT(Packaged::In(Hill + ".zip"),
              ElementsAre(File{"hill.wav", take}, File{"hill.trk", "a track"}));
}

TEST_F(RecorderStory, TheSpaceBarEndsTheTake) {
  StartRecording();
  user.Waits(1'200);
  user.Presses("Space");
  EXPECT_NEAR(SecondsOf(Hill + ".wav"), 1.2, 0.01);
  // Not a second time while the take is heard.
  user.Presses("Space");
  EXPECT_THAT(machine.sound.Playing(), SizeIs(1));
  user.AnswersYes();
  WaitsForBox();
  EXPECT_THAT(BoxTexts(), ElementsAre(StartTrack, Happy, HasSubstr("successfully been packaged")));
  EXPECT_THAT(machine.microphone.Takes(), SizeIs(1));
}

TEST_F(RecorderStory, OtherKeysDoNotEndTheTake) {
  StartRecording();
  for (const char* key : {"Enter", "A", "Tab", "Ctrl+Space", "Shift+Space"}) user.Presses(key);
  EXPECT_TRUE(machine.microphone.IsOpen());
  user.Presses("Escape");
}

TEST_F(RecorderStory, SpaceAtOnceGivesATakeOfNothing) {
  StartRecording();
  user.AnswersYes();
  user.Presses("Space");
  EXPECT_TRUE(machine.sound.Played().empty());
  ASSERT_THAT(Packaged::In(Hill + ".zip"), SizeIs(2));
  EXPECT_EQ(Packaged::In(Hill + ".zip")[0].bytes, WaveBytes::File({1, 2, 44100, 16}, ""));
}

TEST_F(RecorderStory, NoRecordsAgainOnTheSameDeviceWithoutTheStartMessage) {
  OpenDevices();
  user.Presses("Down");
  user.Presses("Enter");
  user.Waits(3'000);
  user.Presses("Space");
  user.AnswersNo();
  WaitsForBox();
  EXPECT_TRUE(machine.microphone.IsOpen());
  EXPECT_EQ(user.SeesWindow(), "Recording...");
  EXPECT_EQ(user.HearsOnOpening()[1], "Recording. Press space bar to stop.");
  machine.microphone.voice = WaveBytes::Tone(660, 6, 44100);
  user.Waits(900);
  user.Presses("Space");
  // The same file, shorter now, and nothing of the first take is left.
  EXPECT_LT(SecondsOf(Hill + ".wav"), 1);
  user.AnswersYes();
  WaitsForBox();
  EXPECT_THAT(BoxTexts(),
              ElementsAre(StartTrack, Happy, Happy, HasSubstr("successfully been packaged")));
  const auto& takes = machine.microphone.Takes();
  ASSERT_THAT(takes, SizeIs(2));
  EXPECT_EQ(takes[1].device, 1);
  EXPECT_EQ(takes[1].path, takes[0].path);
}

TEST_F(RecorderStory, ManyTakesAreRefusedBeforeOneIsKept) {
  StartRecording();
  for (int i = 0; i < 5; ++i) {
    user.AnswersNo();
    user.Waits(5'000);
    WaitsForBox();
  }
  user.AnswersYes();
  user.Waits(5'000);
  WaitsForBox();
  EXPECT_THAT(machine.microphone.Takes(), SizeIs(6));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(RecorderStory, WhileTheTakeIsHeardTheWindowSaysSo) {
  StartRecording();
  user.Waits(1'000);
  user.Presses("Space");
  EXPECT_EQ(user.HearsOnOpening()[1], "Playing your recording.");
  user.Presses("Escape");
}

TEST_F(RecorderStory, WithoutASelectedDeviceTheDefaultOneRecords) {
  OpenDevices();
  Simulated::WindowInUse()->focus->SelectRow(-1);
  user.Presses("Enter");
  EXPECT_EQ(machine.microphone.Takes().at(0).device, -1);
  user.Presses("Escape");
}

TEST_F(RecorderStory, TheDevicesAreListedAnewEachTime) {
  OpenDevices();
  user.Presses("End");
  user.Presses("Escape");
  machine.microphone.devices = {"USB", "Headset", "Microphone"};
  OpenDevices();
  EXPECT_EQ(user.Hears(), "Input Devices:, list, USB, 1 of 3");
  user.Presses("Escape");
}

TEST_F(RecorderStory, WithoutDevicesTwoBoxesComeAndNoWindow) {
  machine.microphone.devices.clear();
  OpenDevices();
  ASSERT_THAT(user.Boxes(), SizeIs(2));
  EXPECT_THAT(
      user.Boxes()[0],
      Shows(Icon::Critical, "There doesn't seem to be any audio devices on your system.", "Error"));
  EXPECT_THAT(user.Boxes()[1], Shows(Icon::Information, Aborted, "Aborted"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_THAT(machine.files.Names(Tracks), ElementsAre("Hill.TRK"));
}

TEST_F(RecorderStory, CancelAndClosingOfTheDevicesEndTheWork) {
  for (const char* leave : {"Escape", "Alt+F4"}) {
    OpenDevices();
    user.Presses(leave);
    EXPECT_THAT(user.LastBox(), Shows(Icon::Information, Aborted, "Aborted")) << leave;
    EXPECT_EQ(user.SeesWindow(), PackTitle);
  }
  EXPECT_THAT(user.Boxes(), SizeIs(2));
  EXPECT_THAT(machine.files.Names(Tracks), ElementsAre("Hill.TRK"));
}

TEST_F(RecorderStory, ClosingStopsAndCompletesTheFile) {
  for (const char* leave : {"Escape", "Alt+F4"}) {
    StartRecording();
    user.Waits(2'000);
    user.Presses(leave);
    EXPECT_FALSE(machine.microphone.IsOpen());
    EXPECT_NEAR(SecondsOf(Hill + ".wav"), 2, 0.01) << leave;
    EXPECT_THAT(user.LastBox(), Shows(Icon::Information, Aborted, "Aborted"));
    EXPECT_EQ(user.SeesWindow(), PackTitle);
    user.Waits(20'000);
    EXPECT_TRUE(machine.sound.Played().empty());
    EXPECT_FALSE(machine.files.Exists(Hill + ".zip"));
    machine.files.Delete(Hill + ".wav");
  }
}

TEST_F(RecorderStory, ClosingWhileTheTakeIsHeardSilencesIt) {
  StartRecording();
  user.Waits(2'000);
  user.Presses("Space");
  user.ClosesWindow();
  EXPECT_TRUE(machine.sound.Playing().empty());
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  user.Waits(20'000);
  EXPECT_THAT(BoxTexts(), ElementsAre(StartTrack, Aborted));
}

TEST_F(RecorderStory, TheWindowCanBeOpenedAgainAfterItWasClosed) {
  StartRecording();
  user.Presses("Escape");
  machine.files.Delete(Hill + ".wav");
  StartRecording();
  user.Waits(1'000);
  user.AnswersYes();
  user.Presses("Space");
  WaitsForBox();
  EXPECT_TRUE(machine.files.Exists(Hill + ".zip"));
}

// What cannot begin is told, and no older file is heard as if it were new.
TEST_F(RecorderStory, ARecordingThatCannotBeginIsTold) {
  const std::pair<RecordingFailure, const char*> failures[] = {
      {RecordingFailure::NoDevice, "The recording device is not there any more."},
      {RecordingFailure::Forbidden,
       "Windows keeps the microphone from programs. You can change this in its privacy settings."},
      {RecordingFailure::InUse, "Another program is using the recording device."},
      {RecordingFailure::DeviceFailed,
       "The recording device does not answer, or gives no more sound."}};
  for (const auto& [failure, text] : failures) {
    machine.microphone.Refuse(failure);
    StartRecording();
    const auto& boxes = user.Boxes();
    ASSERT_GE(boxes.size(), 3u);
    EXPECT_THAT(boxes[boxes.size() - 2], Shows(Icon::Critical, text, "Error"));
    EXPECT_THAT(boxes.back(), Shows(Icon::Information, Aborted, "Aborted"));
    EXPECT_EQ(user.SeesWindow(), PackTitle);
  }
  user.Waits(20'000);
  EXPECT_TRUE(machine.sound.Played().empty());
  EXPECT_THAT(machine.files.Names(Tracks), ElementsAre("Hill.TRK"));
}

TEST_F(RecorderStory, ASecondTakeThatCannotBeginLeavesTheFirstUnheard) {
  StartRecording();
  user.Waits(1'000);
  user.Presses("Space");
  machine.microphone.Refuse(RecordingFailure::InUse);
  user.AnswersNo();
  WaitsForBox();
  EXPECT_THAT(BoxTexts(), ElementsAre(StartTrack, Happy,
                                      "Another program is using the recording device.", Aborted));
  EXPECT_THAT(machine.sound.Played(), SizeIs(1));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_FALSE(machine.files.Exists(Hill + ".zip"));
}

TEST_F(RecorderStory, AFileThatCannotBeWrittenIsTold) {
  machine.files.RefuseNewFiles(Tracks);
  StartRecording();
  EXPECT_THAT(BoxTexts(), ElementsAre(StartTrack, "The recording could not be written.", Aborted));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(RecorderStory, ADiskThatIsFullEndsTheTakeAndItIsTold) {
  StartRecording();
  machine.files.FailWrites(Simulated::After{0}, RuntimeError::DiskFull);
  user.AnswersNo();
  user.Waits(5'200);
  EXPECT_THAT(user.Boxes().at(1),
              Shows(Icon::Critical, "The recording could not be written.", "Error"));
  EXPECT_FALSE(machine.files.Exists(Hill + ".zip"));
  EXPECT_EQ(machine.files.Text(Tracks + "\\Hill.TRK"), "a track");
}

TEST_F(RecorderStory, ADeviceThatIsPulledOutLeavesWhatItGave) {
  StartRecording();
  user.Waits(1'500);
  machine.microphone.Unplug();
  user.Waits(3'600);
  EXPECT_THAT(user.LastBox().text, HasSubstr("gives no more sound"));
  EXPECT_NEAR(SecondsOf(Hill + ".wav"), 1.5, 0.01);
  EXPECT_THAT(machine.sound.Playing(), SizeIs(1));
  user.AnswersYes();
  WaitsForBox();
  EXPECT_TRUE(machine.files.Exists(Hill + ".zip"));
}

TEST_F(RecorderStory, WithoutSpeakersTheQuestionComesAtOnce) {
  machine.sound.Unplug();
  StartRecording();
  user.Waits(1'000);
  user.AnswersYes();
  user.Presses("Space");
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_TRUE(machine.files.Exists(Hill + ".zip"));
}

TEST_F(RecorderStory, SpeakersThatGoAwayDoNotKeepTheQuestionAway) {
  StartRecording();
  user.Waits(3'000);
  user.Presses("Space");
  machine.sound.Unplug();
  user.AnswersYes();
  WaitsForBox();
  EXPECT_TRUE(machine.files.Exists(Hill + ".zip"));
}

TEST_F(RecorderStory, TheQuestionStaysOpenForAsLongAsTheUserLikes) {
  StartRecording();
  user.Waits(1'000);
  user.Presses("Space");
  user.WhenWindowOpens("Recording complete", [&] {
    user.Waits(60'000);
    user.Presses("Enter");
  });
  WaitsForBox();
  EXPECT_TRUE(machine.files.Exists(Hill + ".zip"));
  EXPECT_THAT(machine.microphone.Takes(), SizeIs(1));
}

TEST(RecorderAtTheEnd, AProgramThatEndsWhileItRecordsLeavesAWholeFile) {
  Simulated::Machine machine;
  StartPack();
  machine.files.PutFolder("C:\\Game");
  SKFileRecorder::BeginTrackRecording(0, {.path = "C:\\Game\\hill.wav", .OnKept = [] {}});
  machine.user.Waits(1'000);
  Platform::EndProgram();
  RunObjects::End();
  EXPECT_FALSE(machine.microphone.IsOpen());
  EXPECT_EQ(Platform::ReadWaveFile("C:\\Game\\hill.wav").Frames(), 44100u);
}

TEST(RecorderSweep, WhateverFailsTheTrackIsThereOrItsArchive) {
  const std::string tracks = "C:\\Games\\Skidrun2\\tracks";
  const auto calls = ForEachCallThatFails([&](Simulated::Machine& machine, Simulated::After after) {
    Simulated::User& user = machine.user;
    InstallGame(machine, "C:\\Games\\Skidrun2");
    machine.files.Put(tracks + "\\hill.trk", "a track");
    StartPack();
    machine.FailAnyCall(after);
    user.ChoosesFile("hill.trk");
    user.AnswersYes();
    user.ChoosesMenu({"Track", "Package"});
    if (user.SeesWindow().ends_with("What to do?")) {
      user.Presses("Down");
      user.Presses("Enter");
    }
    if (user.SeesWindow() == "Choose recording device") user.Presses("Enter");
    if (user.SeesWindow() == "Recording...") {
      user.Waits(300);
      user.Presses("Space");
    }
    for (int i = 0; i < 40 && user.SeesWindow() == "Recording..."; ++i) user.Waits(50);
    // A window whose successor could not be shown, or whose question came to nothing.
    if (user.SeesWindow() == "Recording...") user.Presses("Escape");
    user.script().files.clear();
    user.script().answers.clear();
    if (!machine.FailureHappened()) machine.faults = {};
    EXPECT_FALSE(machine.microphone.IsOpen());
    EXPECT_THAT(machine.screen.Titles(), SizeIs(1));
    const std::string archive = tracks + "\\hill.zip";
    EXPECT_TRUE(machine.files.Exists(archive)
                    ? Packaged::In(archive).at(1) == (File{"hill.trk", "a track"})
                    : machine.files.Text(tracks + "\\hill.trk") == "a track");
  });
  EXPECT_THAT(calls, testing::Contains(HasSubstr("Recorder::Start")));
  EXPECT_THAT(calls, testing::Contains(HasSubstr("Recorder::Stop")));
  EXPECT_THAT(calls, testing::Contains(HasSubstr("RecordingDevices")));
}

// --- Vehicles ---

TEST_F(RecorderStory, AVehicleIsRecordedOnADeviceThatIsKnown) {
  bool isKept = false;
  SKFileRecorder::BeginVehicleRecording(
      1, {.path = Rocket + ".wav", .OnKept = [&] { isKept = true; }}, {});
  EXPECT_EQ(user.SeesWindow(), "Recording...");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Information, StartVehicle, "Start recording"));
  user.Waits(2'000);
  user.Presses("Space");
  user.AnswersNo();
  WaitsForBox();
  user.AnswersYes();
  user.Waits(5'100);
  WaitsForBox();
  EXPECT_TRUE(isKept);
  EXPECT_EQ(machine.microphone.Takes().at(1).device, 1);
  EXPECT_NEAR(SecondsOf(Rocket + ".wav"), 5, 0.01);
  EXPECT_THAT(machine.files.Names(Tracks), ElementsAre("Hill.TRK"));
  user.Presses("Escape");
}

TEST_F(RecorderStory, AVehicleWhoseDeviceIsChosenGoesOnWithTheTrackInWork) {
  TheTrack().TrackPath = Hill + ".trk";
  PackageVehicle();
  ChoosesToRecord();
  EXPECT_EQ(user.SeesWindow(), "Choose recording device");
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Information, StartTrack));
  user.Waits(1'000);
  EXPECT_EQ(machine.microphone.Takes().at(0).path, Hill + ".wav");
  user.AnswersYes();
  user.Presses("Space");
  WaitsForBox();
  EXPECT_THAT(Packaged::In(Hill + ".zip"), SizeIs(2));
  EXPECT_THAT(machine.files.Names(Vehicles), ElementsAre("Rocket.vhc"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(RecorderStory, WithoutATrackNothingIsRecordedForAVehicle) {
  for (const char* track : {"", "C:\\not saved yet.trk"}) {
    TheTrack().TrackPath = track;
    PackageVehicle();
    ChoosesToRecord();
    user.Presses("Enter");
    EXPECT_THAT(user.LastBox(),
                Shows(Icon::Critical,
                      "A device that is chosen here records the description of a track, and no "
                      "track has been chosen. Nothing was recorded.",
                      "Error"));
    EXPECT_EQ(user.SeesWindow(), PackTitle);
  }
  EXPECT_TRUE(machine.microphone.Takes().empty());
  EXPECT_THAT(machine.files.Names(Vehicles), ElementsAre("Rocket.vhc"));
  EXPECT_EQ(machine.files.Text(Vehicles + "\\Rocket.vhc"), "enginesound=car1\r\n");
}

}  // namespace
