// Checking a vehicle and a track file from the menus.
#include "e2e/driver/Keyboard.h"
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

class VehicleChecker : public PackTest {
 protected:
  // What the checker says of a file, chosen by what is typed into the dialog.
  BoxText Check(Pack& pack, const std::string& name) {
    pack.ChooseMenu({"Vehicle", "Check .vhc file"});
    pack.ChooseFile(name);
    const BoxText box = pack.AnswerBox();
    pack.WaitForMain();
    return box;
  }
};

TEST_F(VehicleChecker, DialogShowsTheVehiclesOfTheGame) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Vehicle", "Check .vhc file"});
  const FileDialogDriver dialog = pack.WaitForFileDialog();
  EXPECT_EQ(dialog.title(), "Open Skidrun2 Vehicle file");
  EXPECT_EQ(dialog.fileType(), "SK2 Vehicle files (*.vhc)");
}

TEST_F(VehicleChecker, GoodVehicles) {
  Pack& pack = StartPack();
  const BoxText good = Information("File OK", "Vehicle file checked with no errors.");
  EXPECT_EQ(Check(pack, "Hornet\\Hornet.vhc"), good);
  EXPECT_EQ(Check(pack, gameFolder() + "\\vehicles\\Lorry\\Lorry.vhc"), good);
}

TEST_F(VehicleChecker, FaultIsToldWithItsLine) {
  const std::string folder = gameFolder() + "\\vehicles\\Wreck";
  WriteFile(folder + "\\name.vhc", "EngineSound=car1\r\n");
  WriteFile(folder + "\\sound.vhc", "enginesound=car1\r\nhornsound=car5\r\n");
  WriteFile(folder + "\\number.vhc", "skidrun=1=2\r\nskidrun=1.5\r\nskidrun=fast\r\n");
  WriteFile(folder + "\\blank.vhc", "\r\nskidrun=100\r\n");
  Pack& pack = StartPack();
  EXPECT_EQ(Check(pack, "Wreck\\Wreck.vhc"),
            Critical("Syntax Error",
                     "Line 13, Invalid steering factor. Must be a number between 1 and 100."));
  EXPECT_EQ(Check(pack, folder + "\\name.vhc"),
            Critical("Syntax Error",
                     "Line 1, Invalid variable name (EngineSound). Please remember that variable "
                     "names are case sensitive."));
  EXPECT_EQ(Check(pack, folder + "\\sound.vhc"),
            Critical("Syntax Error", "Line 2, The sound " + folder + "\\car5 does not exist."));
  EXPECT_EQ(Check(pack, folder + "\\number.vhc"),
            Critical("Syntax Error",
                     "Line 3, Invalid data entry. The value for this variable must be a number."));
  EXPECT_EQ(Check(pack, folder + "\\blank.vhc"),
            Critical("Syntax Error",
                     "Line 1, Invalid syntax. Line should be in the format variable=value."));
}

TEST_F(VehicleChecker, NumberBeyond32BitsIsAFileThatDoesNotExist) {
  const std::string file = gameFolder() + "\\vehicles\\huge.vhc";
  WriteFile(file, "skidrun=99999999999\r\n");
  EXPECT_EQ(Check(StartPack(), file), Critical("Error", "Vhc file does not exist."));
}

TEST_F(VehicleChecker, MissingFile) {
  EXPECT_EQ(Check(StartPack(), "nowhere.vhc"), Critical("Error", "Vhc file does not exist."));
}

TEST_F(VehicleChecker, CancelledDialog) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Vehicle", "Check .vhc file"});
  pack.CancelFileDialog();
  EXPECT_EQ(pack.AnswerBox(), Critical("Save error", "No filename specified."));
  pack.WaitForMain();
}

class TrackChecker : public PackTest {
 protected:
  BoxText Check(Pack& pack, const std::string& name) {
    pack.ChooseMenu({"Track", "Check .trk file"});
    pack.ChooseFile(name);
    const BoxText box = pack.AnswerBox();
    pack.WaitForMain();
    return box;
  }
};

TEST_F(TrackChecker, DialogShowsTheTracksOfTheGame) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Track", "Check .trk file"});
  const FileDialogDriver dialog = pack.WaitForFileDialog();
  EXPECT_EQ(dialog.title(), "Open Skidrun2 Track file");
  EXPECT_EQ(dialog.fileType(), "SK2 Track files (*.trk)");
}

TEST_F(TrackChecker, GoodTracks) {
  Pack& pack = StartPack();
  EXPECT_EQ(Check(pack, "hill.trk"),
            Information("File OK",
                        "17 lines, 5 parts, track file was checked successfully with no errors."));
  EXPECT_EQ(Check(pack, "coast.trk"),
            Information("File OK",
                        "20 lines, 6 parts, track file was checked successfully with no errors."));
  EXPECT_EQ(Check(pack, gameFolder() + "\\tracks\\advharbour.trk"),
            Information("File OK",
                        "23 lines, 7 parts, track file was checked successfully with no errors."));
}

TEST_F(TrackChecker, FaultIsToldWithItsLine) {
  const std::string folder = gameFolder() + "\\tracks";
  WriteFile(folder + "\\noparts.trk", "-1\r\n0\r\n");
  WriteFile(folder + "\\noend.trk", "0\r\n0\r\n5000\r\n");
  WriteFile(folder + "\\weather.trk", "0\r\n0\r\n5000\r\n-1\r\n2\r\n");
  WriteFile(folder + "\\word.trk", "0\r\nsand\r\n5000\r\n-1\r\n0\r\n");
  Pack& pack = StartPack();
  EXPECT_EQ(Check(pack, "broken.trk"),
            Critical("Syntax Error",
                     "Line 9, (L3P3): Track length out of range. Value is to be 5000 or more."));
  EXPECT_EQ(Check(pack, "noparts.trk"),
            Critical("Syntax Error",
                     "Line 1, (L1P1): Track part out of range, value must be between 0 and 12."));
  EXPECT_EQ(Check(pack, "noend.trk"),
            Critical("Syntax Error", "Line 3, (End): No track end available."));
  EXPECT_EQ(Check(pack, "weather.trk"),
            Critical("Syntax Error", "Line 5, (End): Weather out of range, must be 0 or 1."));
  EXPECT_EQ(Check(pack, "word.trk"),
            Critical("Syntax Error",
                     "Line 2, (L2P1): Invalid track surface type format. All track lines must be a "
                     "number."));
}

TEST_F(TrackChecker, EmptyTrackIsToldUnderFileOk) {
  WriteFile(gameFolder() + "\\tracks\\empty.trk", "");
  EXPECT_EQ(Check(StartPack(), "empty.trk"),
            Information("File OK", "(End): No track end available."));
}

TEST_F(TrackChecker, MissingFile) {
  const std::string file = gameFolder() + "\\tracks\\nowhere.trk";
  EXPECT_EQ(Check(StartPack(), "nowhere.trk"),
            Critical("Error", "(General): " + file + " doesn't exist."));
}

TEST_F(TrackChecker, CancelledDialog) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Track", "Check .trk file"});
  pack.CancelFileDialog();
  EXPECT_EQ(pack.AnswerBox(), Information("Notice", "No file selected."));
  pack.WaitForMain();
}

// The track has hardly any parts, but 128 megabytes behind its end, which are read to count the
// lines: so long that keys can be pressed meanwhile.
TEST_F(TrackChecker, KeysThatArePressedDuringALongCheckHaveNoEffect) {
  const std::string path = gameFolder() + "\\tracks\\long.trk";
  constexpr size_t Rest = 128 << 20;
  WriteFile(path, "0\r\n0\r\n5000\r\n-1\r\n0\r\n" + std::string(Rest, '\0'));
  Pack& pack = StartPack();
  pack.ChooseMenu({"Track", "Check .trk file"});
  pack.ChooseFile("long.trk");
  for (const char* keys : {"Enter", "Escape", "Space", "Ctrl+N", "Ctrl+C", "Alt+V", "Alt+F4"}) {
    Keyboard::Press(keys);
  }
  for (const Window& window : TopWindows(pack.program().processId())) {
    EXPECT_FALSE(IsBox(window)) << "the check was over before the keys were pressed";
  }
  EXPECT_EQ(pack.AnswerBox(),
            Information("File OK",
                        "6 lines, 1 parts, track file was checked successfully with no errors."))
      << "none of them has answered it";
  const Window main = pack.WaitForMain();
  EXPECT_EQ(TopWindows(pack.program().processId()), std::vector<Window>{main});
  pack.PressInVain("N");
}

}  // namespace
}  // namespace E2e
