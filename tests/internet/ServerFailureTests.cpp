// Server lists and configurations that cannot be read or written: nothing is lost or pretended.
#include <set>

#include "internet/IPManager.h"
#include "tests/FailureSweep.h"
#include "tests/PeakMemory.h"
#include "tests/RandomText.h"
#include "tests/internet/ServerStory.h"

namespace {

using Platform::Icon;
using testing::AnyOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string AccessError =
    "There was an error deleting the IP address because the IP list can't currently be accessed.";
const std::string OtherError =
    "There was an error deleting the IP address. The cause of this error is unknown.";
const std::string NotThere = "There was an error deleting the IP address because it doesn't exist.";

class ServerFailures : public ServerStory {
 protected:
  const std::string Before = "home=1\r\naway=2\r\n";

  // Opens the list and chooses its first server.
  void ChooseHome() {
    OpenListOn(Before);
    user.Presses("Down");
  }
  // The deletion was asked for and has failed; the file has kept everything.
  void ExpectNotDeleted(const std::string& text) {
    ASSERT_EQ(user.Boxes().size(), 2U);
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, text, "Error deleting IP"));
    EXPECT_EQ(Servers(), Before);
    EXPECT_THAT(Rows(), ElementsAre("home (1)", "away (2)"));
    ExpectNothingChosen();
  }
  // What was done in the window has failed unexpectedly; it is told once, with the file.
  void ExpectTold(const std::string& file, size_t boxes = 1) {
    ASSERT_EQ(user.Boxes().size(), boxes);
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr(file), "Error"));
    EXPECT_EQ(user.LastBox().owner, Title);
    EXPECT_EQ(user.SeesWindow(), Title);
  }
};

// --- Reading ---

TEST_F(ServerFailures, AListThatCannotBeReadIsAnEmptyOneAndNothingIsTold) {
  PutServers(Before);
  machine.files.HoldAlone(ListPath);
  OpenList();
  EXPECT_EQ(user.Hears(), "IP List:, list, empty");
  EXPECT_THAT(user.Boxes(), IsEmpty());
}

TEST_F(ServerFailures, AFolderInThePlaceOfTheListIsAnEmptyOne) {
  machine.files.PutFolder(ListPath);
  OpenList();
  EXPECT_EQ(user.Hears(), "IP List:, list, empty");
  EXPECT_THAT(user.Boxes(), IsEmpty());
}

TEST_F(ServerFailures, AListOfMoreThanAMegabyteIsNotUsedAndNotChanged) {
  std::string large = Before;
  while (large.size() <= (1U << 20)) large += "server" + std::to_string(large.size()) + "=3\r\n";
  OpenListOn(large);
  EXPECT_EQ(user.Hears(), "IP List:, list, empty");
  TypesAddress("1");
  Deletes();
  EXPECT_EQ(user.LastBox().text, NotThere);
  EXPECT_EQ(Servers(), large);
  user.AnswersYes();
  user.Presses("Alt+C");
  EXPECT_EQ(Servers(), "") << "it can be cleared";
}

TEST_F(ServerFailures, TheLargestListIsUsedWhole) {
  std::string large = Before;
  while (large.size() + 8 <= (1U << 20)) large += "a=" + std::to_string(large.size() % 7) + "\r\n";
  OpenListOn(large);
  EXPECT_GT(Rows().size(), 100000U);
  user.Presses("End");
  EXPECT_THAT(user.Hears(), HasSubstr(", 1 of "));
}

TEST_F(ServerFailures, AListOfAnySizeTakesLittleMemory) {
  machine.files.Put(ListPath, std::string(64U << 20, 'x'));
  const auto peak = PeakMemory::Of([&] {
    OpenList();
    EXPECT_FALSE(IPManager::IPExists("x"));
    EXPECT_EQ(IPManager::DeleteIPEntry("x"), IPManager::NotInList);
  });
  if (!peak) GTEST_SKIP() << "the kernel does not tell";
  EXPECT_LT(*peak, 16U << 20);
}

TEST_F(ServerFailures, AListOfAnyBytesIsShownAndCanBeWorked) {
  RandomText random(1600);
  for (int round = 0; round < 60; ++round) {
    std::string bytes;
    for (size_t count = random.Below(200); count > 0; --count) {
      bytes += random.OneIn(4) ? random.OneOf({"=", "\r\n", "(", ")", "\n"})
                               : std::string(1, static_cast<char>(random.Below(256)));
    }
    OpenListOn(bytes);
    EXPECT_EQ(Servers(), bytes);
    user.Presses("Down");
    Deletes();
    user.Presses("Escape");
  }
}

TEST_F(ServerFailures, ALineOfAnyLengthIsOneServer) {
  const std::string name(300000, 'n');
  OpenListOn(name + "=1\r\naway=2\r\n");
  user.Presses("Down");
  EXPECT_EQ(HearsAddress(), "IP:, edit, 1");
  Deletes();
  EXPECT_EQ(Servers(), "away=2\r\n");
}

// --- Adding ---

TEST_F(ServerFailures, AServerThatCannotBeAddedIsToldAndNotCalledAdded) {
  OpenListOn(Before);
  machine.files.SetAttributes(ListPath, Simulated::ReadOnly);
  TypesAddress("3");
  user.TypesInBox("zoo");
  user.Presses("Alt+A");
  ExpectTold(ListPath);
  EXPECT_EQ(Servers(), Before);
  EXPECT_EQ(HearsAddress(), "IP:, edit, 3") << "it need not be typed again";
  machine.files.SetAttributes(ListPath, Simulated::NoAttributes);
  user.TypesInBox("zoo");
  user.Presses("Alt+A");
  EXPECT_EQ(Servers(), Before + "zoo=3\r\n");
}

TEST_F(ServerFailures, AFullDiskKeepsTheListAsItWas) {
  OpenListOn(Before);
  TypesAddress("3");
  user.TypesInBox("zoo");
  machine.files.FailWrites({0}, RuntimeError::DiskFull);
  user.Presses("Alt+A");
  ExpectTold(ListPath);
  EXPECT_EQ(Servers(), Before);
}

TEST_F(ServerFailures, AProgramFolderThatRefusesFilesIsTold) {
  OpenList();
  machine.files.RefuseNewFiles(machine.executable.folder);
  TypesAddress("3");
  user.TypesInBox("zoo");
  user.Presses("Alt+A");
  ExpectTold(ListPath);
  EXPECT_FALSE(machine.files.Exists(ListPath));
}

// --- Deleting ---

TEST_F(ServerFailures, AWriteProtectedListCannotBeAccessed) {
  ChooseHome();
  machine.files.SetAttributes(ListPath, Simulated::ReadOnly);
  Deletes();
  ExpectNotDeleted(AccessError);
}

TEST_F(ServerFailures, AListOnAFullDiskCannotBeAccessed) {
  ChooseHome();
  machine.files.FailWrites({0}, RuntimeError::DiskFull);
  Deletes();
  ExpectNotDeleted(AccessError);
}

TEST_F(ServerFailures, ADiskThatIsNotReadyCannotBeAccessed) {
  ChooseHome();
  machine.files.FailWrites({0}, RuntimeError::DiskNotReady);
  Deletes();
  ExpectNotDeleted(AccessError);
}

TEST_F(ServerFailures, ADeviceThatFailsIsAnUnknownError) {
  ChooseHome();
  machine.files.FailWrites({0}, RuntimeError::DeviceError);
  Deletes();
  ExpectNotDeleted(OtherError);
}

TEST_F(ServerFailures, AListThatAnotherProgramHoldsIsAnUnknownError) {
  ChooseHome();
  machine.files.Hold(ListPath);
  Deletes();
  ExpectNotDeleted(OtherError);
}

TEST_F(ServerFailures, AListThatCannotBeReadAnyMoreHasNoAddress) {
  ChooseHome();
  machine.files.HoldAlone(ListPath);
  Deletes();
  machine.files.Release(ListPath);
  ExpectNotDeleted(NotThere);
}

TEST_F(ServerFailures, AListThatIsGoneHasNoAddress) {
  ChooseHome();
  machine.files.Delete(ListPath);
  Deletes();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, NotThere));
  EXPECT_FALSE(machine.files.Exists(ListPath));
}

TEST_F(ServerFailures, AListThatVanishesWhileItIsRewrittenCannotBeAccessed) {
  std::set<int> results;
  for (int calls = 0; calls < 60 && !results.contains(IPManager::Deleted); ++calls) {
    PutServers(Before);
    machine.faults.RefuseFileCallsFrom(Simulated::After{calls},
                                       Platform::SystemError::FileNotFound);
    results.insert(IPManager::DeleteIPEntry("1"));
    machine.faults = {};
    EXPECT_THAT(Servers(), AnyOf(Before, "away=2\r\n"));
  }
  EXPECT_THAT(results, testing::IsSupersetOf({int{IPManager::Deleted}, int{IPManager::NotInList},
                                              int{IPManager::ListNotAccessible}}));
}

// --- Clearing ---

TEST_F(ServerFailures, AListThatCannotBeClearedIsToldAndKept) {
  ChooseHome();
  machine.files.SetAttributes(ListPath, Simulated::ReadOnly);
  user.AnswersYes();
  user.Presses("Alt+C");
  ExpectTold(ListPath, 2);
  EXPECT_EQ(Servers(), Before);
  EXPECT_EQ(HearsAddress(), "IP:, edit, 1");
}

// --- Selecting ---

TEST_F(ServerFailures, WithoutAConfigurationNoServerIsSelectedAndNoneIsMade) {
  ChooseHome();
  user.Presses("Enter");
  ExpectTold(Configuration);
  EXPECT_FALSE(machine.files.Exists(Configuration));
  EXPECT_EQ(HearsAddress(), "IP:, edit, 1");
}

TEST_F(ServerFailures, AnEmptyConfigurationIsToldAndStaysEmpty) {
  machine.files.Put(Configuration, "");
  ChooseHome();
  user.Presses("Enter");
  ExpectTold(Configuration);
  EXPECT_EQ(machine.files.Text(Configuration), "");
  EXPECT_EQ(machine.files.Attributes(Configuration), Simulated::NoAttributes);
}

TEST_F(ServerFailures, AConfigurationThatCannotBeReadIsToldAndStaysAsItIs) {
  machine.files.Put(Configuration, "Multiplayer=1.2.3.4\r\n");
  machine.files.SetAttributes(Configuration, Simulated::ReadOnly);
  machine.files.HoldAlone(Configuration);
  ChooseHome();
  user.Presses("Enter");
  ExpectTold(Configuration);
  EXPECT_EQ(machine.files.Text(Configuration), "Multiplayer=1.2.3.4\r\n");
  EXPECT_EQ(machine.files.Attributes(Configuration), Simulated::ReadOnly);
  machine.files.Release(Configuration);
  user.Presses("Enter");
  EXPECT_EQ(machine.files.Text(Configuration), "Multiplayer=1\r\n");
  ExpectMainWindow();
}

TEST_F(ServerFailures, WithoutTheGameNoServerIsSelected) {
  ChooseHome();
  machine.registry = {};
  user.Presses("Enter");
  ExpectTold("Skidrun2 was not found");
}

// --- Sweeps ---

// Each story ends in a window that can be used; afterwards files are as the story says.
using Sweep = std::function<void(Simulated::Machine&)>;

class ServerSweep : public testing::Test {
 protected:
  static inline const std::string Game = "C:\\Games\\Skidrun2";
  static inline const std::string ListPath = "C:\\Program Files\\SK2Pack\\iplist.dat";
  static inline const std::string Configuration = Game + "\\Skidrun.cfg";
  static inline const std::string List = "home=1\r\naway=2\r\n";
  static inline const std::string Settings = "Multiplayer=9\r\n\r\nVolume=5\r\n";

  // Lets each call fail in turn while the user, who has chosen the first server, acts.
  static void ForEachFailure(const Sweep& acts, size_t atLeast) {
    const auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After after) {
      InstallGame(machine, Game);
      machine.files.Put(ListPath, List);
      machine.files.Put(Configuration, Settings);
      machine.files.SetAttributes(Configuration, Simulated::Hidden);
      StartPack();
      machine.user.ChoosesMenu({"Internet", "Select Server"});
      machine.user.Presses("Down");
      const auto names = machine.files.Names(machine.executable.folder);
      machine.FailAnyCall(after);
      acts(machine);
      EXPECT_TRUE(Platform::ActiveForm() && Platform::ActiveForm()->IsVisible());
      EXPECT_EQ(machine.files.Names(machine.executable.folder), names);
      EXPECT_EQ(machine.files.Names(Game).size(), 4U);
    });
    EXPECT_GE(calls.size(), atLeast) << "hardly a call was made to fail";
  }
  static std::string LastText(const Simulated::User& user) {
    return user.Boxes().empty() ? "" : user.LastBox().text;
  }
};

TEST_F(ServerSweep, OpeningShowsTheListOrAnEmptyOne) {
  const auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After after) {
    InstallGame(machine, Game);
    machine.files.Put(ListPath, List);
    StartPack();
    machine.FailAnyCall(after);
    machine.user.ChoosesMenu({"Internet", "Select Server"});
    EXPECT_EQ(machine.files.Text(ListPath), List);
    if (machine.user.SeesWindow() == "Select Server") {
      const bool isWhole = machine.user.Hears() == "IP List:, list, not selected";
      if (!isWhole) {
        EXPECT_EQ(machine.user.Hears(), "IP List:, list, empty");
      }
      EXPECT_TRUE(isWhole || machine.FailureHappened());
    } else {
      EXPECT_EQ(machine.user.Boxes().size(), 1U) << "a window that cannot be shown is told";
    }
  });
  EXPECT_GE(calls.size(), 3U);
}

TEST_F(ServerSweep, AddingIsDoneOrNot) {
  ForEachFailure(
      [](auto& machine) {
        machine.user.Presses("Tab");
        machine.user.Presses("End");
        machine.user.Types("0");
        machine.user.TypesInBox("zoo");
        machine.user.Presses("Alt+A");
        const std::string list = machine.files.Text(ListPath);
        EXPECT_THAT(list, AnyOf(List, List + "zoo=10\r\n"));
        for (const auto& box : machine.user.Boxes()) {
          if (box.text == "IP address added to list.") {
            EXPECT_EQ(list, List + "zoo=10\r\n");
          }
        }
        if (list == List) {
          EXPECT_EQ(machine.user.LastBox().icon, Icon::Critical);
          // The input box that could not be shown has left its answer.
          if (machine.user.ModalWindows().empty()) machine.user.script().modals.clear();
        }
      },
      3);
}

TEST_F(ServerSweep, ADeletionIsDoneOrTold) {
  ForEachFailure(
      [](auto& machine) {
        machine.user.AnswersYes();
        machine.user.Presses("Alt+D");
        const std::string list = machine.files.Text(ListPath);
        if (machine.user.Boxes().size() == 1U) {
          EXPECT_EQ(list, "away=2\r\n");
        } else {
          EXPECT_EQ(list, List);
          EXPECT_THAT(LastText(machine.user), AnyOf(NotThere, AccessError, OtherError));
        }
        EXPECT_EQ(machine.user.Hears(), "IP List:, list, not selected");
      },
      3);
}

TEST_F(ServerSweep, ClearingIsDoneOrTold) {
  ForEachFailure(
      [](auto& machine) {
        machine.user.AnswersYes();
        machine.user.Presses("Alt+C");
        const std::string list = machine.files.Text(ListPath);
        EXPECT_EQ(list, machine.user.Boxes().size() == 1U ? "" : List);
      },
      2);
}

TEST_F(ServerSweep, SelectingIsDoneOrToldAndTheConfigurationIsWhole) {
  ForEachFailure(
      [](auto& machine) {
        machine.user.Presses("Enter");
        const std::string text = machine.files.Text(Configuration);
        const bool isTold = LastText(machine.user).starts_with("IP address 1 will now be used");
        EXPECT_THAT(text, AnyOf(Settings, "Multiplayer=1\r\nVolume=5\r\n"));
        EXPECT_EQ(machine.files.Attributes(Configuration), Simulated::Hidden);
        if (isTold) {
          EXPECT_NE(text, Settings);
        }
        EXPECT_EQ(machine.files.Text(ListPath), List);
      },
      5);
}

}  // namespace
