#include <gmock/gmock.h>

#include <algorithm>

#include "app/LanguageTemplate.h"
#include "app/Program.h"
#include "game/FileDialogs.h"
#include "platform/Sound.h"
#include "tests/FailureSweep.h"
#include "tests/Texts.h"
#include "tests/app/PackStory.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const std::string LanguageFile = "C:\\Program Files\\SK2Pack\\sk2pack.lng";
const std::string SettingsFile = "C:\\Program Files\\SK2Pack\\sk2pack.cfg";
const std::string Updater = "C:\\Program Files\\SK2Pack\\orvsk2packupdater.exe";

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
              ElementsAre("&File", "  &Close (Alt+F4)",                                          //
                          "&Vehicle", "  &New (CTRL+N)", "  &Check .vhc file (CTRL+C)",          //
                          "  &Package (CTRL+P)",                                                 //
                          "&Track", "  &New (CTRL+N)", "  &Random Track",                        //
                          "  &Check .trk file (CTRL+C)", "  &Package (CTRL+P)",                  //
                          "&Language", "  &Change current language",                             //
                          "&Internet", "  &Select Server", "  Personal &IP Viewer",              //
                          "  &Package Downloader",                                               //
                          "&Game", "  &Record Viewer", "  &Check Record File",                   //
                          "&Options", "  Automatically update on startup",                       //
                          "&Help", "  View &Documentation", "  &Visit Websites",                 //
                          "    &Gloamworks", "    &Orvane Interactive", "  &Check for Updates",  //
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
                                           "  &Sprache wechseln", "  &Rekorde",
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
}

TEST_F(StartUpStory, TheSharedDialogsHaveTheirTitlesFiltersAndExtensions) {
  machine.files.Put(LanguageFile, "TrackFilter=SK2-Strecken\r\n");
  StartPack();
  const FileDialogs& dialogs = SharedDialogs();
  EXPECT_EQ(dialogs.OpenWav.title, "Open .wav sound");
  EXPECT_EQ(dialogs.OpenWav.fileType, "Wave audio sound files (*.wav)");
  EXPECT_EQ(dialogs.OpenWav.pattern, "*.wav");
  EXPECT_EQ(dialogs.OpenWav.defaultExtension, "");
  EXPECT_EQ(dialogs.SaveTrack.title, "Save Skidrun2 Track file");
  EXPECT_EQ(dialogs.SaveTrack.fileType, "SK2-Strecken (*.trk)");
  EXPECT_EQ(dialogs.SaveTrack.pattern, "*.trk");
  EXPECT_EQ(dialogs.SaveTrack.defaultExtension, "");
  EXPECT_EQ(dialogs.OpenTrack.title, "Open Skidrun2 Track file");
  EXPECT_EQ(dialogs.OpenTrack.fileType, "SK2-Strecken (*.trk)");
  EXPECT_EQ(dialogs.OpenTrack.defaultExtension, "");
  EXPECT_EQ(dialogs.OpenVehicle.title, "Open Skidrun2 Vehicle file");
  EXPECT_EQ(dialogs.OpenVehicle.fileType, "SK2 Vehicle files (*.vhc)");
  EXPECT_EQ(dialogs.OpenVehicle.pattern, "*.vhc");
  EXPECT_EQ(dialogs.OpenVehicle.defaultExtension, "vhc");
  EXPECT_EQ(dialogs.SaveVehicle.title, "Save Skidrun2 Vehicle file");
  EXPECT_EQ(dialogs.SaveVehicle.fileType, "SK2 Vehicle files (*.vhc)");
  EXPECT_EQ(dialogs.SaveVehicle.defaultExtension, "vhc");
}

TEST_F(StartUpStory, ALeftOverUpdaterIsDeleted) {
  machine.files.Put(Updater, "installer");
  StartPack();
  EXPECT_FALSE(machine.files.Exists(Updater));
}

// The installer starts the new version, and then ends.
TEST_F(StartUpStory, ALeftOverUpdaterThatIsJustEndingIsDeleted) {
  machine.files.Put(Updater, "installer");
  machine.files.Hold(Updater);
  machine.files.ReleaseAfterWaits(Updater, 3);
  StartPack();
  EXPECT_FALSE(machine.files.Exists(Updater));
}

TEST_F(StartUpStory, ALeftOverUpdaterThatStillRunsIsLeft) {
  machine.files.Put(Updater, "installer");
  machine.files.Hold(Updater);
  StartPack();
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_TRUE(user.Boxes().empty());
  machine.files.Release(Updater);
}

TEST_F(StartUpStory, TheMutexIsHeldAndTheSoundDeviceIsOpen) {
  StartPack();
  EXPECT_THAT(machine.mutexes.Held(), ElementsAre("ORVSK2Pack"));
  EXPECT_TRUE(Platform::IsSoundDeviceOpen());
}

TEST_F(StartUpStory, ASecondCopyStartsLikeTheFirst) {
  machine.mutexes.HoldInAnotherProgram("ORVSK2Pack");
  StartPack();
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_EQ(MainMenu().size(), 29U);
  EXPECT_TRUE(user.Boxes().empty());
  EXPECT_THAT(machine.mutexes.Held(), ElementsAre("ORVSK2Pack"));
}

// Everything that a start-up does, done in vain or not, is one of these lines.
std::vector<std::string> ThingsDone(const Simulated::Machine& machine) {
  std::vector<std::string> things = MainMenu();
  const FileDialogs& dialogs = SharedDialogs();
  for (const auto* dialog : {&dialogs.OpenWav, &dialogs.SaveTrack, &dialogs.OpenTrack,
                             &dialogs.OpenVehicle, &dialogs.SaveVehicle}) {
    things.push_back(dialog->title);
    things.push_back(dialog->fileType);
  }
  things.push_back(machine.user.SeesWindow());
  things.push_back(machine.files.Exists(Updater) ? "updater left" : "updater deleted");
  things.push_back(machine.mutexes.Held().empty() ? "no mutex" : machine.mutexes.Held().front());
  things.push_back(machine.sound.IsOpen() ? "sound" : "no sound");
  return things;
}

// A translation of every text, so that one that is not looked up is seen.
std::string TranslatedTexts() {
  std::string file;
  for (const LangText& text : AllTexts()) {
    if (text.key) file += std::string(text.key) + "=" + text.english + " [X]\r\n";
  }
  return file;
}

void StartTranslatedPack(Simulated::Machine& machine) {
  machine.files.Put(Updater, "installer");
  machine.files.Put(LanguageFile, TranslatedTexts());
  StartPack();
  EXPECT_EQ(machine.user.Boxes().empty(), !Platform::HasProgramEnded());
}

// What a start-up that nothing troubles does.
std::vector<std::string> AllThingsDone() {
  Simulated::Machine machine;
  StartTranslatedPack(machine);
  return ThingsDone(machine);
}

// The lines that stand in place of others.
std::vector<std::string> Difference(const std::vector<std::string>& things,
                                    const std::vector<std::string>& all) {
  EXPECT_EQ(things.size(), all.size());
  std::vector<std::string> different;
  for (size_t i = 0; i < std::min(things.size(), all.size()); ++i) {
    if (things[i] != all[i]) different.push_back(things[i]);
  }
  return different;
}

TEST(StartUp, DoesAllThatItIsThereFor) {
  const auto all = AllThingsDone();
  EXPECT_THAT(all, testing::IsSupersetOf(
                       {"updater deleted", "Skidrun2 Utility Pack V1.0", "ORVSK2Pack", "sound"}));
  const auto isTranslated = [](const std::string& line) { return Texts::Contains(line, " [X]"); };
  // 27 of the menu's 29 captions, and title and filter of five dialogs.
  EXPECT_EQ(std::count_if(all.begin(), all.end(), isTranslated), 27 + 10);
}

TEST(StartUp, WithoutASoundDeviceDoesTheRest) {
  const auto all = AllThingsDone();
  Simulated::Machine machine;
  machine.sound.Unplug();
  StartTranslatedPack(machine);
  EXPECT_THAT(Difference(ThingsDone(machine), all), ElementsAre("no sound"));
}

TEST(StartUp, WhateverStepFailsDoesTheOthersInTheirOrder) {
  const auto all = AllThingsDone();
  auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After after) {
    machine.FailAnyCall(after);
    StartTranslatedPack(machine);
    const std::string call = machine.FailedCall();
    if (call.starts_with("FormView::FormView") || call.starts_with("FormView::Show")) {
      EXPECT_TRUE(Platform::HasProgramEnded()) << "it could not even be closed";
      EXPECT_THAT(machine.user.LastBox(),
                  Shows(Platform::Icon::Critical, HasSubstr("The device reported an error.")));
      return;
    }
    std::vector<std::string> missed;
    // A left-over updater that cannot be deleted is tried again, and so is not missed.
    if (call.starts_with("ReadProgramVersion")) missed = {"Skidrun2 Utility Pack Alpha0"};
    if (call.starts_with("HoldNamedMutex")) missed = {"no mutex"};
    if (call.starts_with("OpenSoundDevice")) missed = {"no sound"};
    // Nothing but the text that was just looked up.
    const bool isOfReading = call.ends_with(LanguageFile) && !call.starts_with("GetInfo ");
    if (isOfReading) missed = {"Open .wav sound"};
    EXPECT_EQ(Difference(ThingsDone(machine), all), missed);
  });
  // The looks for saves that were cut off are no step of the start, and the many looks at the
  // language file are one.
  std::erase_if(calls, [](const std::string& call) {
    return call.find(Simulated::Disk::TemporaryFolder) != std::string::npos;
  });
  calls.erase(std::unique(calls.begin(), calls.end()), calls.end());
  EXPECT_THAT(calls,
              ElementsAre("FormView::FormView Skidrun2 Utility Pack", "Delete " + Updater,
                          "Open " + SettingsFile, "ReadProgramVersion", "HoldNamedMutex ORVSK2Pack",
                          "OpenSoundDevice", "GetInfo " + LanguageFile, "Open " + LanguageFile,
                          "Size " + LanguageFile, "Read " + LanguageFile, "GetInfo " + LanguageFile,
                          "FormView::MenuChanged Skidrun2 Utility Pack V1.0",
                          "FormView::Show Skidrun2 Utility Pack V1.0"));
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
