// The record viewer, worked by keyboard and heard.
#include "tests/records/RecordStory.h"

namespace {

using Platform::Answer;
using Platform::Buttons;
using Platform::Icon;
using testing::HasSubstr;

const std::string DeleteQuestion =
    "Are you sure you want to delete the current record from the list?";
const std::string ClearQuestion = "Are you sure you want to clear your record list?";

class RecordViewerStory : public RecordStory {
 protected:
  void OpenViewerOn(std::string_view bytes) {
    PutRecords(bytes);
    OpenViewer();
    ASSERT_EQ(user.SeesWindow(), "Record Viewer");
  }

  void ExpectNoRecordsTold() const {
    EXPECT_THAT(user.LastBox(), Shows(Icon::Information, "There are currently no records to view.",
                                      "Record Viewer"));
    EXPECT_EQ(user.Boxes().size(), 1u);
    ExpectMainWindow();
  }
};

// --- Opening ---

TEST_F(RecordViewerStory, PlayerHearsTheFirstTrackAndTabsThroughTheWindow) {
  OpenViewerOn("hill=72345\r\nlake=61000\r\nmoor=3600000\r\n");
  EXPECT_FALSE(Platform::MainForm().IsVisible());
  EXPECT_THAT(user.HearsOnOpening(),
              testing::ElementsAre("Record Viewer", "Select a track:, list, hill, 1 of 3"));
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Time:, edit, read only, 1 minute, 12.345 seconds");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Delete current record, button, Alt+D");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Reset, button, Alt+R");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Cancel, button");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Select a track:, list, hill, 1 of 3");
  EXPECT_THAT(Platform::SharedAccessKeys(*Platform::ActiveForm()), testing::IsEmpty());
}

TEST_F(RecordViewerStory, TheTimeFollowsTheSelectionByKeyboard) {
  OpenViewerOn("hill=72345\r\nlake=61000\r\nmoor=3600000\r\n");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "Select a track:, list, lake, 2 of 3");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only, 1 minute, 1 second");
  user.Presses("End");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only, 1 hour, ");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "Select a track:, list, moor, 3 of 3");
  user.Types("h");
  EXPECT_EQ(user.Hears(), "Select a track:, list, hill, 1 of 3");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only, 1 minute, 12.345 seconds");
}

TEST_F(RecordViewerStory, TheTimeCanBeReadButNotChanged) {
  OpenViewerOn("hill=1000\r\n");
  user.Presses("Tab");
  user.Types("9");
  user.Presses("Backspace");
  EXPECT_EQ(user.Hears(), "Time:, edit, read only, 1 second");
  user.Presses("Ctrl+A");
  user.Presses("Ctrl+C");
  EXPECT_EQ(machine.clipboard.text(), "1 second");
}

TEST_F(RecordViewerStory, BlankLinesAreDroppedWhereverTheyStand) {
  const std::string bytes = "\r\n\r\n  hill=1000  \r\n\r\n   \r\nlake=2000\r\n\r\n";
  OpenViewerOn(bytes);
  EXPECT_EQ(HearsTracks(), "Select a track:, list, hill, 1 of 2");
  user.Presses("Down");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only, 2 seconds");
  EXPECT_EQ(Records(), bytes) << "looking changes nothing";
}

TEST_F(RecordViewerStory, ATracksNameIsWhatStandsBeforeTheFirstEqualsSign) {
  OpenViewerOn("M&M; hill =5000\r\n=6000\r\n");
  EXPECT_EQ(HearsTracks(), "Select a track:, list, M&M; hill , 1 of 2");
  user.Presses("Down");
  EXPECT_EQ(HearsTracks(), "Select a track:, list, , 2 of 2");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only, 6 seconds");
}

TEST_F(RecordViewerStory, TextsAreInTheUsersLanguage) {
  machine.files.Put(machine.executable.folder + "\\sk2pack.lng",
                    "RecordViewerTitle=Rekorde\r\nTracksPrompt=&Strecken:\r\n"
                    "TimePrompt=&Zeit:\r\nDeleteRecordButton=&Entfernen\r\n"
                    "ResetButton=&Leeren\r\nCclButton=Abbrechen\r\nSeconds=Sekunden\r\n");
  PutRecords("hill=2500\r\n");
  OpenViewer();
  EXPECT_EQ(user.SeesWindow(), "Rekorde");
  EXPECT_EQ(user.Hears(), "Strecken:, list, hill, 1 of 1, Alt+S");
  EXPECT_EQ(HearsTime(), "Zeit:, edit, read only, 2.5 Sekunden, Alt+Z");
  user.Presses("Shift+Tab");
  EXPECT_EQ(user.Hears(), "Abbrechen, button");
}

TEST_F(RecordViewerStory, WithoutAFileThereAreNoRecords) {
  OpenViewer();
  ExpectNoRecordsTold();
  EXPECT_FALSE(machine.files.Exists(RecordPath));
}

TEST_F(RecordViewerStory, AnEmptyFileHasNoRecords) {
  PutRecords("");
  OpenViewer();
  ExpectNoRecordsTold();
}

TEST_F(RecordViewerStory, AFileOfBlankLinesHasNoRecords) {
  PutRecords("\r\n   \r\n\r\n \r\n");
  OpenViewer();
  ExpectNoRecordsTold();
}

TEST_F(RecordViewerStory, AFileThatCannotBeReadIsToldWithItsPath) {
  PutRecords("hill=1\r\n");
  machine.files.HoldAlone(RecordPath);
  OpenViewer();
  ASSERT_EQ(user.Boxes().size(), 1u);
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr(RecordPath)));
  ExpectMainWindow();
}

TEST_F(RecordViewerStory, WithoutTheGameTheUserIsToldOnce) {
  machine.registry = {};
  OpenViewer();
  ASSERT_EQ(user.Boxes().size(), 1u);
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("Skidrun2 was not found")));
  ExpectMainWindow();
}

// --- Times that cannot be shown ---

TEST_F(RecordViewerStory, ARecordWithoutAUsableTimeLeavesTheTimeEmpty) {
  for (const char* value : {"fast", "", "1=2", "99999999999", "-99999999999", "1e400", "400"}) {
    OpenViewerOn("hill=1000\r\nlake=" + std::string(value) + "\r\nmoor=2000\r\n");
    user.Presses("Down");
    EXPECT_EQ(HearsTime(), "Time:, edit, read only") << value;
    user.Presses("Down");
    EXPECT_EQ(HearsTime(), "Time:, edit, read only, 2 seconds") << value;
    user.Presses("Escape");
  }
  EXPECT_THAT(user.Boxes(), testing::IsEmpty());
}

TEST_F(RecordViewerStory, ARecordWithoutAUsableTimeCanBeDeleted) {
  OpenViewerOn("lake=fast\r\nhill=1000\r\n");
  user.AnswersYes();
  user.Presses("Alt+D");
  EXPECT_EQ(Records(), "hill=1000\r\n");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only, 1 second");
}

TEST_F(RecordViewerStory, ATimeIsReadInTheUsersLocaleAndRoundedToMilliseconds) {
  machine.locale.SetSeparators(",", ".");
  OpenViewerOn("hill=1.234,5\r\nlake=1235,5\r\nmoor=2147483647,4\r\nfell=2147483647,5\r\n");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only, 1.234 seconds");
  user.Presses("Down");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only, 1.236 seconds");
  user.Presses("Down");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only, 596 hours, 31 minutes, 23.647 seconds");
  user.Presses("Down");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only");
}

// --- Records without "=" ---

TEST_F(RecordViewerStory, ARecordWithoutEqualsSignShiftsTheTimesBehindIt) {
  OpenViewerOn("hill=1000\r\nnonsense\r\nlake=2000\r\nmoor=3000\r\n");
  EXPECT_EQ(HearsTracks(), "Select a track:, list, hill, 1 of 3");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only, 1 second");
  user.Presses("Down");
  EXPECT_EQ(HearsTracks(), "Select a track:, list, lake, 2 of 3");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only") << "that is the time of the nonsense";
  user.Presses("Down");
  EXPECT_EQ(HearsTracks(), "Select a track:, list, moor, 3 of 3");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only, 2 seconds");
}

TEST_F(RecordViewerStory, DeletionGoesByPositionPastARecordWithoutEqualsSign) {
  OpenViewerOn("nonsense\r\nhill=1000\r\nlake=2000\r\n");
  user.AnswersYes();
  user.Presses("Alt+D");
  EXPECT_EQ(Records(), "hill=1000\r\nlake=2000\r\n");
  EXPECT_EQ(HearsTracks(), "Select a track:, list, lake, 1 of 1");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only, 1 second");
  user.AnswersYes();
  user.Presses("Alt+D");
  EXPECT_EQ(Records(), "lake=2000\r\n") << "the row is gone, its record is not";
  EXPECT_EQ(HearsTracks(), "Select a track:, list, empty");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only");
  user.Presses("Alt+D");
  EXPECT_EQ(user.Boxes().size(), 2u) << "nothing is selected, so nothing is asked";
}

TEST_F(RecordViewerStory, RecordsWithoutEqualsSignAloneOpenAnEmptyList) {
  OpenViewerOn("nonsense\r\n");
  EXPECT_EQ(HearsTracks(), "Select a track:, list, empty");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only");
  user.Presses("Alt+D");
  EXPECT_EQ(Records(), "nonsense\r\n");
  user.AnswersYes();
  user.Presses("Alt+R");
  EXPECT_EQ(Records(), "");
}

// --- Deleting ---

TEST_F(RecordViewerStory, DeletingAsksFirstAndNoIsTheDefault) {
  OpenViewerOn("hill=1000\r\nlake=2000\r\n");
  user.Presses("Down");
  user.AnswersNo();
  user.Presses("Alt+D");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Question, DeleteQuestion, "Confirm record deletion"));
  EXPECT_EQ(user.LastBox().buttons, Buttons::YesNoDefaultNo);
  EXPECT_EQ(user.LastBox().owner, "Record Viewer");
  EXPECT_EQ(Records(), "hill=1000\r\nlake=2000\r\n");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only, 2 seconds");
}

TEST_F(RecordViewerStory, ADeletedRecordIsGoneFromDiskAtOnceAndTheNextIsSelected) {
  OpenViewerOn("hill=1000\r\nlake=2000\r\nmoor=3000\r\n");
  user.Presses("Down");
  user.AnswersYes();
  user.Presses("Alt+D");
  EXPECT_EQ(Records(), "hill=1000\r\nmoor=3000\r\n");
  EXPECT_EQ(user.Hears(), "Select a track:, list, moor, 2 of 2");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only, 3 seconds");
}

TEST_F(RecordViewerStory, BehindTheLastRowTheOneBeforeIsSelected) {
  OpenViewerOn("hill=1000\r\nlake=2000\r\nmoor=3000\r\n");
  user.Presses("End");
  user.AnswersYes();
  user.Presses("Alt+D");
  EXPECT_EQ(Records(), "hill=1000\r\nlake=2000\r\n");
  EXPECT_EQ(user.Hears(), "Select a track:, list, lake, 2 of 2");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only, 2 seconds");
}

TEST_F(RecordViewerStory, TheLastRecordOfAllCanBeDeleted) {
  OpenViewerOn("hill=1000");
  user.AnswersYes();
  user.Presses("Alt+D");
  EXPECT_EQ(Records(), "");
  EXPECT_EQ(user.SeesWindow(), "Record Viewer");
  EXPECT_EQ(user.Hears(), "Select a track:, list, empty");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only");
  user.Presses("Alt+D");
  EXPECT_EQ(user.Boxes().size(), 1u) << "nothing is selected, so nothing is asked";
  user.Presses("Escape");
  OpenViewer();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Information, "There are currently no records to view."));
  ExpectMainWindow();
}

TEST_F(RecordViewerStory, TheRemainingLinesAreTrimmedAndEndInCrLf) {
  OpenViewerOn("\r\n  hill = 1000 \r\r\nlake=2000\r\n\r\nmoor=3000");
  user.Presses("Down");
  user.AnswersYes();
  user.Presses("Alt+D");
  EXPECT_EQ(Records(), "hill = 1000\r\nmoor=3000\r\n");
}

TEST_F(RecordViewerStory, ADeletionWritesTheRecordsAsTheyWereWhenTheWindowOpened) {
  OpenViewerOn("hill=1000\r\nlake=2000\r\n");
  PutRecords("moor=3000\r\n");
  user.AnswersYes();
  user.Presses("Alt+D");
  EXPECT_EQ(Records(), "lake=2000\r\n");
}

// --- Clearing ---

TEST_F(RecordViewerStory, ClearingAsksFirstAndNoIsTheDefault) {
  OpenViewerOn("hill=1000\r\nlake=2000\r\n");
  user.AnswersNo();
  user.Presses("Alt+R");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Question, ClearQuestion, "Confirm operation"));
  EXPECT_EQ(user.LastBox().buttons, Buttons::YesNoDefaultNo);
  EXPECT_EQ(Records(), "hill=1000\r\nlake=2000\r\n");
  EXPECT_EQ(HearsTracks(), "Select a track:, list, hill, 1 of 2");
}

TEST_F(RecordViewerStory, ClearingEmptiesFileListAndTime) {
  OpenViewerOn("hill=1000\r\nnonsense\r\nlake=2000\r\n");
  user.AnswersYes();
  user.Presses("Alt+R");
  EXPECT_TRUE(machine.files.Exists(RecordPath));
  EXPECT_EQ(Records(), "");
  EXPECT_EQ(user.SeesWindow(), "Record Viewer");
  EXPECT_EQ(user.Hears(), "Select a track:, list, empty");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only");
  user.Presses("Alt+D");
  EXPECT_EQ(user.Boxes().size(), 1u) << "nothing is selected, so nothing is asked";
}

// --- Leaving ---

TEST_F(RecordViewerStory, EveryWayOutLeadsToTheMainWindow) {
  PutRecords("hill=1000\r\n");
  const std::vector<std::pair<std::string, std::function<void()>>> ways = {
      {"Escape", [this] { user.Presses("Escape"); }},
      {"Enter in the list", [this] { user.Presses("Enter"); }},
      {"Alt+F4", [this] { user.Presses("Alt+F4"); }},
      {"the close box", [this] { user.ClosesWindow(); }},
      {"the Cancel button",
       [this] {
         user.Presses("Shift+Tab");
         user.Presses("Space");
       }},
  };
  for (const auto& [name, leave] : ways) {
    SCOPED_TRACE(name);
    OpenViewer();
    EXPECT_EQ(user.SeesWindow(), "Record Viewer");
    leave();
    ExpectMainWindow();
  }
  EXPECT_EQ(Records(), "hill=1000\r\n");
}

TEST_F(RecordViewerStory, OpeningAgainReadsTheFileAgain) {
  OpenViewerOn("hill=1000\r\nlake=2000\r\n");
  user.Presses("Down");
  user.Presses("Tab");
  user.Presses("Escape");
  OpenViewerOn("moor=3000\r\n");
  EXPECT_EQ(user.Hears(), "Select a track:, list, moor, 1 of 1");
  EXPECT_EQ(HearsTime(), "Time:, edit, read only, 3 seconds");
}

}  // namespace
