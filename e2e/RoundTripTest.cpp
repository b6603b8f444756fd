// What is made and packaged here, and published by the maker's tool, is downloaded elsewhere: a
// vehicle, a track and a language go by the web into another player's game, and are without a fault
// there.
#include <filesystem>

#include "e2e/driver/ConsoleProgram.h"
#include "e2e/driver/VehicleEditorDriver.h"
#include "e2e/driver/WebServer.h"
#include "tests/archive/ZipBytes.h"

namespace E2e {
namespace {

namespace fs = std::filesystem;

const std::string Host = "http://www.orvane.example/";

class RoundTrip : public VehicleEditorTest {
 protected:
  RoundTrip() {
    server.Serve("http://address.orvane.example/", "...........Your address:   203.0.113.7   ");
  }

  std::string track(const std::string& name) const { return gameFolder() + "\\tracks\\" + name; }

  // The maker's folder.
  std::string offer() const { return scratch.path() + "\\Offer"; }
  void Offer(const std::string& path, const std::string& bytes) const {
    const std::string file = offer() + "\\" + path;
    fs::create_directories(fs::path(file).parent_path());
    WriteFile(file, bytes);
  }
  ConsoleOutcome Publish() const { return RunTool("sk2publish", {offer(), site()}); }
  std::string site() const { return scratch.path() + "\\Site"; }
  // Every file that is published, at its address.
  void ServeSite() {
    const fs::path current = site() + "\\current";
    for (const auto& entry : fs::recursive_directory_iterator(current)) {
      if (entry.is_directory()) continue;
      std::string address = Host;
      for (const char c : fs::relative(entry.path(), current).generic_string()) {
        address += c == ' ' ? std::string("%20") : std::string(1, c);
      }
      server.Serve(address, ReadFile(entry.path().string()));
    }
  }

  void Package(const char* menu, const std::string& name) {
    Pack& pack = RunningPack();
    pack.ChooseMenu({menu, "Package"});
    pack.ChooseFile(name);
    EXPECT_EQ(pack.AnswerBox().icon, BoxIcon::Information);
    pack.WaitForMain();
  }
  // The track's description is what is heard by the microphone, for about a second.
  void PackageWithRecording(const std::string& name) {
    Pack& pack = RunningPack();
    pack.ChooseMenu({"Track", "Package"});
    pack.ChooseFile(name + ".trk");
    pack.WaitForWindow("Track description sound doesn't exist. What to do?");
    pack.Press("Down");
    pack.WaitForRow("Record new .wav file");
    pack.Press("Enter");
    pack.WaitForWindow("Choose recording device");
    pack.Press("Enter");
    EXPECT_EQ(pack.AnswerBox().title, "Start recording");
    pack.WaitForWindow("Recording...");
    const std::string wave = track(name + ".wav");
    WaitUntil("half a second of the description",
              [&] { return Exists(wave) && ReadFile(wave).size() > 100'000; });
    pack.Press("Space");
    EXPECT_EQ(pack.AnswerBox("Y").title, "Recording complete");
    EXPECT_EQ(pack.AnswerBox().title, "Congratulations!");
    pack.WaitForMain();
  }

  // The kind is counted from 0, as in the list of kinds. The row is that of the file list.
  void Download(int kind, const std::string& row) {
    Pack& pack = RunningPack();
    pack.ChooseMenu({"Internet", "Package Downloader"});
    pack.WaitForWindow("SK2 Package Downloader");
    for (int i = 0; i < kind; ++i) pack.Press("Down");
    const char* kinds[] = {"Car", "Track", "Language"};
    pack.WaitForRow(kinds[kind]);
    pack.Press("Enter");
    const Window files = pack.WaitForWindow("Download directory");
    for (const std::string& each : files.control("Select file:").rows()) {
      if (each == row) break;
      pack.Press("Down");
    }
    pack.WaitForRow(row);
    pack.Press("Enter");
    EXPECT_EQ(pack.AnswerBox(),
              Information("Download completed.", "File successfully downloaded and installed."));
    pack.WaitForMain();
  }
  void ExpectFaultless(const std::vector<std::string>& menu, const std::string& name) {
    RunningPack().ChooseMenu(menu);
    RunningPack().ChooseFile(name);
    const BoxText verdict = RunningPack().AnswerBox();
    EXPECT_EQ(verdict.icon, BoxIcon::Information) << verdict.text;
    RunningPack().WaitForMain();
  }

  WebServer server;
};

TEST_F(RoundTrip, OfAVehicleATrackAndALanguageEndsWithoutAFault) {
  const std::string course = "0\r\n0\r\n5000\r\n-1\r\n0\r\n";
  WriteFile(vehicle("own.wav"), "an engine");
  WriteFile(vehicle("rocket.wav"), "a rocket");
  WriteFile(track("lake.trk"), course);
  StartVehicle("rocket");
  Pack& pack = RunningPack();
  SetSoundFile("Engine Sound", "own.wav");
  SetInternalSound("Horn Sound", "car1");
  SetNumber("Top Speed", "Top Speed", "250");
  pack.Press("Alt+A");
  EXPECT_EQ(pack.AnswerBox(), Information("Congratulations!", "Vehicle file saved!"));
  pack.WaitForWindow(EditorTitle);
  pack.Press("Escape");
  pack.WaitForMain();
  const std::string lines = ReadFile(vehicle("rocket.vhc"));
  Package("Vehicle", "rocket.vhc");
  const bool isRecorded = !Given().speakers.empty();
  if (isRecorded) {
    PackageWithRecording("lake");
  } else {
    WriteFile(track("lake.wav"), "a lake");
    Package("Track", "lake.trk");
  }

  Offer("cars\\The Rocket.zip", ReadFile(vehicle("rocket.zip")));
  Offer("tracks\\lake.zip", ReadFile(track("lake.zip")));
  Offer("tracks\\lake.txt", "A Lake\r\nRound it once.\r\n");
  Offer("tracks\\pond.zip",
        ZipBytes::Bytes({.members = {{.name = "pond.trk", .contents = course}}}));
  Offer("langs\\Deutsch.zip",
        ZipBytes::Bytes({.members = {{.name = "welcome.wav", .contents = "willkommen"}}}));
  const ConsoleOutcome published = Publish();
  EXPECT_EQ(published.status, 0U) << published.said;
  EXPECT_THAT(published.said, testing::StartsWith("Published 1 car, 2 tracks, 1 language, "));
  ServeSite();

  // The pack asks anew each time where the game is.
  const InstalledGame other(scratch.path() + "\\Other");
  Download(0, "The Rocket");
  Download(1, "A Lake");
  Download(2, "Deutsch");
  EXPECT_EQ(ReadFile(other.folder() + "\\vehicles\\rocket.vhc"), lines);
  EXPECT_EQ(ReadFile(other.folder() + "\\vehicles\\rocket.wav"), "a rocket");
  EXPECT_EQ(ReadFile(other.folder() + "\\vehicles\\own.wav"), "an engine");
  EXPECT_EQ(ReadFile(other.folder() + "\\tracks\\lake.trk"), course);
  const std::string spoken = ReadFile(other.folder() + "\\tracks\\lake.wav");
  if (isRecorded) {
    EXPECT_EQ(spoken.substr(0, 4), "RIFF");
    EXPECT_GT(spoken.size(), 100'000U);
  } else {
    EXPECT_EQ(spoken, "a lake");
  }
  EXPECT_EQ(ReadFile(other.folder() + "\\sounds\\Deutsch\\welcome.wav"), "willkommen");
  ExpectFaultless({"Vehicle", "Check .vhc file"}, "rocket.vhc");
  ExpectFaultless({"Track", "Check .trk file"}, "lake.trk");
}

// The tool on this system exchanges folders in its own way, so a few of its ways are gone here too.
TEST_F(RoundTrip, WhatIsRefusedChangesNothingAndWhatHasNotChangedIsNotWritten) {
  const auto car = [](const std::string& lines) {
    return ZipBytes::Bytes({.members = {{.name = "a.vhc", .contents = lines}}});
  };
  Offer("cars\\a.zip", car("skidrun=100\r\n"));
  Offer("software\\versions.txt", "sk2up=1.2.0\r\n");
  EXPECT_EQ(Publish().status, 0U);
  const std::string list = site() + "\\current\\orvane\\games\\sk2\\data\\cars.lst";
  EXPECT_EQ(ReadFile(list), "a:a.zip\n");
  const auto written = fs::last_write_time(list);
  const ConsoleOutcome again = Publish();
  EXPECT_EQ(again.status, 0U);
  EXPECT_THAT(again.said, testing::StartsWith("Nothing has changed"));
  EXPECT_EQ(fs::last_write_time(list), written);

  Offer("cars\\a b.zip", car("skidrun=fast\r\n"));
  Offer("software\\versions.txt", "sk2up=1.1.9\r\n");
  const ConsoleOutcome refused = Publish();
  EXPECT_EQ(refused.status, 1U);
  EXPECT_THAT(refused.said, testing::HasSubstr("/cars/a b.zip: a.vhc, Line 1: "));
  EXPECT_THAT(refused.said, testing::HasSubstr("\"a\" is the beginning of \"a b\""));
  EXPECT_THAT(refused.said, testing::HasSubstr("1.1.9 of \"sk2up\" is lower than 1.2.0"));
  EXPECT_EQ(ReadFile(list), "a:a.zip\n");
  EXPECT_EQ(NamesIn(site()), std::vector<std::string>{"current"});

  fs::remove(offer() + "\\cars\\a b.zip");
  Offer("software\\versions.txt", "sk2up=1.2.0\r\n");
  Offer("cars\\b.zip", car("skidrun=100\r\n"));
  EXPECT_EQ(Publish().status, 0U);
  EXPECT_EQ(ReadFile(list), "a:a.zip\nb:b.zip\n");
  EXPECT_EQ(NamesIn(site()), std::vector<std::string>{"current"});
}

}  // namespace
}  // namespace E2e
