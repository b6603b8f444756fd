// The game's configuration file is changed, whatever state it is in.
#include "game/Configuration.h"

#include "base/RuntimeError.h"
#include "tests/FailureSweep.h"
#include "tests/SimulatedGame.h"
#include "tests/Story.h"

namespace {

using Configuration::IfMissing;
using testing::IsEmpty;

const std::string Game = "C:\\Games\\Skidrun2";
const std::string File = Game + "\\Skidrun.cfg";
const std::string Before = "Language=English\r\n\r\nMultiplayer=1.2.3.4\r\n";
const std::string After = "Language=German\r\nMultiplayer=1.2.3.4\r\n";

class ConfigurationStory : public Story {
 protected:
  ConfigurationStory() { InstallGame(machine, Game); }
};

TEST_F(ConfigurationStory, ASettingIsChangedAndTheFileIsHidden) {
  for (const int attributes : {Simulated::NoAttributes + 0, Simulated::Hidden + 0,
                               Simulated::ReadOnly + Simulated::Hidden + Simulated::System}) {
    machine.files.Put(File, Before);
    machine.files.SetAttributes(File, attributes);
    Configuration::Save("Language", "German", IfMissing::Fail);
    EXPECT_EQ(machine.files.Text(File), After);
    EXPECT_EQ(machine.files.Attributes(File), Simulated::Hidden);
  }
}

TEST_F(ConfigurationStory, AMissingOrEmptyOneIsMadeForWhoWantsIt) {
  for (const bool isThere : {false, true}) {
    if (isThere) {
      machine.files.SetAttributes(File, Simulated::NoAttributes);
      machine.files.Put(File, "");
    }
    Configuration::Save("Language", "German", IfMissing::Make);
    EXPECT_EQ(machine.files.Text(File), "Language=German\r\n");
    EXPECT_EQ(machine.files.Attributes(File), Simulated::Hidden);
  }
}

TEST_F(ConfigurationStory, AMissingOrEmptyOneIsAFailureForWhoWantsThat) {
  for (const bool isThere : {false, true}) {
    if (isThere) machine.files.Put(File, "");
    try {
      Configuration::Save("Multiplayer", "5.6.7.8", IfMissing::Fail);
      ADD_FAILURE() << "it did not fail";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), RuntimeError::FileNotFound);
      EXPECT_EQ(error.file(), File);
    }
    EXPECT_EQ(machine.files.Exists(File), isThere);
  }
}

TEST_F(ConfigurationStory, OneThatCannotBeReadIsAFailureForBothAndNeverMadeAnew) {
  for (const IfMissing ifMissing : {IfMissing::Make, IfMissing::Fail}) {
    machine.files.Put(File, Before);
    machine.files.SetAttributes(File, Simulated::ReadOnly);
    machine.files.HoldAlone(File);
    EXPECT_THROW(Configuration::Save("Language", "German", ifMissing), RuntimeError);
    machine.files.Release(File);
    EXPECT_EQ(machine.files.Text(File), Before);
    EXPECT_EQ(machine.files.Attributes(File), Simulated::ReadOnly);
  }
}

TEST_F(ConfigurationStory, TheLanguageAndTheServerAreChangedBesideEachOther) {
  machine.files.Put(File, "language=x\r\nOldMultiplayer=1\r\n\r\nLanguage=English\r\n");
  Configuration::Save("Multiplayer", "5.6.7.8", IfMissing::Fail);
  const std::string kept = "language=x\r\nOldMultiplayer=1\r\nLanguage=";
  EXPECT_EQ(machine.files.Text(File), kept + "English\r\n") << "the name stands in another line";
  Configuration::Save("Language", "German", IfMissing::Make);
  EXPECT_EQ(machine.files.Text(File), kept + "German\r\n");
  EXPECT_EQ(machine.files.Attributes(File), Simulated::Hidden);
}

TEST(ConfigurationSweep, AnyFailureLeavesAMissingOneMissingOrWhole) {
  const auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After after) {
    InstallGame(machine, Game);
    machine.FailAnyCall(after);
    bool hasFailed = false;
    try {
      Configuration::Save("Language", "German", IfMissing::Make);
    } catch (const RuntimeError&) {
      hasFailed = true;
    }
    if (machine.files.Exists(File)) {
      EXPECT_EQ(machine.files.Text(File), "Language=German\r\n");
    }
    if (!hasFailed) {
      EXPECT_EQ(machine.files.Attributes(File), Simulated::Hidden);
    }
    EXPECT_EQ(machine.files.Names(Game).size(), machine.files.Exists(File) ? 4U : 3U);
  });
  EXPECT_GT(calls.size(), 3U) << "hardly a call was made to fail";
}

TEST(ConfigurationSweep, AnyFailureLeavesTheConfigurationAsItWas) {
  const int attributes = Simulated::ReadOnly + Simulated::Hidden;
  const auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After after) {
    InstallGame(machine, Game);
    machine.files.Put(File, Before);
    machine.files.SetAttributes(File, attributes);
    machine.FailAnyCall(after);
    bool hasFailed = false;
    try {
      Configuration::Save("Language", "German", IfMissing::Fail);
    } catch (const RuntimeError&) {
      hasFailed = true;
    }
    const std::string text = machine.files.Text(File);
    EXPECT_TRUE(text == After || (text == Before && hasFailed)) << text;
    if (text == Before) {
      EXPECT_EQ(machine.files.Attributes(File), attributes);
    }
    if (!hasFailed) {
      EXPECT_EQ(machine.files.Attributes(File), Simulated::Hidden);
    }
    EXPECT_EQ(machine.files.Names(Game).size(), 4U);
  });
  EXPECT_GT(calls.size(), 5U) << "hardly a call was made to fail";
}

}  // namespace
