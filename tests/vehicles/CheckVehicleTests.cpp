// The menu item Vehicle, Check .vhc file.
#include "tests/SimulatedGame.h"
#include "tests/app/CheckedFile.h"
#include "tests/app/PackStory.h"

namespace {

using Platform::Icon;
using testing::ElementsAre;
using testing::StartsWith;

const std::string Folder = "C:\\Games\\Skidrun2\\vehicles\\rocket";
const std::string Path = Folder + "\\rocket.vhc";

class CheckVehicleStory : public PackStory {
 protected:
  void ChecksFile() {
    StartPack();
    user.ChoosesMenu({"Vehicle", "Check .vhc file"});
  }
};

TEST_F(CheckVehicleStory, TheDialogShowsVehicleFilesOfTheGame) {
  user.CancelsFileDialog();
  ChecksFile();
  const auto dialog = user.LastFileDialog();
  EXPECT_EQ(dialog.kind, Platform::FileDialog::Kind::Open);
  EXPECT_EQ(dialog.title, "Open Skidrun2 Vehicle file");
  EXPECT_EQ(dialog.fileType, "SK2 Vehicle files (*.vhc)");
  EXPECT_EQ(dialog.initialFolder, "C:\\Games\\Skidrun2\\vehicles");
}

TEST_F(CheckVehicleStory, ACancelledDialogIsTold) {
  user.CancelsFileDialog();
  ChecksFile();
  EXPECT_THAT(user.Boxes(),
              ElementsAre(Shows(Icon::Critical, "No filename specified.", "Save error")));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(CheckVehicleStory, ANameThatCannotBeUsedIsToldAsThat) {
  user.ChoosesFile(Folder + "\\????.vhc");
  ChecksFile();
  EXPECT_THAT(user.Boxes(), ElementsAre(Shows(Icon::Critical,
                                              StartsWith("The file name is too long or holds "
                                                         "characters that cannot be used."),
                                              "Error")));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(CheckVehicleStory, AGoodFileIsTold) {
  machine.files.Put(Path, "enginesound=car1\r\nskidrun=250\r\n");
  user.ChoosesFile(Path);
  ChecksFile();
  EXPECT_THAT(user.Boxes(), ElementsAre(Shows(Icon::Information,
                                              "Vehicle file checked with no errors.", "File OK")));
  EXPECT_EQ(user.LastBox().buttons, Platform::Buttons::Ok);
  EXPECT_EQ(user.LastBox().owner, PackTitle);
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(CheckVehicleStory, AFaultIsToldWithItsLine) {
  machine.files.Put(Path, "enginesound=car1\r\nskidrun=250\r\nsteering=abc\r\n");
  user.ChoosesFile(Path);
  ChecksFile();
  EXPECT_THAT(
      user.Boxes(),
      ElementsAre(Shows(Icon::Critical,
                        "Line 3, Invalid data entry. The value for this variable must be a number.",
                        "Syntax Error")));
}

TEST_F(CheckVehicleStory, AMissingFileIsTold) {
  machine.files.PutFolder(Folder);
  user.ChoosesFile(Path);
  ChecksFile();
  EXPECT_THAT(user.Boxes(),
              ElementsAre(Shows(Icon::Critical, "Vhc file does not exist.", "Error")));
}

TEST_F(CheckVehicleStory, AFileInUseIsToldAsMissing) {
  machine.files.Put(Path, "skidrun=250\r\n");
  machine.files.HoldAlone(Path);
  machine.files.PutFolder(Folder);
  user.ChoosesFile(Path);
  ChecksFile();
  EXPECT_THAT(user.Boxes(),
              ElementsAre(Shows(Icon::Critical, "Vhc file does not exist.", "Error")));
}

TEST_F(CheckVehicleStory, TitlesComeFromTheLanguageFileUnderTheirOwnKeys) {
  machine.files.Put("C:\\Program Files\\SK2Pack\\sk2pack.lng",
                    "SyntaxErrorTitle=Syntaxfehler\r\nSyntaxError=not this one\r\nLine=Zeile\r\n"
                    "VehicleFileOKMSGTitle=Datei gut\r\nError=Fehler\r\n"
                    "VehicleNoFileErrorText=Keine Datei.\r\nVehicleNoFileErrorTitle=Sichern\r\n"
                    "OpenVehicleDlgTitle=Fahrzeug\r\nVehicleFilter=Fahrzeuge\r\n"
                    "XVehicle=Vehicle\r\nVCheck=Check\r\n");
  StartPack();
  const auto checks = [&](const std::string& bytes) {
    machine.files.Put(Path, bytes);
    user.ChoosesFile(Path);
    user.ChoosesMenu({"Vehicle", "Check"});
    return user.LastBox();
  };
  EXPECT_THAT(checks("haswipers=1\r\nx"),
              Shows(Icon::Critical, StartsWith("Zeile 2, "), "Syntaxfehler"));
  EXPECT_THAT(checks(""), Shows(Icon::Information, testing::_, "Datei gut"));
  EXPECT_THAT(checks("skidrun=1E99"), Shows(Icon::Critical, testing::_, "Fehler"));
  user.CancelsFileDialog();
  user.ChoosesMenu({"Vehicle", "Check"});
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "Keine Datei.", "Sichern"));
  EXPECT_EQ(user.LastFileDialog().title, "Fahrzeug");
  EXPECT_EQ(user.LastFileDialog().fileType, "Fahrzeuge (*.vhc)");
}

TEST_F(CheckVehicleStory, TheGameIsLookedForAtEachCheck) {
  user.CancelsFileDialog();
  ChecksFile();
  InstallGame(machine, "D:\\Racing");
  user.CancelsFileDialog();
  user.ChoosesMenu({"Vehicle", "Check .vhc file"});
  EXPECT_EQ(user.LastFileDialog().initialFolder, "D:\\Racing\\vehicles");
}

TEST_F(CheckVehicleStory, CtrlCAndEnterCheckAVehicle) {
  machine.files.Put(Path, "skidrun=250\r\n");
  StartPack();
  user.Presses("Ctrl+C");
  EXPECT_EQ(user.SeesWindow(), "Check what?");
  user.ChoosesFile(Path);
  user.Presses("Enter");
  EXPECT_THAT(user.Boxes(), ElementsAre(Shows(Icon::Information, testing::_, "File OK")));
  EXPECT_EQ(user.LastBox().owner, PackTitle);
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST(CheckVehicleWithoutTheGame, NothingIsAskedAndTheCauseIsTold) {
  CheckedFile::ExpectTheMissingGameToBeTold({"Vehicle", "Check .vhc file"});
}

TEST(CheckVehicleLongStep, NothingBeginsMeanwhile) {
  CheckedFile::ExpectNothingToBeginMeanwhile({"Vehicle", "Check .vhc file"}, Path,
                                             "skidrun=1\r\nhornsound=car1\r\n");
}

TEST(CheckVehicleSweep, AnyFailureEndsInOneBox) {
  CheckedFile::ExpectAnyFailureToEndInOneBox({"Vehicle", "Check .vhc file"}, Path,
                                             "skidrun=1\r\nhornsound=horn.wav\r\n",
                                             {Folder + "\\horn.wav"});
}

}  // namespace
