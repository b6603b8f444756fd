// The check for updates, what comes of it, and the update itself.
#include "tests/FailureSweep.h"
#include "tests/update/UpdateStory.h"
#include "update/Updater.h"

namespace {

using Platform::Icon;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST_F(UpdateStory, ANewerVersionIsOfferedAsVersion1) {
  Publish("1.2.0");
  StartPack();
  user.AnswersNo();
  Checks();
  EXPECT_THAT(user.Boxes(), ElementsAre(Shows(Icon::Question,
                                              "An update is currently available for Skidrun2 "
                                              "Utility Pack.\r\n"
                                              "Current Version: 1.1.5\r\n"
                                              "Version available: 1\r\n"
                                              "Would you like to update now?",
                                              "Update")));
  EXPECT_EQ(user.LastBox().buttons, Platform::Buttons::YesNo);
  EXPECT_THAT(machine.launches.All(), IsEmpty());
  EXPECT_FALSE(machine.files.Exists(UpdaterFile));
  EXPECT_EQ(user.SeesWindow(), Title);
}

TEST_F(UpdateStory, YesFetchesTheInstallerStartsItAndEndsThePack) {
  Publish("2");
  machine.files.Put(UpdaterFile, "an old one");
  StartPack();
  machine.files.Put(UpdaterFile, "an old one");
  user.AnswersYes();
  Checks();
  ASSERT_THAT(machine.launches.All(), SizeIs(1));
  EXPECT_EQ(machine.launches.All()[0].path, UpdaterFile);
  EXPECT_EQ(machine.launches.All()[0].arguments, "/SP- /SILENT /SUPPRESSMSGBOXES /NOCANCEL");
  EXPECT_EQ(machine.launches.All()[0].bytes, "MZ installer");
  EXPECT_TRUE(Platform::HasProgramEnded());
  EXPECT_THAT(user.Boxes(), SizeIs(1));
  EXPECT_THAT(machine.web.Downloads(),
              ElementsAre(AddressPage, Records, Records, Installer, Installer));
  for (const char* name : {"read.tmp", "ueft.tmp", "version.tmp"}) {
    EXPECT_FALSE(machine.files.Exists(Pack + name)) << name;
  }
}

TEST_F(UpdateStory, EveryOutcomeIsTold) {
  struct Outcome {
    std::string records;
    Icon icon;
    std::string text;
    std::string title;
  };
  const std::string latest = "You are currently running the latest version of this product.";
  StartPack();
  for (const Outcome& outcome : {
           Outcome{"sk2up=1.1.5\r\n", Icon::Information, latest, "Information"},
           Outcome{"sk2up=1\r\n", Icon::Information, latest, "Information"},
           Outcome{"sk2up=2.1\r\n", Icon::Critical,
                   "Current version information could not be checked because the latest version "
                   "specified for this product in the version records file is an invalid version "
                   "format.",
                   "Error"},
           Outcome{"other=1.1.5\r\n", Icon::Critical,
                   "Current version information cannot be checked as there is currently no version "
                   "data available for this product.",
                   "Error"},
           Outcome{"sk2up=1.1.5\r\n\r\n", Icon::Critical,
                   "Current version information cannot be checked as the version data file format "
                   "is invalid.",
                   "Error"},
       }) {
    machine.web.Serve(Records, outcome.records);
    Checks();
    EXPECT_THAT(user.LastBox(), Shows(outcome.icon, outcome.text, outcome.title));
    EXPECT_EQ(user.SeesWindow(), Title);
  }
  EXPECT_THAT(user.Boxes(), SizeIs(5));
}

const std::string NoFile =
    "Current version information cannot be checked as there is currently no version data "
    "available. This will affect all software that uses the update check engine.";

TEST_F(UpdateStory, WithoutTheRecordsThereIsNoVersionFile) {
  StartPack();
  Checks();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, NoFile, "Error"));
  machine.web.AnswerOnce(Records, {0, "sk2up=2"});
  machine.web.AnswerOnce(Records, {0, {}});
  Checks();
  EXPECT_THAT(user.Boxes(), SizeIs(2)) << "there when probed, gone when fetched";
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, NoFile, "Error"));
}

TEST_F(UpdateStory, AnAddressPageThatIsNotUnderstoodCountsAsNoVersionFile) {
  machine.web.Serve(AddressPage, "sold");
  StartPack();
  Checks();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, NoFile, "Error"));
}

TEST_F(UpdateStory, WithoutConnectionTheUserIsTold) {
  machine.web.GoOffline();
  StartPack();
  Checks();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical,
                                    "Current version information could not be checked because you "
                                    "are not connected to the internet.",
                                    "Error"));
}

TEST_F(UpdateStory, AVersionBeyondAllMeasureIsAFailure) {
  Publish("99999999999.0.0");
  StartPack();
  Checks();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "The number is too large.", "Error"));
}

TEST_F(UpdateStory, AResultOfTheDownloadAloneDecidesNothing) {
  Publish("2");
  machine.web.AnswerOnce(Installer, {0, "MZ probed"});
  machine.web.AnswerOnce(Installer, {1, "MZ installer"});
  StartPack();
  user.AnswersYes();
  Checks();
  EXPECT_THAT(machine.launches.All(), SizeIs(1));
}

TEST_F(UpdateStory, AnInstallerThatIsNotThereIsTold) {
  Publish("2");
  machine.web.TakeAway(Installer);
  StartPack();
  user.AnswersYes();
  Checks();
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Critical,
                    "There was an error updating Skidrun2 Utility Pack. The specified file does "
                    "not exist on the internet.",
                    "Error"));
  EXPECT_EQ(user.SeesWindow(), Title);
}

TEST_F(UpdateStory, AnOldInstallerIsNeverStarted) {
  Publish("2");
  StartPack();
  machine.files.Put(UpdaterFile, "old");
  machine.web.AnswerOnce(Installer, {0, "MZ probed"});
  machine.web.AnswerOnce(Installer, {0, {}});
  user.AnswersYes();
  Checks();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical,
                                    "The file was not found.\r\nFile: " + UpdaterFile +
                                        "\r\nStarting a program: system error 2",
                                    "Error"));
  EXPECT_THAT(machine.launches.All(), IsEmpty());
  EXPECT_EQ(user.SeesWindow(), Title);
}

TEST_F(UpdateStory, AnOldInstallerThatStillRunsKeepsTheNewOneAway) {
  Publish("2");
  StartPack();
  machine.files.Put(UpdaterFile, "old");
  machine.files.Hold(UpdaterFile);
  user.AnswersYes();
  Checks();
  EXPECT_EQ(user.LastBox().icon, Icon::Critical);
  EXPECT_THAT(user.LastBox().text, testing::HasSubstr(UpdaterFile));
  EXPECT_THAT(machine.launches.All(), IsEmpty());
  machine.files.Release(UpdaterFile);
}

TEST_F(UpdateStory, AnOldInstallerThatCannotBeDeletedIsNotStartedEither) {
  Publish("2");
  StartPack();
  machine.files.Put(UpdaterFile, "MZ old");
  machine.files.SetAttributes(UpdaterFile, Simulated::ReadOnly);
  user.AnswersYes();
  Checks();
  EXPECT_EQ(user.LastBox().icon, Icon::Critical);
  EXPECT_THAT(machine.launches.All(), IsEmpty());
  EXPECT_EQ(user.SeesWindow(), Title);
}

TEST_F(UpdateStory, WithoutSwitchesTheInstallerIsStartedByItself) {
  StartPack();
  Updater::RunUpdater(Installer, "C:\\Program Files\\SK2Pack", false);
  ASSERT_THAT(machine.launches.All(), SizeIs(1));
  EXPECT_EQ(machine.launches.All()[0].arguments, "");
}

TEST_F(UpdateStory, NothingBeginsWhileTheServerIsAsked) {
  Publish("1.1.5");
  StartPack();
  for (int i = 0; i < 3; ++i) {
    user.DuringLongStep([this] {
      user.Presses("Ctrl+N");
      user.ClosesWindow();
    });
  }
  Checks();
  EXPECT_THAT(user.Boxes(), SizeIs(1));
  EXPECT_EQ(user.SeesWindow(), Title);
}

TEST(UpdateSweep, WhateverFailsThePackStaysOrTheNewInstallerRuns) {
  const std::string server = "http://www.orvane.example/orvane/software/";
  const auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After after) {
    machine.web.Serve("http://address.orvane.example/", "...........1.2.3.4");
    machine.web.Serve(server + "versions.dat", "sk2up=2");
    machine.web.Serve(server + "sk2up.exe", "MZ installer");
    StartPack();
    machine.FailAnyCall(after);
    machine.user.WhenAnythingOpens([&] { machine.user.Presses("Enter"); });
    machine.user.ChoosesMenu({"Help", "Check for Updates"});
    const bool hasEnded = Platform::HasProgramEnded();
    EXPECT_EQ(machine.launches.All().size(), hasEnded ? 1U : 0U);
    EXPECT_TRUE(hasEnded || !machine.user.Boxes().empty());
    EXPECT_EQ(machine.screen.Titles().size(), hasEnded ? 0U : 1U);
  });
  EXPECT_GT(calls.size(), 5U);
}

}  // namespace
