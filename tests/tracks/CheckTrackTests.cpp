// The menu item Track, Check .trk file.
#include "tests/app/CheckedFile.h"
#include "tests/app/PackStory.h"

namespace {

using Platform::Icon;
using testing::ElementsAre;
using testing::StartsWith;

const std::string Path = "C:\\Games\\Skidrun2\\tracks\\hill.trk";

class CheckTrackStory : public PackStory {
 protected:
  void ChecksFile() {
    StartPack();
    user.ChoosesMenu({"Track", "Check .trk file"});
  }
  void ChecksFile(const std::string& bytes) {
    machine.files.Put(Path, bytes);
    user.ChoosesFile(Path);
    ChecksFile();
  }
};

TEST_F(CheckTrackStory, TheDialogShowsTrackFilesOfTheGame) {
  user.CancelsFileDialog();
  ChecksFile();
  const auto dialog = user.LastFileDialog();
  EXPECT_EQ(dialog.kind, Platform::FileDialog::Kind::Open);
  EXPECT_EQ(dialog.title, "Open Skidrun2 Track file");
  EXPECT_EQ(dialog.fileType, "SK2 Track files (*.trk)");
  EXPECT_EQ(dialog.initialFolder, "C:\\Games\\Skidrun2\\tracks");
}

TEST_F(CheckTrackStory, ACancelledDialogIsTold) {
  user.CancelsFileDialog();
  ChecksFile();
  EXPECT_THAT(user.Boxes(), ElementsAre(Shows(Icon::Information, "No file selected.", "Notice")));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(CheckTrackStory, ANameThatCannotBeUsedIsToldAsThat) {
  user.ChoosesFile("????.trk");
  ChecksFile();
  EXPECT_THAT(user.Boxes(),
              ElementsAre(Shows(Icon::Critical,
                                testing::StartsWith("The file name is too long or holds "
                                                    "characters that cannot be used."),
                                "Error")));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(CheckTrackStory, AGoodFileIsTold) {
  ChecksFile("0\r\n0\r\n5000\r\n-1\r\n0\r\n");
  EXPECT_THAT(user.Boxes(),
              ElementsAre(Shows(Icon::Information,
                                "5 lines, 1 parts, track file was checked successfully with no "
                                "errors.",
                                "File OK")));
  EXPECT_EQ(user.LastBox().buttons, Platform::Buttons::Ok);
  EXPECT_EQ(user.LastBox().owner, PackTitle);
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(CheckTrackStory, AnEmptyFileIsToldToHaveNoEndUnderFileOk) {
  ChecksFile("");
  EXPECT_THAT(user.Boxes(),
              ElementsAre(Shows(Icon::Information, "(End): No track end available.", "File OK")));
}

TEST_F(CheckTrackStory, AFaultIsToldWithItsLine) {
  ChecksFile("0\r\n0\r\n5000\r\n0\r\n0\r\n5000\r\n0\r\n0\r\n4999\r\n-1\r\n0\r\n");
  EXPECT_THAT(user.Boxes(),
              ElementsAre(Shows(Icon::Critical,
                                "Line 9, (L3P3): Track length out of range. Value is to be 5000 "
                                "or more.",
                                "Syntax Error")));
}

TEST_F(CheckTrackStory, AMissingEndIsToldWithTheNumberOfLines) {
  ChecksFile("0\r\n0\r\n5000\r\n");
  EXPECT_THAT(
      user.Boxes(),
      ElementsAre(Shows(Icon::Critical, "Line 3, (End): No track end available.", "Syntax Error")));
}

TEST_F(CheckTrackStory, AMissingFileIsToldWithItsPath) {
  user.ChoosesFile(Path);
  ChecksFile();
  EXPECT_THAT(user.Boxes(), ElementsAre(Shows(Icon::Critical,
                                              "(General): " + Path + " doesn't exist.", "Error")));
}

TEST_F(CheckTrackStory, ATextWhereAPartMayBeginIsToldAsAMissingFile) {
  ChecksFile("0\r\n0\r\n5000\r\nsharp\r\n");
  EXPECT_THAT(user.Boxes(), ElementsAre(Shows(Icon::Critical,
                                              "(General): " + Path + " doesn't exist.", "Error")));
}

TEST_F(CheckTrackStory, TitlesComeFromTheLanguageFileUnderTheirOwnKeys) {
  machine.files.Put("C:\\Program Files\\SK2Pack\\sk2pack.lng",
                    "SyntaxErrorTitle=not this one\r\nSyntaxError=Syntaxfehler\r\nLine=Zeile\r\n"
                    "CTFFileOK=Datei gut\r\nError=Fehler\r\nCTNoFileText=Keine Datei.\r\n"
                    "CTNoFileTitle=Hinweis\r\nOpenTrackDlgTitle=Strecke\r\n"
                    "TrackFilter=Strecken\r\nXTrack=Track\r\nTCheck=Check\r\n");
  StartPack();
  const auto checks = [&](const std::string& bytes) {
    machine.files.Put(Path, bytes);
    user.ChoosesFile(Path);
    user.ChoosesMenu({"Track", "Check"});
    return user.LastBox();
  };
  EXPECT_THAT(checks("0\r\nx"),
              Shows(Icon::Critical, StartsWith("Zeile 2, (L2P1): "), "Syntaxfehler"));
  EXPECT_THAT(checks(""), Shows(Icon::Information, testing::_, "Datei gut"));
  EXPECT_THAT(checks("1E99"), Shows(Icon::Critical, testing::_, "Fehler"));
  user.CancelsFileDialog();
  user.ChoosesMenu({"Track", "Check"});
  EXPECT_THAT(user.LastBox(), Shows(Icon::Information, "Keine Datei.", "Hinweis"));
  EXPECT_EQ(user.LastFileDialog().title, "Strecke");
  EXPECT_EQ(user.LastFileDialog().fileType, "Strecken (*.trk)");
}

TEST_F(CheckTrackStory, CtrlCDownAndEnterCheckATrack) {
  machine.files.Put(Path, "0\r\n0\r\n5000\r\n-1\r\n0\r\n");
  StartPack();
  user.Presses("Ctrl+C");
  EXPECT_EQ(user.SeesWindow(), "Check what?");
  user.Presses("Down");
  user.ChoosesFile(Path);
  user.Presses("Enter");
  EXPECT_THAT(user.Boxes(), ElementsAre(Shows(Icon::Information, testing::_, "File OK")));
  EXPECT_EQ(user.LastBox().owner, PackTitle);
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST(CheckTrackWithoutTheGame, NothingIsAskedAndTheCauseIsTold) {
  CheckedFile::ExpectTheMissingGameToBeTold({"Track", "Check .trk file"});
}

TEST(CheckTrackLongStep, NothingBeginsMeanwhile) {
  CheckedFile::ExpectNothingToBeginMeanwhile({"Track", "Check .trk file"}, Path,
                                             "0\r\n0\r\n5000\r\n-1\r\n0\r\n");
}

TEST(CheckTrackSweep, AnyFailureEndsInOneBox) {
  CheckedFile::ExpectAnyFailureToEndInOneBox({"Track", "Check .trk file"}, Path,
                                             "0\r\n0\r\n5000\r\n-1\r\n0\r\n");
}

}  // namespace
