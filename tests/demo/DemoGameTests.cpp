// The demo game: what it offers to play with is good, and what it offers to check is faulty.
#include <algorithm>
#include <filesystem>
#include <string>

#include "base/Text.h"
#include "records/RecordChecker.h"
#include "records/RecordFile.h"
#include "tests/ProjectFile.h"
#include "tests/SimulatedGame.h"
#include "tests/Story.h"
#include "tracks/TrackChecker.h"
#include "vehicles/VehicleChecker.h"

namespace {

namespace fs = std::filesystem;
using testing::SizeIs;

const std::string Game = "C:\\Games\\Skidrun2";
const fs::path Demo = ProjectFile::Root / "demo";

class DemoGame : public Story {
 protected:
  void SetUp() override {
    Story::SetUp();
    InstallGame(machine, Game);
    for (const auto& entry : fs::recursive_directory_iterator(Demo)) {
      if (entry.is_directory()) {
        machine.files.PutFolder(InGame(entry));
      } else {
        machine.files.MountHostFile(InGame(entry), entry.path().string());
      }
    }
  }

  // Where a file of the demo lies on the machine.
  static std::string InGame(const fs::path& path) {
    return Game + "\\" + Text::Replace(fs::relative(path, Demo).string(), "/", "\\");
  }

  static std::string VehicleReport(const std::string& file) {
    int32_t code = 0;
    std::string message;
    const int32_t line = CheckVehicleFile(Game + "\\vehicles\\" + file, code, message);
    return std::to_string(line) + ": " + message;
  }

  static std::string TrackReport(const std::string& file) {
    int32_t code = 0;
    std::string message;
    const int32_t line = CheckTrackFile(Game + "\\tracks\\" + file, code, message);
    return std::to_string(line) + ": " + message;
  }
};

TEST_F(DemoGame, VehiclesAreGoodButForTheWreck) {
  const std::string good = "0: Vehicle file checked with no errors.";
  EXPECT_EQ(VehicleReport("Hornet\\Hornet.vhc"), good);
  EXPECT_EQ(VehicleReport("Lorry\\Lorry.vhc"), good);
  EXPECT_EQ(VehicleReport("Wreck\\Wreck.vhc"),
            "13: Invalid steering factor. Must be a number between 1 and 100.");
  EXPECT_THAT(machine.files.Names(Game + "\\vehicles"), SizeIs(3));
}

TEST_F(DemoGame, TracksAreGoodButForTheBrokenOne) {
  const std::string good = "track file was checked successfully with no errors.";
  EXPECT_EQ(TrackReport("hill.trk"), "0: 17 lines, 5 parts, " + good);
  EXPECT_EQ(TrackReport("coast.trk"), "0: 20 lines, 6 parts, " + good);
  EXPECT_EQ(TrackReport("advharbour.trk"), "0: 23 lines, 7 parts, " + good);
  EXPECT_EQ(TrackReport("broken.trk"),
            "9: (L3P3): Track length out of range. Value is to be 5000 or more.");
  EXPECT_THAT(machine.files.Names(Game + "\\tracks"), SizeIs(4));
}

TEST_F(DemoGame, RecordsAreGoodAndEachIsOfATrackOfTheGame) {
  std::string message;
  EXPECT_EQ(CheckRecordFile(Game + "\\highscore.cfg", message), 0) << message;
  EXPECT_EQ(machine.files.Text(Game + "\\highscore.cfg"),
            "hill=72345\r\ncoast=125500\r\nadvharbour=3723004\r\n");
  for (const std::string& record : RecordFile::Read()) {
    const std::string track = RecordFile::TrackOf(record).value_or("");
    EXPECT_TRUE(machine.files.Exists(Game + "\\tracks\\" + track + ".trk")) << record;
  }
}

// What changes line ends on the way into a checked-out tree would change what the files mean.
TEST_F(DemoGame, LinesEndAsTheGameWritesThem) {
  int files = 0;
  for (const auto& entry : fs::recursive_directory_iterator(Demo)) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".trk" && extension != ".vhc" && extension != ".cfg") continue;
    ++files;
    const std::string text = machine.files.Text(InGame(entry));
    const auto lines = std::count(text.begin(), text.end(), '\n');
    EXPECT_GT(lines, 0) << entry;
    EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), lines) << entry;
    EXPECT_EQ(text.find("\n\r"), std::string::npos) << entry;
    EXPECT_TRUE(text.ends_with("\r\n")) << entry;
  }
  EXPECT_EQ(files, 9) << "three vehicles, four tracks, records and configuration";
}

}  // namespace
