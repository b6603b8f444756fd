#include "machine/simulated/Window.h"
#include "tests/tracks/TrackEditorStory.h"
#include "tracks/TrackInWork.h"
#include "tracks/TrackManager.h"

namespace {

using Platform::Icon;
using testing::ElementsAre;
using testing::IsEmpty;

class TrackPartsStory : public TrackEditorStory {
 protected:
  TrackPartsStory() {
    StartsTrack("Race");
    user.Presses("Alt+P");
  }

  void ExpectBackAtTheLength(const std::string& typed) {
    EXPECT_EQ(user.SeesWindow(), PartTitle);
    EXPECT_EQ(user.Hears(), "Length:, edit, " + typed);
    EXPECT_EQ(user.SelectedText(), typed);
    EXPECT_EQ(TheTrack().TrackText, "");
  }
};

TEST_F(TrackPartsStory, TabLeadsThroughLengthSurfaceCurveAndTheButtons) {
  EXPECT_THAT(user.HearsOnOpening(), ElementsAre(PartTitle, "Length:, edit"));
  std::vector<std::string> heard;
  for (int i = 0; i < 5; ++i) {
    heard.push_back(user.Hears());
    user.Presses("Tab");
  }
  EXPECT_THAT(heard,
              ElementsAre("Length:, edit", "Surface:, list, Asphalt, 1 of 4",
                          "Curve:, list, Straight, 1 of 13", "OK, button", "Cancel, button"));
  EXPECT_EQ(user.Hears(), "Length:, edit");
}

TEST_F(TrackPartsStory, TheListsStandInTheOrderOfTheirCodes) {
  GoesTo("Surface:");
  for (const char* name : {"Asphalt, 1", "Gravel, 2", "Water, 3", "Sand, 4"}) {
    EXPECT_EQ(user.Hears(), std::string("Surface:, list, ") + name + " of 4");
    user.Presses("Down");
  }
  GoesTo("Curve:");
  for (const char* name :
       {"Straight, 1", "Easy Left, 2", "Left, 3", "Hard Left, 4", "Hairpin Left, 5",
        "Easy Right, 6", "Right, 7", "Hard Right, 8", "Hairpin Right, 9", "Straight Crowd, 10",
        "Straight Ocean, 11", "Straight Runway, 12", "Clock, 13"}) {
    EXPECT_EQ(user.Hears(), std::string("Curve:, list, ") + name + " of 13");
    user.Presses("Down");
  }
}

TEST_F(TrackPartsStory, EnterFromEveryFieldAddsThePart) {
  const char* const fields[] = {"Length:", "Surface:", "Curve:", "OK"};
  for (const char* field : fields) {
    DescribesPart(3, 1, "7000");
    GoesTo(field);
    user.Presses("Enter");
    EXPECT_EQ(user.SeesWindow(), EditorTitle);
    user.Presses("Alt+P");
  }
  user.Presses("Escape");
  EXPECT_EQ(TheTrack().TrackText,
            "3\r\n1\r\n7000\r\n3\r\n1\r\n7000\r\n3\r\n1\r\n7000\r\n3\r\n1\r\n7000\r\n");
}

TEST_F(TrackPartsStory, AnAddedPartIsTheLastLineOfTheViewer) {
  DescribesPart(3, 1, "7000");
  user.Presses("Enter");
  AddsPart(12, 3, "5000");
  EXPECT_THAT(user.Boxes(), IsEmpty());
  EXPECT_EQ(user.Hears(), "New Part, button, Alt+P") << "the next part is one key away";
  GoesTo("Track Viewer");
  EXPECT_EQ(user.Hears(), "Track Viewer, list, Clock section on Sand for 5000 units., 2 of 2");
  user.Presses("Up");
  EXPECT_EQ(user.Hears(),
            "Track Viewer, list, Hard Left section on Gravel for 7000 units., 1 of 2");
}

TEST_F(TrackPartsStory, AfterAPartTheDialogIsEmptyAgainWithTheFocusOnTheCurves) {
  DescribesPart(4, 2, "9000");
  GoesTo("Length:");
  user.Presses("Enter");
  user.Presses("Alt+P");
  EXPECT_EQ(user.Hears(), "Curve:, list, Straight, 1 of 13");
  GoesTo("Length:");
  EXPECT_EQ(user.Hears(), "Length:, edit");
  GoesTo("Surface:");
  EXPECT_EQ(user.Hears(), "Surface:, list, Asphalt, 1 of 4");
}

TEST_F(TrackPartsStory, AListWhoseSelectionWasTakenAwayIsWhereTheUserIsLed) {
  for (const char* list : {"Surface:", "Curve:"}) {
    DescribesPart(0, 0, "7000");
    GoesTo(list);
    Simulated::WindowInUse()->focus->SelectRow(-1);
    GoesTo("Length:");
    user.Presses("Enter");
    EXPECT_EQ(user.Hears(), std::string(list) + ", list, not selected");
    user.Presses("Down");
  }
  EXPECT_EQ(TheTrack().TrackText, "");
  user.Presses("Enter");
  EXPECT_EQ(TheTrack().TrackText, "0\r\n0\r\n7000\r\n");
}

TEST_F(TrackPartsStory, CancelAddsNothingAndKeepsWhatWasTyped) {
  DescribesPart(4, 2, "9000");
  user.Presses("Escape");
  EXPECT_EQ(user.SeesWindow(), EditorTitle);
  EXPECT_EQ(TheTrack().TrackText, "");
  GoesTo("Track Viewer");
  EXPECT_EQ(user.Hears(), "Track Viewer, list, empty");
  user.Presses("Alt+P");
  EXPECT_EQ(user.Hears(), "Curve:, list, Hairpin Left, 5 of 13");
  GoesTo("Length:");
  EXPECT_EQ(user.Hears(), "Length:, edit, 9000");
  GoesTo("Cancel");
  user.Presses("Enter");
  EXPECT_EQ(user.SeesWindow(), EditorTitle);
}

TEST_F(TrackPartsStory, ClosingTheDialogAddsNothingAndOpensItAnewTheNextTime) {
  for (const bool byKey : {true, false}) {
    DescribesPart(4, 2, "9000");
    byKey ? user.Presses("Alt+F4") : user.ClosesWindow();
    EXPECT_EQ(user.SeesWindow(), EditorTitle);
    EXPECT_EQ(TheTrack().TrackText, "");
    user.Presses("Alt+P");
    EXPECT_EQ(user.Hears(), "Length:, edit");
    GoesTo("Surface:");
    EXPECT_EQ(user.Hears(), "Surface:, list, Asphalt, 1 of 4");
    GoesTo("Curve:");
    EXPECT_EQ(user.Hears(), "Curve:, list, Straight, 1 of 13");
    GoesTo("Length:");
  }
}

TEST_F(TrackPartsStory, ALengthThatIsNoNumberIsRefused) {
  for (const char* typed : {"", "abc", "12x", "5000 units", "1 000 0 a", "--5"}) {
    GoesTo("Length:");
    user.Presses("Ctrl+A");
    user.Presses("Delete");
    user.Types(typed);
    GoesTo("Curve:");
    user.Presses("Enter");
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "Length must be a number.", "Error"));
    EXPECT_EQ(user.LastBox().owner, PartTitle);
    EXPECT_EQ(user.SeesWindow(), PartTitle);
    EXPECT_THAT(user.Hears(), testing::StartsWith("Length:, edit"));
    EXPECT_EQ(user.SelectedText(), typed);
  }
  EXPECT_EQ(TheTrack().TrackText, "");
}

TEST_F(TrackPartsStory, ALengthBelow5000IsRefusedAndCanBeTypedOver) {
  DescribesPart(1, 1, "4999");
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "Length must be 5000 or more.", "Error"));
  ExpectBackAtTheLength("4999");

  user.Types("5000");
  EXPECT_EQ(user.Hears(), "Length:, edit, 5000");
  user.Presses("Enter");
  EXPECT_EQ(user.SeesWindow(), EditorTitle);
  EXPECT_EQ(TheTrack().TrackText, "1\r\n1\r\n5000\r\n") << "the lists kept their rows";
}

TEST_F(TrackPartsStory, NegativeAndTinyLengthsAreRefused) {
  for (const char* typed : {"-7000", "0", "4999.4", "-2147483648"}) {
    GoesTo("Length:");
    user.Types(typed);
    user.Presses("Enter");
    EXPECT_EQ(user.LastBox().text, "Length must be 5000 or more.") << typed;
    ExpectBackAtTheLength(typed);
  }
}

TEST_F(TrackPartsStory, ALengthBeyond32BitsIsToldAndTheDialogStays) {
  for (const char* typed : {"2147483648", "99999999999999999999", "1e300", "1e999"}) {
    GoesTo("Length:");
    user.Types(typed);
    GoesTo("OK");
    user.Presses("Enter");
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "The number is too large.")) << typed;
    ExpectBackAtTheLength(typed);
  }
}

TEST_F(TrackPartsStory, TheGreatestLengthIsTheGreatestNumber) {
  DescribesPart(0, 0, "2147483647");
  user.Presses("Enter");
  EXPECT_EQ(TheTrack().TrackText, "0\r\n0\r\n2147483647\r\n");
}

// What is typed, in the user's number format, and what both the file and the viewer hold then.
TEST_F(TrackPartsStory, TheConvertedWholeNumberIsWrittenAndShown) {
  const std::pair<const char*, const char*> lengths[] = {
      {" 7000 ", "7000"}, {"7000.5", "7000"}, {"7001.5", "7002"},
      {"4999.5", "5000"}, {"7,000", "7000"},  {"1e4", "10000"},
      {"&H1388", "5000"}, {"007000", "7000"}, {"+6000.4", "6000"},
  };
  int rows = 0;
  user.Presses("Escape");
  for (const auto& [typed, taken] : lengths) {
    TheTrack().TrackText.clear();
    AddsPart(0, 0, typed);
    EXPECT_EQ(TheTrack().TrackText, std::string("0\r\n0\r\n") + taken + "\r\n") << typed;
    ++rows;
    GoesTo("Track Viewer");
    EXPECT_EQ(user.Hears(), std::string("Track Viewer, list, Straight section on Asphalt for ") +
                                taken + " units., " + std::to_string(rows) + " of " +
                                std::to_string(rows));
  }
}

TEST_F(TrackPartsStory, ADecimalCommaIsTakenWhereTheUserWritesOne) {
  machine.locale.SetSeparators(",", ".");
  DescribesPart(0, 0, "7.000,5");
  user.Presses("Enter");
  EXPECT_EQ(TheTrack().TrackText, "0\r\n0\r\n7000\r\n");
}

TEST_F(TrackPartsStory, TheMessagesSpeakTheUsersLanguage) {
  machine.files.Put("C:\\Program Files\\SK2Pack\\sk2pack.lng",
                    "LengthTooLow=Mindestens\r\nOrMore=oder mehr\r\nError=Fehler\r\n"
                    "LengthNotNumeric=Keine Zahl\r\n");
  DescribesPart(0, 0, "1");
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "Mindestens 5000 oder mehr.", "Fehler"));
  user.Types("x");
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "Keine Zahl", "Fehler"));
}

TEST(AppendTrackPart, WritesThreeLines) {
  std::string text = "0\r\n";
  TrackManager::AppendTrackPart(12, 3, 2147483647, text);
  EXPECT_EQ(text, "0\r\n12\r\n3\r\n2147483647\r\n");
}

TEST(AppendTrackEnd, WritesTheMarkerAndTheWeatherWithoutALineEnd) {
  std::string sunny;
  TrackManager::AppendTrackEnd(true, sunny);
  EXPECT_EQ(sunny, "-1\r\n0");
  std::string rainy = "5000\r\n";
  TrackManager::AppendTrackEnd(false, rainy);
  EXPECT_EQ(rainy, "5000\r\n-1\r\n1");
}

}  // namespace
