// The pack's main jobs on the demo game, one after the other and without a hand: a line for each,
// of what is done and what comes of it, and a numbered picture of every window on the way.
#include <cstdio>

#include "e2e/driver/Keyboard.h"
#include "e2e/driver/Picture.h"
#include "e2e/driver/Recording.h"
#include "e2e/driver/VehicleEditorDriver.h"

namespace E2e {
namespace {

class Tour : public VehicleEditorTest {
 protected:
  void SetUp() override {
    if (Given().speakers.empty()) GTEST_SKIP() << "there are no speakers and no microphone";
  }

  // A job of the tour, and what came of it.
  void Tell(const std::string& job, const std::string& outcome) {
    std::printf("%d. %s: %s\n", ++job_, job.c_str(), outcome.c_str());
    std::fflush(stdout);
  }

  // A picture of the window in front, with the next number.
  void Photograph(const std::string& name) {
    const Window front(GetForegroundWindow());
    front.WaitUntilDrawn();
    char number[3];
    std::snprintf(number, sizeof number, "%02d", ++picture_);
    SavePicture(TakePicture(front.rectangle()),
                Given().pictures + "\\tour-" + number + "-" + name + ".png");
  }
  Window Meet(const std::string& title, const std::string& picture) {
    const Window window = RunningPack().WaitForWindow(title);
    Photograph(picture);
    return window;
  }
  // Reads the box that comes, and answers it.
  std::string Answer(const std::string& picture, const std::string& key = "Enter") {
    const std::string text = RunningPack().WaitForBox().text;
    Photograph(picture);
    RunningPack().AnswerBox(key);
    return text;
  }

  void HearAnEngine();
  void CheckAVehicle();
  void CheckAFaultyTrack();
  void BuildATrack();
  void RecordAndPackageIt();
  void DownloadAnAddOn();
  void LookAtRecords();

 private:
  int job_ = 0;
  int picture_ = 0;
};

void Tour::HearAnEngine() {
  StartVehicle("rocket");
  SetInternalSound("Engine Sound", "car1");
  GoTo("Engine Sound");
  Photograph("vehicle-editor");
  Recording recording(Given().speakers);
  RunningPack().Press("Alt+T");
  recording.WaitForSound();
  const Sound heard = recording.Take(1);
  EXPECT_NEAR(heard.Seconds(), 1, 0.1);
  RunningPack().Press("Alt+T");
  recording.WaitForSilence(0.5);
  RunningPack().Press("Escape");
  RunningPack().WaitForMain();
  const auto hertz = static_cast<int>(DominantFrequency(heard) + 0.5);
  EXPECT_GT(hertz, 20);
  Tell("An engine is heard",
       "the sound car1 came out of the speakers, most of it at " + std::to_string(hertz) + " Hz");
}

void Tour::CheckAVehicle() {
  RunningPack().WaitForMain();
  Photograph("main-window");
  RunningPack().ChooseMenu({"Vehicle", "Check .vhc file"});
  RunningPack().ChooseFile("Hornet\\Hornet.vhc");
  const std::string text = Answer("checker-success");
  EXPECT_EQ(text, "Vehicle file checked with no errors.");
  Tell("A vehicle is checked", text);
}

void Tour::CheckAFaultyTrack() {
  RunningPack().WaitForMain();
  RunningPack().ChooseMenu({"Track", "Check .trk file"});
  RunningPack().ChooseFile("broken.trk");
  const std::string text = Answer("checker-fault");
  EXPECT_THAT(text, testing::StartsWith("Line "));
  Tell("A faulty track is checked", text);
}

void Tour::BuildATrack() {
  Pack& pack = RunningPack();
  pack.WaitForMain();
  pack.ChooseMenu({"Track", "New"});
  pack.ChooseFile("tour");
  const Window editor = pack.WaitForWindow("SK2 Trackmaker by Orvane Interactive");
  pack.Press("Alt+P");
  Meet("New track part", "track-parts");
  pack.TabTo("Length:");
  pack.Type("12000");
  pack.Press("Enter");
  Meet("SK2 Trackmaker by Orvane Interactive", "trackmaker");
  const std::vector<std::string> rows = editor.control("Track Viewer").rows();
  pack.Press("Alt+S");
  Answer("weather", "Y");
  Answer("track-saved");
  pack.WaitForMain();
  EXPECT_EQ(ReadFile(gameFolder() + "\\tracks\\tour.trk"), "0\r\n0\r\n12000\r\n-1\r\n0\r\n");
  Tell("A track is built", rows.empty() ? "it has no part" : rows.front());
}

void Tour::RecordAndPackageIt() {
  Pack& pack = RunningPack();
  const std::string take = gameFolder() + "\\tracks\\tour.wav";
  const auto takeSize = [&] { return Exists(take) ? ReadFile(take).size() : 0; };
  pack.WaitForMain();
  pack.ChooseMenu({"Track", "Package"});
  pack.ChooseFile("tour.trk");
  pack.WaitForWindow("Track description sound doesn't exist. What to do?");
  pack.Press("Down");
  pack.WaitForRow("Record new .wav file");
  Photograph("track-options");
  pack.Press("Enter");
  Meet("Choose recording device", "audio-device");
  pack.Press("Enter");
  Answer("start-recording");
  Meet("Recording...", "recording");
  constexpr size_t OneSecond = 44'100 * 4;
  WaitUntil("a second of the take", [&] { return takeSize() > OneSecond; });
  pack.Press("Space");
  Answer("happy", "Y");
  const std::string text = Answer("packaged");
  pack.WaitForMain();
  EXPECT_TRUE(Exists(gameFolder() + "\\tracks\\tour.zip"));
  EXPECT_FALSE(Exists(take));
  Tell("A description is recorded, and the track packaged with it", text);
}

void Tour::DownloadAnAddOn() {
  Pack& pack = RunningPack();
  const std::string vehicle = gameFolder() + "\\vehicles\\Cricket\\Cricket.vhc";
  pack.WaitForMain();
  pack.ChooseMenu({"Internet", "Package Downloader"});
  Meet("SK2 Package Downloader", "package-downloader");
  pack.Press("Enter");
  const Window files = pack.WaitForWindow("Download directory").control("Select file:");
  const std::vector<std::string> rows = files.rows();
  for (size_t i = 0; i < rows.size() && !files.selectedRow().starts_with("Cricket"); ++i) {
    pack.Press("Down");
    pack.WaitForRow(rows.at(i + 1));
  }
  Photograph("file-list");
  const std::string name = files.selectedRow();
  pack.Press("Enter");
  const std::string text = Answer("downloaded");
  pack.WaitForMain();
  EXPECT_TRUE(Exists(vehicle));
  Tell("The vehicle " + name + " is downloaded", text);
}

void Tour::LookAtRecords() {
  Pack& pack = RunningPack();
  pack.WaitForMain();
  pack.ChooseMenu({"Game", "Record Viewer"});
  const Window viewer = pack.WaitForWindow("Record Viewer");
  const Window time = viewer.control("Time:");
  WaitUntil("a time", [&] { return !time.text().empty(); });
  Photograph("record-viewer");
  const std::string record = viewer.control("Select a track:").selectedRow() + ", " + time.text();
  EXPECT_EQ(record, "hill, 1 minute, 12.345 seconds");
  pack.Press("Escape");
  pack.WaitForMain();
  Tell("The records are looked at", record);
}

TEST_F(Tour, ShowsTheMainJobs) {
  HearAnEngine();
  CheckAVehicle();
  CheckAFaultyTrack();
  BuildATrack();
  RecordAndPackageIt();
  DownloadAnAddOn();
  LookAtRecords();
}

}  // namespace
}  // namespace E2e
