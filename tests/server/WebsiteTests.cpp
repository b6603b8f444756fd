// The maker's web site in the small: every address gets its page, and what the demo's maker offers
// is published and good.
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "base/Text.h"
#include "base/Wave.h"
#include "game/Addresses.h"
#include "internet/AddressPage.h"
#include "tests/ProjectFile.h"
#include "tests/SimulatedGame.h"
#include "tests/Story.h"
#include "tools/Publisher.h"
#include "tracks/TrackChecker.h"
#include "vehicles/VehicleChecker.h"

namespace {

namespace fs = std::filesystem;
using ProjectFile::BytesOf;
using testing::UnorderedElementsAreArray;

const std::string Game = "C:\\Games\\Skidrun2";

// The page as the server sends it to a caller.
std::string EchoPage(const std::string& caller) {
  const std::string configuration = BytesOf("server/site.conf.in");
  const std::string start = "return 200 '";
  const size_t begin = configuration.find(start);
  const size_t end = configuration.find("';", begin);
  EXPECT_NE(end, std::string::npos);
  return Text::Replace(configuration.substr(begin + start.size(), end - begin - start.size()),
                       "$remote_addr", caller);
}

TEST(EchoPage, TellsEveryAddressWhateverTheLengthsOfItsOctets) {
  const std::vector<std::string> octets = {"0", "7", "10", "99", "100", "255"};
  for (const std::string& first : octets) {
    for (const std::string& second : octets) {
      for (const std::string& third : octets) {
        for (const std::string& fourth : octets) {
          const std::string address = first + "." + second + "." + third + "." + fourth;
          EXPECT_EQ(AddressPage::AddressIn(EchoPage(address)), address);
        }
      }
    }
  }
}

TEST(EchoPage, IsReadByPeopleToo) {
  EXPECT_THAT(EchoPage("203.0.113.7"), testing::HasSubstr("Your address:   203.0.113.7"));
  EXPECT_THAT(EchoPage("203.0.113.7"), testing::StartsWith("<!DOCTYPE html>"));
}

// That the pack's hosts are those for which the configuration is made unless it is told others.
TEST(Website, HasTheHostsThatThePackAsks) {
  const std::string configuration = BytesOf("server/configuration.sh");
  for (const std::string url : {Addresses::MakerServer, Addresses::AddressPage}) {
    const std::string host = Text::Replace(url.substr(url.find("//") + 2), "/", "");
    EXPECT_THAT(configuration, testing::HasSubstr(":-" + host + "}")) << url;
  }
}

// What is made of the demo maker's folder.
class DemoSite : public Story {
 protected:
  void SetUp() override {
    Story::SetUp();
    const fs::path offer = ProjectFile::Website / "offer";
    for (const auto& entry : fs::recursive_directory_iterator(offer)) {
      const std::string path = fs::relative(entry.path(), offer).string();
      if (entry.is_directory()) continue;
      machine.files.MountHostFile("C:\\Offer\\" + Text::Replace(path, "/", "\\"),
                                  entry.path().string());
    }
    report = Publisher::Publish("C:\\Offer", "C:\\Site");
  }
  std::string Served(const std::string& path) {
    return machine.files.Text("C:\\Site\\current\\" + Text::Replace(path, "/", "\\"));
  }

  Publisher::Report report;
};

TEST_F(DemoSite, IsPublishedWithoutAFault) {
  for (const auto& fault : report.faults) ADD_FAILURE() << fault.file << ": " << fault.reason;
  EXPECT_EQ(report.outcome, Publisher::Outcome::Published);
}

TEST_F(DemoSite, OffersTheReleaseThatThisIs) {
  EXPECT_EQ(Served("orvane/software/versions.dat"),
            std::string("sk2up=") + ProjectVersion + "\r\n");
}

TEST_F(DemoSite, ListsWhatItHas) {
  EXPECT_EQ(Served("orvane/games/sk2/data/cars.lst"),
            "Cricket:cricket.zip\nNight Coach:coach.zip\n");
  EXPECT_EQ(Served("orvane/games/sk2/data/tracks.lst"),
            "High Pass:pass.zip\nThe Marsh:marsh.zip\n");
  EXPECT_EQ(Served("orvane/games/sk2/data/langs.lst"), "Francais:Francais.zip\n");
  for (const char* archive : {"cars/cricket.zip", "cars/coach.zip", "tracks/pass.zip",
                              "tracks/marsh.zip", "langs/Francais.zip"}) {
    EXPECT_EQ(Served(std::string("orvane/games/sk2/") + archive),
              BytesOf(ProjectFile::Website / "offer" / archive));
  }
  EXPECT_EQ(Served("index.html"), BytesOf("server/offer/pages/index.html"));
}

// The add-ons, each where it is unpacked.
class Addons : public Story {
 protected:
  void SetUp() override {
    Story::SetUp();
    InstallGame(machine, Game);
    Install("cars", [](const std::string&) { return "vehicles\\"; });
    Install("tracks", [](const std::string&) { return "tracks\\"; });
    Install("langs", [](const std::string& name) { return "sounds\\" + name + "\\"; });
  }

  void Install(const std::string& kind,
               const std::function<std::string(const std::string&)>& folderOf) {
    for (const auto& addon : fs::directory_iterator(ProjectFile::Website / "addons" / kind)) {
      const std::string name = addon.path().filename().string();
      for (const auto& entry : fs::recursive_directory_iterator(addon)) {
        const std::string path = fs::relative(entry.path(), addon.path()).string();
        const std::string target = Game + "\\" + folderOf(name) + Text::Replace(path, "/", "\\");
        if (entry.is_directory()) {
          machine.files.PutFolder(target);
        } else {
          machine.files.MountHostFile(target, entry.path().string());
          if (path.ends_with(".wav")) ++sounds;
        }
      }
    }
  }

  int sounds = 0;
};

TEST_F(Addons, CarsAreGood) {
  for (const char* name : {"Cricket", "Coach"}) {
    int32_t code = 0;
    std::string message;
    const std::string file = std::string(name) + "\\" + name + ".vhc";
    EXPECT_EQ(CheckVehicleFile(Game + "\\vehicles\\" + file, code, message), 0) << message;
  }
  EXPECT_THAT(machine.files.Names(Game + "\\vehicles"), testing::SizeIs(2));
}

TEST_F(Addons, TracksAreGood) {
  for (const char* name : {"pass.trk", "marsh.trk"}) {
    int32_t code = 0;
    std::string message;
    EXPECT_EQ(CheckTrackFile(Game + "\\tracks\\" + name, code, message), 0) << message;
    EXPECT_EQ(code, 0);
  }
  EXPECT_THAT(machine.files.Names(Game + "\\tracks"), testing::SizeIs(2));
}

TEST_F(Addons, LanguageHasWhatTheGameSays) {
  std::set<std::string> english;
  for (const auto& entry : fs::directory_iterator(ProjectFile::Root / "demo/sounds/English")) {
    english.insert(entry.path().filename().string());
  }
  EXPECT_THAT(machine.files.Names(Game + "\\sounds\\Francais"), UnorderedElementsAreArray(english));
}

TEST_F(Addons, SoundsAreWaves) {
  int waves = 0;
  for (const auto& entry : fs::recursive_directory_iterator(ProjectFile::Website / "addons")) {
    if (entry.path().extension() != ".wav") continue;
    EXPECT_NO_THROW(DecodeWave(BytesOf(entry.path()))) << entry.path();
    ++waves;
  }
  EXPECT_EQ(waves, sounds);
  EXPECT_EQ(waves, 9);
}

}  // namespace
