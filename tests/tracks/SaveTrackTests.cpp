#include <random>

#include "tests/tracks/TrackEditorStory.h"
#include "tracks/TrackChecker.h"
#include "tracks/TrackFormat.h"
#include "tracks/TrackInWork.h"
#include "tracks/TrackManager.h"
#include "tracks/Trackmaker.h"

namespace {

using Platform::Icon;
using testing::HasSubstr;
using testing::IsEmpty;

const char* const WeatherQuestion = "Do you want your track sunny? If you choose no, it will rain!";

class SaveTrackStory : public TrackEditorStory {
 protected:
  static inline const std::string TwoParts = "0\r\n0\r\n12000\r\n5\r\n1\r\n7000\r\n";

  // The two-part track of which most stories tell, not yet saved.
  void BuildsTwoParts(const std::string& name) {
    StartsTrack(name);
    AddsPart(0, 0, "12000");
    AddsPart(5, 1, "7000");
  }

  void ExpectNothingLost(const std::string& path) {
    EXPECT_EQ(user.SeesWindow(), EditorTitle);
    EXPECT_EQ(TheTrack().TrackPath, path);
    EXPECT_EQ(TheTrack().TrackText, TwoParts);
  }
};

TEST_F(SaveTrackStory, ASunnyTrackIsWrittenAndTheMainWindowComesBack) {
  BuildsTwoParts("Race");
  user.AnswersYes();
  user.Presses("Alt+S");
  ASSERT_EQ(user.Boxes().size(), 2u);
  EXPECT_THAT(user.Boxes()[0], Shows(Icon::Question, WeatherQuestion, "Weather"));
  EXPECT_EQ(user.Boxes()[0].buttons, Platform::Buttons::YesNo);
  EXPECT_THAT(user.Boxes()[1],
              Shows(Icon::Information, "Your new track has been successfully written and saved.",
                    "Track saved."));
  EXPECT_EQ(user.Boxes()[1].owner, EditorTitle);
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_EQ(machine.files.Names(Tracks), Names("Race.trk"));
  EXPECT_EQ(TrackNamed("Race.trk"), TwoParts + "-1\r\n0\r\n");
  EXPECT_EQ(TheTrack().TrackPath, "");
  EXPECT_EQ(TheTrack().TrackText, "");
}

TEST_F(SaveTrackStory, ARainyTrackOfTwoPartsHasTheEightLinesOfTheFormat) {
  BuildsTwoParts("Race");
  user.AnswersNo();
  user.Presses("Alt+C");
  EXPECT_EQ(TrackNamed("Race.trk"), "0\r\n0\r\n12000\r\n5\r\n1\r\n7000\r\n-1\r\n1\r\n");
}

TEST_F(SaveTrackStory, AnOldFileOfTheSameNameIsReplacedAndKeepsItsAttributes) {
  machine.files.Put(Tracks + "\\RACE.trk", "an old track");
  machine.files.SetAttributes(Tracks + "\\RACE.trk", Simulated::Hidden);
  user.AnswersYes();
  BuildsTwoParts("race");
  SavesSunnyTrack();
  EXPECT_EQ(TrackNamed("race.trk"), TwoParts + "-1\r\n0\r\n");
  EXPECT_EQ(machine.files.Attributes(Tracks + "\\race.trk"), Simulated::Hidden);
  EXPECT_EQ(machine.files.Names(Tracks).size(), 1u);
}

// The dialog looks for a file under the name as it was typed; the program's own question is about
// the name that it has made of it.
TEST_F(SaveTrackStory, NoTrackIsReplacedUnasked) {
  machine.files.Put(Tracks + "\\Lap 1.5.trk", "an old track");
  user.AnswersNo();
  StartsTrack("Lap 1.5");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Question,
                                    "This track exists already. Do you want to replace it?\r\n" +
                                        Tracks + "\\Lap 1.5.trk",
                                    "Replace track"));
  EXPECT_EQ(user.LastBox().buttons, Platform::Buttons::YesNoDefaultNo);
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_EQ(TheTrack().TrackPath, "");

  user.AnswersYes();
  StartsTrack("Lap 1.5");
  EXPECT_EQ(TheTrack().TrackPath, Tracks + "\\Lap 1.5.trk");
  EXPECT_EQ(TrackNamed("Lap 1.5.trk"), "an old track") << "until the new one is saved";
}

TEST_F(SaveTrackStory, ANameThatIsTypedWholeIsAskedForByTheDialogAlone) {
  machine.files.Put(Tracks + "\\Race.trk", "an old track");
  user.AnswersNo();
  user.ChoosesFile("Race.trk");
  user.AnswersYes();
  StartsTrack("RACE.TRK");
  ASSERT_EQ(user.Boxes().size(), 2u);
  EXPECT_EQ(user.Boxes()[0].title, "Confirm Save As");
  EXPECT_EQ(user.Boxes()[1].title, "Confirm Save As");
  EXPECT_EQ(TheTrack().TrackPath, Tracks + "\\RACE.TRK");
}

TEST_F(SaveTrackStory, ATrackWithoutPartsIsWrittenAndTheCheckerRejectsIt) {
  StartsTrack("Empty");
  SavesSunnyTrack();
  EXPECT_EQ(TrackNamed("Empty.trk"), "-1\r\n0\r\n");
  int32_t code = 0;
  std::string message;
  EXPECT_EQ(CheckTrackFile(Tracks + "\\Empty.trk", code, message), 1);
  EXPECT_EQ(message, "(L1P1): Track part out of range, value must be between 0 and 12.");
}

TEST_F(SaveTrackStory, AFileThatCannotBeWrittenIsToldAndThePartsAreKept) {
  const std::string path = Tracks + "\\Race.trk";
  machine.files.Put(path, "an old track");
  machine.files.SetAttributes(path, Simulated::ReadOnly);
  user.AnswersYes();
  BuildsTwoParts("Race");
  SavesSunnyTrack();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr(path)));
  EXPECT_EQ(user.Hears(), "Save track, button, Alt+S") << "the user is where the save began";
  EXPECT_EQ(TrackNamed("Race.trk"), "an old track");
  ExpectNothingLost(path);

  machine.files.SetAttributes(path, Simulated::NoAttributes);
  SavesSunnyTrack();
  EXPECT_EQ(TrackNamed("Race.trk"), TwoParts + "-1\r\n0\r\n");
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(SaveTrackStory, AfterAFailedSaveTheTrackCanBeSavedElsewhere) {
  const std::string path = Tracks + "\\Race.trk";
  machine.files.Put(path, "an old track");
  machine.files.HoldAlone(path);
  user.AnswersYes();
  BuildsTwoParts("Race");
  SavesSunnyTrack();
  ExpectNothingLost(path);

  user.ChoosesFile("Other");
  user.Presses("Alt+T");
  ExpectNothingLost(Tracks + "\\Other.trk");
  user.AnswersNo();
  user.Presses("Alt+S");
  EXPECT_EQ(TrackNamed("Other.trk"), TwoParts + "-1\r\n1\r\n") << "one end marker";
  machine.files.Release(path);
  EXPECT_EQ(TrackNamed("Race.trk"), "an old track");
}

TEST_F(SaveTrackStory, AfterAFailedSavePartsCanStillBeAdded) {
  machine.files.FailWrites(Simulated::After{0}, RuntimeError::DiskFull);
  BuildsTwoParts("Race");
  SavesSunnyTrack();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("The disk is full.")));
  EXPECT_THAT(machine.files.Names(Tracks), IsEmpty());
  AddsPart(1, 0, "5000");
  machine.files.FailWrites(Simulated::After{1000}, RuntimeError::DiskFull);
  SavesSunnyTrack();
  EXPECT_EQ(TrackNamed("Race.trk"), TwoParts + "1\r\n0\r\n5000\r\n-1\r\n0\r\n");
}

TEST_F(SaveTrackStory, AFolderThatIsGoneIsTold) {
  machine.files.PutFolder("C:\\Gone");
  StartsTrack("C:\\Gone\\Race");
  AddsPart(0, 0, "5000");
  machine.files.Delete("C:\\Gone");
  SavesSunnyTrack();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("C:\\Gone\\Race.trk")));
  EXPECT_EQ(user.SeesWindow(), EditorTitle);
}

TEST_F(SaveTrackStory, ANameThatIsTooLongIsToldBeforeAnythingIsBuilt) {
  constexpr size_t Longest = 259;
  const size_t rest = Longest - Tracks.size() - 1;
  for (const size_t length : {rest + 1, rest, rest - 3}) {  // the extension takes four
    StartsTrack(std::string(length, 'a'));
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("name is too long")));
    EXPECT_EQ(user.SeesWindow(), PackTitle);
  }
  StartsTrack(std::string(rest - 4, 'a'));
  EXPECT_EQ(user.SeesWindow(), EditorTitle);
}

class SaveWithoutATrackStory : public SaveTrackStory {
 protected:
  SaveWithoutATrackStory() {
    BuildsTwoParts("Race");
    TheTrack().TrackPath.clear();
  }
};

TEST_F(SaveWithoutATrackStory, TheFileIsAskedForFirst) {
  user.ChoosesFile("Other");
  SavesSunnyTrack();
  EXPECT_EQ(TrackNamed("Other.trk"), TwoParts + "-1\r\n0\r\n");
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(SaveWithoutATrackStory, WithoutAFileNothingHappens) {
  user.CancelsFileDialog();
  user.Presses("Alt+S");
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Information, "Trackmaker aborted. No filename selected.", "Aborted"));
  ExpectNothingLost("");
  EXPECT_THAT(machine.files.Names(Tracks), IsEmpty());
}

TEST_F(SaveWithoutATrackStory, AFileThatShallStayLeavesEverythingAsItWas) {
  machine.files.Put(Tracks + "\\Other.trk", "an old track");
  user.ChoosesFile("Other");
  user.AnswersNo();
  user.Presses("Alt+S");
  EXPECT_EQ(user.LastBox().title, "Replace track");
  ExpectNothingLost("");
  EXPECT_EQ(TrackNamed("Other.trk"), "an old track");
}

TEST_F(SaveTrackStory, WriteTextFileEndsTheTextWithALineEnd) {
  TrackManager::WriteTextFile(Tracks + "\\a.trk", "one\r\ntwo");
  EXPECT_EQ(TrackNamed("a.trk"), "one\r\ntwo\r\n");
  TrackManager::WriteTextFile(Tracks + "\\a.trk", "");
  EXPECT_EQ(TrackNamed("a.trk"), "\r\n");
}

TEST_F(SaveTrackStory, WhatTheEditorSavesTheCheckerPasses) {
  std::mt19937 random(2026);
  const auto upTo = [&](uint32_t last) { return static_cast<int>(random() % (last + 1)); };
  for (int track = 0; track < 60; ++track) {
    const std::string name = "Track" + std::to_string(track);
    StartsTrack(name);
    const int parts = 1 + upTo(8);
    std::string expected;
    for (int part = 0; part < parts; ++part) {
      const int curve = upTo(TrackFormat::Curves.size() - 1);
      const int surface = upTo(TrackFormat::Surfaces.size() - 1);
      const int length = part % 3 == 0 ? TrackFormat::ShortestPart : 5000 + upTo(2147478647);
      AddsPart(curve, surface, std::to_string(length));
      TrackManager::AppendTrackPart(curve, surface, length, expected);
    }
    const bool sunny = upTo(1) == 0;
    sunny ? user.AnswersYes() : user.AnswersNo();
    user.Presses("Alt+S");
    ASSERT_EQ(TrackNamed(name + ".trk"), expected + (sunny ? "-1\r\n0\r\n" : "-1\r\n1\r\n"));

    int32_t code = 0;
    std::string message;
    EXPECT_EQ(CheckTrackFile(Tracks + "\\" + name + ".trk", code, message), 0) << message;
    EXPECT_EQ(code, 0) << message;
    EXPECT_EQ(message, std::to_string(parts * 3 + 2) + " lines, " + std::to_string(parts) +
                           " parts, track file was checked successfully with no errors.");
  }
}

}  // namespace
