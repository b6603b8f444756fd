// The player's records: the viewer and the checker.
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

class Records : public PackTest {
 protected:
  std::string file() const { return gameFolder() + "\\highscore.cfg"; }

  // Waits until the viewer shows a time.
  static void WaitForTime(const Window& viewer, const std::string& time) {
    const Window box = viewer.control("Time:");
    WaitUntil("the time " + time, [&] { return box.text() == time; });
  }
};

TEST_F(Records, TimeFollowsTheSelectedTrack) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Game", "Record Viewer"});
  const Window viewer = pack.WaitForWindow("Record Viewer");
  EXPECT_EQ(viewer.control("Select a track:").rows(),
            (std::vector<std::string>{"hill", "coast", "advharbour"}));
  pack.WaitForRow("hill");
  WaitForTime(viewer, "1 minute, 12.345 seconds");
  pack.Press("Down");
  WaitForTime(viewer, "2 minutes, 5.5 seconds");
  pack.Press("Down");
  WaitForTime(viewer, "1 hour, 2 minutes, 3.004 seconds");

  pack.TabTo("Cancel");
  pack.Press("Enter");
  pack.WaitForMain();
}

TEST_F(Records, RecordIsDeletedOnceConfirmed) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Game", "Record Viewer"});
  const Window viewer = pack.WaitForWindow("Record Viewer");
  pack.Press("Down");
  pack.WaitForRow("coast");

  const BoxText question =
      Question("Confirm record deletion",
               "Are you sure you want to delete the current record from the list?");
  pack.Press("Alt+D");
  EXPECT_EQ(pack.AnswerBox("Enter"), question);  // No is the default
  pack.WaitForWindow("Record Viewer");
  EXPECT_EQ(ReadFile(file()), "hill=72345\r\ncoast=125500\r\nadvharbour=3723004\r\n");

  pack.Press("Alt+D");
  EXPECT_EQ(pack.AnswerBox("Y"), question);
  pack.WaitForWindow("Record Viewer");
  EXPECT_EQ(viewer.control("Select a track:").rows(),
            (std::vector<std::string>{"hill", "advharbour"}));
  EXPECT_EQ(ReadFile(file()), "hill=72345\r\nadvharbour=3723004\r\n");
  pack.WaitForRow("advharbour");
  WaitForTime(viewer, "1 hour, 2 minutes, 3.004 seconds");

  pack.Press("Escape");
  pack.WaitForMain();
}

TEST_F(Records, LastRecordOfAllIsDeleted) {
  WriteFile(file(), "hill=72345\r\n");
  Pack& pack = StartPack();
  pack.ChooseMenu({"Game", "Record Viewer"});
  const Window viewer = pack.WaitForWindow("Record Viewer");
  const Window list = viewer.control("Select a track:");
  pack.Press("Alt+D");
  pack.AnswerBox("Y");
  pack.WaitForWindow("Record Viewer");
  EXPECT_THAT(list.rows(), testing::IsEmpty());
  EXPECT_EQ(viewer.control("Time:").text(), "");
  EXPECT_EQ(viewer.focus(), list);
  EXPECT_EQ(ReadFile(file()), "");

  pack.PressInVain("Alt+D");
  pack.Press("Alt+F4");
  pack.WaitForMain();
}

TEST_F(Records, WriteProtectedFileIsToldAndKept) {
  const std::string before = ReadFile(file());
  SetFileAttributesA(file().c_str(), FILE_ATTRIBUTE_READONLY);
  Pack& pack = StartPack();
  pack.ChooseMenu({"Game", "Record Viewer"});
  const Window viewer = pack.WaitForWindow("Record Viewer");
  pack.Press("Down");
  for (const char* button : {"Alt+D", "Alt+R"}) {
    pack.Press(button);
    EXPECT_EQ(pack.AnswerBox("Y").icon, BoxIcon::Question);
    EXPECT_EQ(pack.AnswerBox(),
              Critical("Error", "The file is write-protected or is a folder.\r\nFile: " + file()));
    pack.WaitForWindow("Record Viewer");
    EXPECT_EQ(viewer.control("Select a track:").rows(),
              (std::vector<std::string>{"hill", "coast", "advharbour"}));
    WaitForTime(viewer, "2 minutes, 5.5 seconds");
    EXPECT_EQ(ReadFile(file()), before);
  }
  pack.Press("Escape");
  pack.WaitForMain();
  SetFileAttributesA(file().c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Records, ResetClearsThemAll) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Game", "Record Viewer"});
  pack.WaitForWindow("Record Viewer");
  pack.Press("Alt+R");
  EXPECT_EQ(pack.AnswerBox("Y"),
            Question("Confirm operation", "Are you sure you want to clear your record list?"));
  const Window viewer = pack.WaitForWindow("Record Viewer");
  EXPECT_THAT(viewer.control("Select a track:").rows(), testing::IsEmpty());
  pack.Press("Escape");
  pack.WaitForMain();
  EXPECT_EQ(ReadFile(file()), "");

  pack.ChooseMenu({"Game", "Record Viewer"});
  EXPECT_EQ(pack.AnswerBox(),
            Information("Record Viewer", "There are currently no records to view."));
  pack.WaitForMain();
}

TEST_F(Records, CheckerTellsGoodBadAndMissingRecords) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Game", "Check Record File"});
  EXPECT_EQ(pack.AnswerBox(), Information("Check complete", "Score file checked with no errors."));

  WriteFile(file(), "hill=72345\r\nLap=1000=2\r\n");
  pack.ChooseMenu({"Game", "Check Record File"});
  EXPECT_EQ(
      pack.AnswerBox(),
      Critical("Syntax Error", "Line 2, Invalid format. Format should be TrackName=TimeInMS."));

  WriteFile(file(), "Lap=fast\r\n");
  pack.ChooseMenu({"Game", "Check Record File"});
  EXPECT_EQ(pack.AnswerBox(),
            Critical("Syntax Error",
                     "Line 1, Invalid value. Record value must be a number in milliseconds."));

  DeleteFileA(file().c_str());
  pack.ChooseMenu({"Game", "Check Record File"});
  EXPECT_EQ(pack.AnswerBox(), Critical("Error.", "The record file doesn't exist."));
  pack.WaitForMain();
}

TEST_F(Records, AmpersandInATracksNameIsShown) {
  WriteFile(file(), "A&B=1000\r\nhill=72345\r\n");
  Pack& pack = StartPack();
  pack.ChooseMenu({"Game", "Record Viewer"});
  const Window viewer = pack.WaitForWindow("Record Viewer");
  EXPECT_THAT(viewer.control("Select a track:").rows(), testing::ElementsAre("A&B", "hill"));
}

TEST_F(Records, AmpersandInThePathOfAFaultyFileIsShownInTheBox) {
  const std::string path = gameFolder() + "\\tracks\\A&B.trk";
  Pack& pack = StartPack();
  pack.ChooseMenu({"Track", "Check .trk file"});
  pack.ChooseFile(path);
  EXPECT_EQ(pack.AnswerBox().text, "(General): " + path + " doesn't exist.");
}

}  // namespace
}  // namespace E2e
