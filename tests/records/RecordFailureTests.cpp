// Record files that cannot be written: the user is told, and nothing is lost or pretended.
#include "base/LineReader.h"
#include "tests/FailureSweep.h"
#include "tests/SimulatedGame.h"
#include "tests/records/RecordStory.h"
#include "ui/Controls.h"

namespace {

using Platform::Icon;
using testing::HasSubstr;

class RecordFailures : public RecordStory {
 protected:
  const std::string Before = "hill=1000\r\nlake=2000\r\n";

  void SetUp() override {
    PutRecords(Before);
    OpenViewer();
  }

  void DeleteIt() {
    user.AnswersYes();
    user.Presses("Alt+D");
  }
  void ClearAll() {
    user.AnswersYes();
    user.Presses("Alt+R");
  }

  // The last action failed: told once, with the file, and file and window are as they were.
  void ExpectToldAndUnchanged() {
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr(RecordPath)));
    EXPECT_EQ(user.LastBox().owner, "Record Viewer");
    EXPECT_EQ(user.Boxes().size(), 2u) << "the question and the failure";
    EXPECT_EQ(Records(), Before);
    EXPECT_EQ(user.SeesWindow(), "Record Viewer");
    EXPECT_EQ(HearsTracks(), "Select a track:, list, hill, 1 of 2");
    EXPECT_EQ(HearsTime(), "Time:, edit, read only, 1 second");
  }
};

TEST_F(RecordFailures, AWriteProtectedFileKeepsItsRecords) {
  machine.files.SetAttributes(RecordPath, Simulated::ReadOnly);
  DeleteIt();
  ExpectToldAndUnchanged();
}

TEST_F(RecordFailures, AWriteProtectedFileIsNotCleared) {
  machine.files.SetAttributes(RecordPath, Simulated::ReadOnly);
  ClearAll();
  ExpectToldAndUnchanged();
}

TEST_F(RecordFailures, AFullDiskLosesNothing) {
  machine.files.FailWrites({0}, RuntimeError::DiskFull);
  DeleteIt();
  ExpectToldAndUnchanged();
}

TEST_F(RecordFailures, AFileThatTheGameHoldsCanBeChangedOnceItIsFree) {
  machine.files.Hold(RecordPath);
  DeleteIt();
  ExpectToldAndUnchanged();
  machine.files.Release(RecordPath);
  DeleteIt();
  EXPECT_EQ(Records(), "lake=2000\r\n");
  EXPECT_EQ(user.Hears(), "Select a track:, list, lake, 1 of 1");
}

TEST_F(RecordFailures, AGameThatWasUninstalledMeanwhileIsTold) {
  machine.registry = {};
  DeleteIt();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("Skidrun2 was not found")));
  EXPECT_EQ(Records(), Before);
  EXPECT_EQ(HearsTracks(), "Select a track:, list, hill, 1 of 2");
}

TEST_F(RecordFailures, OtherFilesOfTheGameStayAsTheyAre) {
  machine.files.Put(Game + "\\Skidrun.cfg", "Language=english\r\n");
  const auto names = machine.files.Names(Game);
  DeleteIt();
  ClearAll();
  EXPECT_EQ(machine.files.Names(Game), names);
  EXPECT_EQ(machine.files.Text(Game + "\\Skidrun.cfg"), "Language=english\r\n");
}

// The tracks that the open viewer lists.
std::vector<std::string> Listed() {
  const auto& list = static_cast<Platform::ListBox&>(*Platform::ActiveForm()->controls().front());
  std::vector<std::string> rows;
  for (int i = 0; i < list.count(); ++i) rows.push_back(list.row(i));
  return rows;
}

// The tracks that a record file lists.
std::vector<std::string> TracksIn(const std::string& bytes) {
  std::vector<std::string> tracks;
  for (const std::string& line : LinesOf(bytes)) tracks.push_back(line.substr(0, line.find('=')));
  return tracks;
}

// Lets each call fail in turn while the user opens the viewer, deletes a record and clears the
// rest. Whatever fails, the viewer that is open lists what is on disk, and a window is there to be
// used.
TEST(RecordFailureSweep, AnySingleFailureLeavesFileAndWindowInAgreement) {
  const std::string path = "C:\\Games\\Skidrun2\\highscore.cfg";
  const std::string all = "hill=1000\r\nlake=2000\r\nmoor=3000\r\n";
  const auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After after) {
    Simulated::User& user = machine.user;
    InstallGame(machine, "C:\\Games\\Skidrun2");
    machine.files.Put(path, all);
    StartPack();
    machine.FailAnyCall(after);

    const auto isOpen = [] { return Platform::ActiveForm() != &Platform::MainForm(); };
    const auto expectAgreement = [&](const std::string& changed) {
      EXPECT_TRUE(Platform::ActiveForm()->IsVisible());
      EXPECT_THAT(machine.files.Text(path), testing::AnyOf(all, changed));
      if (isOpen()) {
        EXPECT_EQ(Listed(), TracksIn(machine.files.Text(path)));
      }
    };

    user.ChoosesMenu({"Game", "Record Viewer"});
    expectAgreement(all);
    if (!isOpen()) {
      ASSERT_TRUE(machine.FailureHappened());
      EXPECT_EQ(user.Boxes().size(), 1u);
      return;
    }
    user.AnswersYes();
    user.Presses("Alt+D");
    expectAgreement("lake=2000\r\nmoor=3000\r\n");
    const std::string rest = machine.files.Text(path);
    user.AnswersYes();
    user.Presses("Alt+R");
    EXPECT_THAT(machine.files.Text(path), testing::AnyOf(rest, ""));
    EXPECT_EQ(Listed(), TracksIn(machine.files.Text(path)));
    user.Presses("Escape");
    if (isOpen()) {
      EXPECT_THAT(machine.FailedCall(), testing::StartsWith("FormView::Show"));
      user.Presses("Escape");
    }
    EXPECT_FALSE(isOpen());
    if (!machine.FailureHappened()) {
      EXPECT_EQ(machine.files.Text(path), "");
    }
  });
  EXPECT_GT(calls.size(), 2U) << "the sweep has met the reading and both writings";
}

}  // namespace
