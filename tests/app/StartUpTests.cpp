#include <gmock/gmock.h>

#include "app/FileDialogs.h"
#include "app/LanguageTemplate.h"
#include "app/Program.h"
#include "base/PerRun.h"
#include "base/Text.h"
#include "platform/Sound.h"
#include "tests/app/PackStory.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const std::string LanguageFile = "C:\\Program Files\\SK2Pack\\sk2pack.lng";

// The menu as a user walks it, one line an item: two blanks a level, "-" before a greyed item.
void Describe(const std::vector<Platform::MenuItem*>& items, const std::string& indent,
              std::vector<std::string>& lines) {
  for (const Platform::MenuItem* item : items) {
    lines.push_back(indent + (item->IsEnabled() ? "" : "-") + item->caption());
    Describe(item->items(), indent + "  ", lines);
  }
}

std::vector<std::string> MainMenu() {
  std::vector<std::string> lines;
  Describe(Platform::MainForm().menus(), "", lines);
  return lines;
}

class StartUpStory : public PackStory {};

TEST_F(StartUpStory, TheMainWindowShowsTheVersionInItsTitle) {
  StartPack();
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(StartUpStory, TheTitleIsReadFromTheExecutable) {
  machine.executable.version = {0, 5, 2, "Skidrun2 Utility Pack", "Skidrun2 Utility Pack"};
  StartPack();
  EXPECT_EQ(user.SeesWindow(), "Skidrun2 Utility Pack Beta V0.5.2");
}

TEST_F(StartUpStory, TheMenuHasItsItemsInOrder) {
  StartPack();
  EXPECT_THAT(MainMenu(),
              ElementsAre("&File", "  &Close (Alt+F4)",                                           //
                          "&Vehicle", "  -&New (CTRL+N)", "  &Check .vhc file (CTRL+C)",          //
                          "  -&Package (CTRL+P)",                                                 //
                          "&Track", "  &New (CTRL+N)", "  &Random Track",                         //
                          "  &Check .trk file (CTRL+C)", "  -&Package (CTRL+P)",                  //
                          "&Language", "  -&Change current language",                             //
                          "&Internet", "  -&Select Server", "  -Personal &IP Viewer",             //
                          "  -&Package Downloader",                                               //
                          "&Game", "  &Record Viewer", "  &Check Record File",                    //
                          "&Options", "  -Automatically update on startup",                       //
                          "&Help", "  View &Documentation", "  &Visit Websites",                  //
                          "    &Gloamworks", "    &Orvane Interactive", "  -&Check for Updates",  //
                          "  &About"));
}

TEST_F(StartUpStory, TheMenuSpeaksTheUsersLanguageButForSuffixesAndWebSites) {
  machine.files.Put(LanguageFile,
                    "XFile=&Datei\r\nFClose=&Beenden\r\nXVehicle=Fahr&zeug\r\n"
                    "LChangeLang=&Sprache wechseln\r\nGRecordViewer=&Rekorde\r\n"
                    "GCheckRecordFile=Rekorde &pr\xFC"
                    "fen\r\nHWGLW=falsch\r\nHWORV=falsch\r\n");
  StartPack();
  const auto menu = MainMenu();
  EXPECT_THAT(menu, testing::IsSupersetOf({"&Datei", "  &Beenden (Alt+F4)", "Fahr&zeug",
                                           "  -&Sprache wechseln", "  &Rekorde",
                                           "  Rekorde &pr\xFC"
                                           "fen",
                                           "    &Gloamworks", "    &Orvane Interactive"}));
}

TEST_F(StartUpStory, AnEmptyLanguageFileIsFilledInTheOrderOfTheTables) {
  machine.files.Put(LanguageFile, "");
  StartPack();
  const std::string file = machine.files.Text(LanguageFile);
  EXPECT_EQ(file.find("OpenWavDlgTitle=Open .wav sound\r\n"
                      "OpenWavDlgFilter=Wave audio sound files\r\n"
                      "SaveTrackDlgTitle=Save Skidrun2 Track file\r\n"),
            0U);
  EXPECT_THAT(file,
              HasSubstr("SaveVehicleDlgTitle=Save Skidrun2 Vehicle file\r\n"
                        "XFile=&File\r\nFClose=&Close\r\nXVehicle=&Vehicle\r\nVNew=&New\r\n"));
  EXPECT_TRUE(file.ends_with("HCheckForUpdates=&Check for Updates\r\nHAbout=&About\r\n"));
  for (const std::string& line : Text::Split(file, "\r\n")) {
    EXPECT_THAT(LanguageTemplate(), HasSubstr(line));
  }
}

TEST_F(StartUpStory, TheSharedDialogsHaveTheirTitlesFiltersAndExtensions) {
  machine.files.Put(LanguageFile, "TrackFilter=SK2-Strecken\r\n");
  StartPack();
  const FileDialogs& dialogs = SharedDialogs();
  EXPECT_EQ(dialogs.OpenWav.title, "Open .wav sound");
  EXPECT_EQ(dialogs.OpenWav.filter, "Wave audio sound files (*.wav)|*.wav");
  EXPECT_EQ(dialogs.SaveTrack.title, "Save Skidrun2 Track file");
  EXPECT_EQ(dialogs.SaveTrack.filter, "SK2-Strecken (*.trk)|*.trk");
  EXPECT_EQ(dialogs.SaveTrack.defaultExtension, "trk");
  EXPECT_EQ(dialogs.OpenTrack.title, "Open Skidrun2 Track file");
  EXPECT_EQ(dialogs.OpenTrack.filter, "SK2-Strecken (*.trk)|*.trk");
  EXPECT_EQ(dialogs.OpenVehicle.title, "Open Skidrun2 Vehicle file");
  EXPECT_EQ(dialogs.OpenVehicle.filter, "SK2 Vehicle files (*.vhc)|*.vhc");
  EXPECT_EQ(dialogs.OpenVehicle.defaultExtension, "vhc");
  EXPECT_EQ(dialogs.SaveVehicle.title, "Save Skidrun2 Vehicle file");
  EXPECT_EQ(dialogs.SaveVehicle.defaultExtension, "vhc");
}

TEST_F(StartUpStory, ALeftOverUpdaterIsDeleted) {
  machine.files.Put("C:\\Program Files\\SK2Pack\\orvsk2packupdater.exe", "installer");
  StartPack();
  EXPECT_FALSE(machine.files.Exists("C:\\Program Files\\SK2Pack\\orvsk2packupdater.exe"));
}

TEST_F(StartUpStory, ALeftOverUpdaterThatStillRunsIsLeft) {
  machine.files.Put("C:\\Program Files\\SK2Pack\\orvsk2packupdater.exe", "installer");
  machine.files.Hold("C:\\Program Files\\SK2Pack\\orvsk2packupdater.exe");
  StartPack();
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_TRUE(user.Boxes().empty());
  machine.files.Release("C:\\Program Files\\SK2Pack\\orvsk2packupdater.exe");
}

TEST_F(StartUpStory, TheMutexIsHeldAndTheSoundDeviceIsOpen) {
  StartPack();
  EXPECT_THAT(machine.mutexes.Held(), ElementsAre("ORVSK2Pack"));
  EXPECT_TRUE(Platform::IsSoundDeviceOpen());
}

TEST_F(StartUpStory, WithoutASoundDeviceTheRestIsDone) {
  machine.sound.Unplug();
  StartPack();
  EXPECT_FALSE(Platform::IsSoundDeviceOpen());
  EXPECT_EQ(MainMenu().size(), 29U);
  EXPECT_TRUE(user.Boxes().empty());
}

TEST_F(StartUpStory, WhateverStepFailsTheWindowIsShownAndTheOthersAreDone) {
  int n = 0;
  for (;; ++n) {
    RunObjects::End();
    machine.files.Put("C:\\Program Files\\SK2Pack\\orvsk2packupdater.exe", "installer");
    machine.files.Put(LanguageFile, "XFile=&Datei\r\n");
    machine.FailAnyCall(Simulated::After{n});
    StartPack();
    const bool hasFailed = machine.FailureHappened();
    EXPECT_THAT(user.SeesWindow(), HasSubstr("Skidrun2 Utility Pack")) << machine.FailedCall();
    EXPECT_TRUE(user.Boxes().empty()) << machine.FailedCall();
    EXPECT_EQ(MainMenu().size(), 29U) << machine.FailedCall();
    if (!hasFailed) break;
  }
  EXPECT_GT(n,
            4);  // the updater, the mutex, the sound device and the language file took their turn
}

TEST_F(StartUpStory, CloseEndsTheProgram) {
  StartPack();
  user.ChoosesMenu({"File", "Close"});
  EXPECT_TRUE(Platform::HasProgramEnded());
}

TEST_F(StartUpStory, AltF4EndsTheProgram) {
  StartPack();
  user.Presses("Alt+F4");
  EXPECT_TRUE(Platform::HasProgramEnded());
}

TEST_F(StartUpStory, TheCloseBoxEndsTheProgram) {
  StartPack();
  user.ClosesWindow();
  EXPECT_TRUE(Platform::HasProgramEnded());
}

TEST_F(StartUpStory, EscapeDoesNotEndTheProgram) {
  StartPack();
  user.Presses("Escape");
  EXPECT_FALSE(Platform::HasProgramEnded());
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

}  // namespace
