#include "base/LineReader.h"
#include "base/Text.h"
#include "tests/app/PackStory.h"
#include "tracks/TrackChecker.h"

namespace {

using Platform::Icon;
using testing::HasSubstr;
using testing::IsEmpty;

class RandomTrackStory : public PackStory {
 protected:
  static inline const std::string Tracks = Game + "\\tracks";

  RandomTrackStory() { StartPack(); }

  void MakesTrack() { user.ChoosesMenu({"Track", "Random Track"}); }

  // Makes a rainy track without adventure.
  void MakesTrackOf(const std::string& name, const std::string& parts) {
    user.ChoosesFile(name);
    user.AnswersNo();
    user.TypesInBox(parts);
    user.AnswersNo();
    MakesTrack();
  }

  std::vector<std::string> LinesOfTrack(const std::string& name) const {
    return LinesOf(machine.files.Text(Tracks + "\\" + name));
  }
};

TEST_F(RandomTrackStory, TheDialogueRunsInItsOrder) {
  user.ChoosesFile("hill.trk");
  user.AnswersNo();
  user.TypesInBox("3");
  user.AnswersYes();
  MakesTrack();

  EXPECT_EQ(user.LastFileDialog().kind, Platform::FileDialog::Kind::Save);
  EXPECT_EQ(user.LastFileDialog().initialFolder, Tracks);
  EXPECT_EQ(user.LastModalWindow().title, "Parts");
  EXPECT_EQ(user.LastModalWindow().prompt, "How many parts do you want for this track?");
  ASSERT_EQ(user.Boxes().size(), 3u);
  EXPECT_THAT(
      user.Boxes()[0],
      Shows(Icon::Question, "Do you want your track to be a street adventure?", "Adventure"));
  EXPECT_THAT(user.Boxes()[1],
              Shows(Icon::Question, "Do you want your track sunny? If you choose no, it will rain!",
                    "Weather"));
  EXPECT_THAT(user.Boxes()[2],
              Shows(Icon::Information, "Your new track is created.", "Thank you!"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(RandomTrackStory, WhatTheUserTriesWhileItIsWrittenIsInVain) {
  bool isTried = false;
  user.DuringLongStep([&] {
    user.Presses("Ctrl+N");
    user.ChoosesMenu({"Track", "New"});
    user.ClosesWindow();
    isTried = true;
  });
  MakesTrackOf("hill.trk", "9000");
  EXPECT_TRUE(isTried);
  EXPECT_EQ(user.LastBox().title, "Thank you!");
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_EQ(LinesOfTrack("hill.trk").size(), 9000 * 3 + 2u);
}

TEST_F(RandomTrackStory, ThreePartsMakeElevenLines) {
  MakesTrackOf("hill.trk", "3");
  const std::string text = machine.files.Text(Tracks + "\\hill.trk");
  const auto lines = LinesOf(text);
  ASSERT_EQ(lines.size(), 11u);
  EXPECT_EQ(lines[9], "-1");
  EXPECT_EQ(lines[10], "1");
  EXPECT_TRUE(text.ends_with("\r\n-1\r\n1\r\n"));
  int32_t code = 0;
  std::string message;
  EXPECT_EQ(CheckTrackFile(Tracks + "\\hill.trk", code, message), 0) << message;
}

TEST_F(RandomTrackStory, TheSunIsZero) {
  user.ChoosesFile("hill");
  user.AnswersNo();
  user.TypesInBox("1");
  user.AnswersYes();
  MakesTrack();
  EXPECT_EQ(LinesOfTrack("hill.trk").back(), "0");
}

TEST_F(RandomTrackStory, TheNameIsLoweredAndGetsItsExtension) {
  MakesTrackOf("C:\\Games\\Skidrun2\\Tracks\\HILL.TRK", "1");
  MakesTrackOf("River", "1");
  MakesTrackOf("Race.Txt", "1");
  MakesTrackOf("\xC4RGER", "1");
  EXPECT_EQ(machine.files.Names(Tracks),
            Names("hill.trk", "race.txt.trk", "river.trk", "\xE4rger.trk"));
}

TEST_F(RandomTrackStory, AnAdventureIsPrefixedInItsNameAndNotInItsFolder) {
  user.ChoosesFile("C:\\G\\Tracks\\Hill.trk");
  machine.files.PutFolder("C:\\G\\Tracks");
  user.AnswersYes();
  user.TypesInBox("1");
  user.AnswersYes();
  MakesTrack();
  EXPECT_EQ(machine.files.Names("C:\\G\\Tracks"), Names("advhill.trk"));
}

TEST_F(RandomTrackStory, AnAdventureInTheRootOfADiskIsPrefixedToo) {
  user.ChoosesFile("C:\\hill");
  user.AnswersYes();
  user.TypesInBox("1");
  user.AnswersYes();
  MakesTrack();
  EXPECT_TRUE(machine.files.Exists("C:\\advhill.trk"));
}

TEST_F(RandomTrackStory, AnAdventureWhoseNameEndsInHalfACharacterThatLooksLikeABackslash) {
  machine.locale.codePage = 932;
  user.ChoosesFile("\x95\x5C.trk");
  user.AnswersYes();
  user.TypesInBox("1");
  user.AnswersYes();
  MakesTrack();
  EXPECT_EQ(machine.files.Names(Tracks), Names("adv\x95\x5C.trk"));
}

TEST_F(RandomTrackStory, NoTrackIsReplacedUnasked) {
  const std::pair<const char*, bool> chosen[] = {
      {"Lap 1.5", false}, {"City", true}, {"City.trk", true}};
  machine.files.Put(Tracks + "\\lap 1.5.trk", "an old track");
  machine.files.Put(Tracks + "\\advcity.trk", "an old track");
  for (const auto& [name, isAdventure] : chosen) {
    user.ChoosesFile(name);
    isAdventure ? user.AnswersYes() : user.AnswersNo();
    user.AnswersNo();
    MakesTrack();
    EXPECT_THAT(user.LastBox(),
                Shows(Icon::Question, HasSubstr(isAdventure ? "advcity.trk" : "lap 1.5.trk"),
                      "Replace track"));
    EXPECT_EQ(user.SeesWindow(), PackTitle);
  }
  EXPECT_EQ(machine.files.Text(Tracks + "\\lap 1.5.trk"), "an old track");
  EXPECT_EQ(machine.files.Text(Tracks + "\\advcity.trk"), "an old track");

  user.ChoosesFile("City");
  user.AnswersYes();
  user.AnswersYes();
  user.TypesInBox("1");
  user.AnswersNo();
  MakesTrack();
  EXPECT_EQ(LinesOfTrack("advcity.trk").size(), 5u);
}

TEST_F(RandomTrackStory, OtherProgramsAreAnsweredWhileManyPartsAreDrawn) {
  MakesTrackOf("few", "10");
  const int before = machine.screen.answers;
  MakesTrackOf("many", "20000");
  EXPECT_GE(machine.screen.answers, before + 3);
}

TEST_F(RandomTrackStory, WithoutAFileNothingIsAsked) {
  user.CancelsFileDialog();
  MakesTrack();
  ASSERT_EQ(user.Boxes().size(), 1u);
  EXPECT_THAT(user.LastBox(), Shows(Icon::Information,
                                    "Random Trackmaker aborted. No filename selected.", "Aborted"));
  EXPECT_THAT(machine.files.Names(Tracks), IsEmpty());
}

TEST_F(RandomTrackStory, WithoutANumberOfPartsNoFileIsMade) {
  for (const bool cancels : {true, false}) {
    user.ChoosesFile("hill");
    user.AnswersYes();
    cancels ? user.CancelsBox() : user.TypesInBox("");
    MakesTrack();
    EXPECT_THAT(user.LastBox(),
                Shows(Icon::Information, "Random Trackmaker aborted. No track parts specified.",
                      "Aborted"));
    EXPECT_THAT(machine.files.Names(Tracks), IsEmpty());
  }
}

TEST_F(RandomTrackStory, WhatIsNoNumberIsAskedForAgain) {
  user.ChoosesFile("hill");
  user.AnswersNo();
  user.TypesInBox("many");
  user.TypesInBox("  ");
  user.TypesInBox("2");
  user.AnswersNo();
  MakesTrack();
  ASSERT_EQ(user.Boxes().size(), 5u);
  EXPECT_THAT(user.Boxes()[1], Shows(Icon::Critical, "Value must be a number.", "Error"));
  EXPECT_THAT(user.Boxes()[2], Shows(Icon::Critical, "Value must be a number.", "Error"));
  EXPECT_EQ(LinesOfTrack("hill.trk").size(), 8u);
}

TEST_F(RandomTrackStory, CancellingAtALaterAskingEndsItToo) {
  machine.files.Put(Tracks + "\\hill.trk", "an old track");
  user.ChoosesFile("hill");
  user.AnswersNo();
  user.AnswersYes();
  user.TypesInBox("many");
  user.CancelsBox();
  MakesTrack();
  EXPECT_EQ(user.LastBox().text, "Random Trackmaker aborted. No track parts specified.");
  EXPECT_EQ(machine.files.Text(Tracks + "\\hill.trk"), "an old track");
}

TEST_F(RandomTrackStory, NoPartsOrLessMakeATrackThatTheCheckerRejects) {
  for (const char* none : {"0", "-5", "0.5", "-2147483648"}) {
    MakesTrackOf("hill", none);
    EXPECT_EQ(machine.files.Text(Tracks + "\\hill.trk"), "-1\r\n1\r\n") << none;
    int32_t code = 0;
    std::string message;
    EXPECT_EQ(CheckTrackFile(Tracks + "\\hill.trk", code, message), 1);
    machine.files.Delete(Tracks + "\\hill.trk");
  }
}

TEST_F(RandomTrackStory, TheNumberOfPartsIsRoundedHalvesToEven) {
  MakesTrackOf("a", "2.5");
  MakesTrackOf("b", "3.5");
  EXPECT_EQ(LinesOfTrack("a.trk").size(), 2 * 3 + 2u);
  EXPECT_EQ(LinesOfTrack("b.trk").size(), 4 * 3 + 2u);
}

TEST_F(RandomTrackStory, ANumberBeyond32BitsIsToldAndNoFileIsMade) {
  for (const char* typed : {"2147483648", "1e999", "-99999999999"}) {
    user.ChoosesFile("hill");
    user.AnswersNo();
    user.TypesInBox(typed);
    MakesTrack();
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "The number is too large."));
    EXPECT_THAT(machine.files.Names(Tracks), IsEmpty());
    EXPECT_EQ(user.SeesWindow(), PackTitle);
  }
}

TEST_F(RandomTrackStory, TheOldTrackStaysUntilTheNewOneIsWhole) {
  const std::string path = Tracks + "\\hill.trk";
  machine.files.Put(path, "an old track");
  user.ChoosesFile("hill");
  user.AnswersNo();
  user.AnswersYes();
  user.WhenWindowOpens("Parts", [&] {
    EXPECT_EQ(machine.files.Text(path), "an old track");
    EXPECT_EQ(user.Hears(), "How many parts do you want for this track?, edit");
    user.Types("2");
    user.Presses("Enter");
  });
  user.AnswersNo();
  MakesTrack();
  EXPECT_EQ(LinesOfTrack("hill.trk").size(), 8u);
}

TEST_F(RandomTrackStory, AFullDiskLeavesTheOldTrackAndNothingBesideIt) {
  const std::string path = Tracks + "\\hill.trk";
  machine.files.Put(path, "an old track");
  // In the parts, at the end marker, and when the file is put in place.
  for (const int writes : {0, 1, 2, 3}) {
    machine.files.FailWrites(Simulated::After{writes}, RuntimeError::DiskFull);
    user.ChoosesFile("hill");
    user.AnswersNo();
    user.AnswersYes();
    user.TypesInBox("8000");
    user.AnswersNo();
    MakesTrack();
    user.script().answers.clear();  // the weather is not asked for once a part could not be written
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("The disk is full.")));
    EXPECT_THAT(user.LastBox().text, HasSubstr(Text::LowerAscii(path)));
    EXPECT_EQ(machine.files.Text(path), "an old track");
    EXPECT_EQ(machine.files.Names(Tracks), Names("hill.trk"));
    EXPECT_EQ(user.SeesWindow(), PackTitle);
  }
}

TEST_F(RandomTrackStory, ATrackThatCannotBeReplacedIsToldBeforeTheWeatherIsAsked) {
  const std::string path = Tracks + "\\hill.trk";
  machine.files.Put(path, "an old track");
  machine.files.SetAttributes(path, Simulated::ReadOnly);
  user.ChoosesFile("hill");
  user.AnswersNo();
  user.AnswersYes();
  user.TypesInBox("3");
  MakesTrack();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr(Text::LowerAscii(path))));
  EXPECT_EQ(machine.files.Text(path), "an old track");
}

TEST_F(RandomTrackStory, WithoutTheGameTheUserIsTold) {
  machine.registry.Delete(Platform::RegistryRoot::LocalMachine, Platform::RegistryView::Of32Bit,
                          "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"
                          "{7A3C51E2-94D0-4B6F-A1C8-2E5D90F4B317}_is1",
                          "InstallLocation");
  MakesTrack();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("Skidrun2 was not found")));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(RandomTrackStory, TwoTracksInOneTickOfTheClockDiffer) {
  MakesTrackOf("a", "100");
  MakesTrackOf("b", "100");
  EXPECT_NE(machine.files.Text(Tracks + "\\a.trk"), machine.files.Text(Tracks + "\\b.trk"));
}

}  // namespace
