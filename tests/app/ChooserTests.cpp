#include <gmock/gmock.h>

#include "machine/simulated/Window.h"
#include "tests/app/PackStory.h"

namespace {

class ChooserStory : public PackStory {
 protected:
  ChooserStory() { StartPack(); }
};

TEST_F(ChooserStory, CtrlNAloneOpensTheNewChooser) {
  user.Presses("Ctrl+N");
  EXPECT_EQ(user.SeesWindow(), "New what?");
  EXPECT_EQ(user.Hears(), "New:, list, Vehicle, 1 of 2");
  EXPECT_FALSE(Platform::MainForm().IsVisible());
}

TEST_F(ChooserStory, CtrlPOpensThePackageChooser) {
  user.Presses("Ctrl+P");
  EXPECT_EQ(user.SeesWindow(), "Package what?");
  EXPECT_EQ(user.Hears(), "Package:, list, Vehicle, 1 of 2");
}

TEST_F(ChooserStory, CtrlCOpensTheCheckChooserWithItsThreeEntries) {
  user.Presses("Ctrl+C");
  EXPECT_EQ(user.SeesWindow(), "Check what?");
  EXPECT_EQ(user.Hears(), "Check:, list, Vehicle, 1 of 3");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "Check:, list, Track, 2 of 3");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "Check:, list, Records file, 3 of 3");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "OK, button");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Cancel, button");
}

TEST_F(ChooserStory, OtherModifiersAndOtherKeysDoNothing) {
  for (const char* key : {"Ctrl+Shift+N", "Ctrl+Alt+N", "Shift+N", "N", "Ctrl+X", "Ctrl+Shift+C",
                          "Ctrl+Shift+P", "Alt+P"}) {
    user.Presses(key);
    EXPECT_EQ(user.SeesWindow(), PackTitle) << key;
  }
}

TEST_F(ChooserStory, CancelEscapeAndTheCloseBoxBringTheMainWindowBackAndDoNothingElse) {
  for (const char* shortcut : {"Ctrl+N", "Ctrl+P", "Ctrl+C"}) {
    user.Presses(shortcut);
    user.Presses("Escape");
    EXPECT_EQ(user.SeesWindow(), PackTitle);
    user.Presses(shortcut);
    user.Presses("Tab");
    user.Presses("Tab");
    user.Presses("Enter");
    EXPECT_EQ(user.SeesWindow(), PackTitle);
    user.Presses(shortcut);
    user.ClosesWindow();
    EXPECT_EQ(user.SeesWindow(), PackTitle);
  }
  EXPECT_TRUE(user.Boxes().empty());
}

TEST_F(ChooserStory, TheSelectionIsKeptForTheNextTime) {
  for (const char* leave : {"Escape", "Alt+F4"}) {
    user.Presses("Ctrl+C");
    user.Presses("End");
    user.Presses(leave);
    user.Presses("Ctrl+C");
    EXPECT_EQ(user.Hears(), "Check:, list, Records file, 3 of 3") << leave;
    user.Presses("Home");
    user.Presses("Escape");
  }
}

TEST_F(ChooserStory, EnterWithoutMovingRunsTheVehicleCheckOverTheMainWindow) {
  user.CancelsFileDialog();
  user.Presses("Ctrl+C");
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox(),
              Shows(Platform::Icon::Critical, "No filename specified.", "Save error"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(ChooserStory, ADoubleClickOnTrackRunsTheTrackCheck) {
  user.CancelsFileDialog();
  user.Presses("Ctrl+C");
  user.DoubleClicks("Track");
  EXPECT_THAT(user.LastBox(), Shows(Platform::Icon::Information, "No file selected.", "Notice"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(ChooserStory, TheEntryThatAnotherProgramSelectedIsTheOneThatRuns) {
  user.CancelsFileDialog();
  user.Presses("Ctrl+C");
  Simulated::WindowInUse()->focus->SelectRow(1);
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox(), Shows(Platform::Icon::Information, "No file selected.", "Notice"));
}

TEST_F(ChooserStory, WithoutASelectedEntryNothingRuns) {
  user.Presses("Ctrl+C");
  Simulated::WindowInUse()->focus->SelectRow(-1);
  user.Presses("Enter");
  EXPECT_EQ(user.Hears(), "Check:, list, not selected");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "Check:, list, Vehicle, 1 of 3");
}

TEST_F(ChooserStory, TheThirdEntryChecksTheRecords) {
  machine.files.Put(Game + "\\highscore.cfg", "hill=61000\r\n");
  user.Presses("Ctrl+C");
  user.Presses("End");
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox(), Shows(Platform::Icon::Information,
                                    "Score file checked with no errors.", "Check complete"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(ChooserStory, ANewTrackTakesTheChoosersPlace) {
  user.ChoosesFile(Game + "\\tracks\\hill.trk");
  user.Presses("Ctrl+N");
  user.Presses("Down");
  user.Presses("Enter");
  EXPECT_EQ(user.SeesWindow(), "SK2 Trackmaker by Orvane Interactive");
  EXPECT_FALSE(Platform::MainForm().IsVisible());
}

TEST_F(ChooserStory, ACancelledDialogBringsTheMainWindowBack) {
  user.CancelsFileDialog();
  user.Presses("Ctrl+N");
  user.Presses("Down");
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox(), Shows(Platform::Icon::Information,
                                    "Trackmaker aborted. No filename selected.", "Aborted"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(ChooserStory, AToolThatFailsBringsTheMainWindowBack) {
  machine.registry = {};
  user.Presses("Ctrl+N");
  user.Presses("Down");
  user.Presses("Enter");
  EXPECT_EQ(user.Boxes().size(), 1U);
  EXPECT_THAT(user.LastBox(),
              Shows(Platform::Icon::Critical, testing::HasSubstr("Skidrun2 was not found")));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(ChooserStory, ThePackageChooserRunsThePackagers) {
  for (const auto& [key, text] : {std::pair{"Home", "Car Packager aborted. No file selected."},
                                  std::pair{"End", "Track Packager aborted. No file selected."}}) {
    user.CancelsFileDialog();
    user.Presses("Ctrl+P");
    user.Presses(key);
    user.Presses("Enter");
    EXPECT_THAT(user.LastBox(), Shows(Platform::Icon::Information, text, "Aborted"));
    EXPECT_EQ(user.SeesWindow(), PackTitle);
  }
}

TEST_F(ChooserStory, TheTextsAreThoseOfTheLanguageFile) {
  machine.files.Put("C:\\Program Files\\SK2Pack\\sk2pack.lng",
                    "CheckWhatTitle=Was pr\xFC"
                    "fen?\r\nCheckWhatText=&Pr\xFC"
                    "fen:\r\n"
                    "Vehicle=Fahrzeug\r\nRecFile=Rekorddatei\r\n");
  user.Presses("Ctrl+C");
  EXPECT_EQ(user.SeesWindow(),
            "Was pr\xFC"
            "fen?");
  EXPECT_EQ(user.Hears(),
            "Pr\xFC"
            "fen:, list, Fahrzeug, 1 of 3, Alt+P");
}

}  // namespace
