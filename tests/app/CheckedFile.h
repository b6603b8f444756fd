// What the menu items that check a chosen file have in common when something is in their way.
#pragma once

#include <string>
#include <vector>

#include "app/Start.h"
#include "platform/Paths.h"
#include "tests/FailureSweep.h"
#include "tests/Matchers.h"
#include "tests/SimulatedGame.h"

namespace CheckedFile {

using Menu = std::vector<std::string>;  // captions, as User::ChoosesMenu takes them

inline const std::string MainTitle = "Skidrun2 Utility Pack V1.0";

// Without a game, nothing is asked and the cause is told.
inline void ExpectTheMissingGameToBeTold(const Menu& menu) {
  Simulated::Machine machine;
  StartPack();
  machine.user.ChoosesMenu(menu);
  EXPECT_THAT(machine.user.FileDialogs(), testing::IsEmpty());
  EXPECT_THAT(machine.user.Boxes(),
              testing::ElementsAre(Shows(Platform::Icon::Critical,
                                         testing::StartsWith("Skidrun2 was not found"), "Error")));
  EXPECT_EQ(machine.user.SeesWindow(), MainTitle);
}

// Whatever call fails first: the user is told one thing, the disk stays, the main window too.
//   path, bytes  a file that is checked without an error; it lies in the game's folder.
//   sounds       the files that it names.
inline void ExpectAnyFailureToEndInOneBox(const Menu& menu, const std::string& path,
                                          const std::string& bytes,
                                          const std::vector<std::string>& sounds = {}) {
  const auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After after) {
    InstallGame(machine, "C:\\Games\\Skidrun2");
    machine.files.Put(path, bytes);
    for (const std::string& sound : sounds) machine.files.Put(sound, "");
    StartPack();
    const auto names = machine.files.Names(Platform::FolderOf(path));
    machine.user.ChoosesFile(path);
    machine.FailAnyCall(after);
    machine.user.ChoosesMenu(menu);
    EXPECT_EQ(machine.user.Boxes().size(), 1U);
    EXPECT_EQ(machine.user.SeesWindow(), MainTitle);
    EXPECT_EQ(machine.files.Text(path), bytes);
    EXPECT_EQ(machine.files.Names(Platform::FolderOf(path)), names);
    // The dialog may not have been reached.
    machine.user.script().files.clear();
    if (!machine.FailureHappened()) {
      EXPECT_THAT(machine.user.LastBox(),
                  Shows(Platform::Icon::Information, testing::_, "File OK"));
    }
  });
  EXPECT_GT(calls.size(), 4U) << "hardly a call was made to fail";
}

// What the user tries while a file is checked is in vain: the verdict is all that comes.
inline void ExpectNothingToBeginMeanwhile(const Menu& menu, const std::string& path,
                                          const std::string& bytes) {
  Simulated::Machine machine;
  Simulated::User& user = machine.user;
  InstallGame(machine, "C:\\Games\\Skidrun2");
  machine.files.Put(path, bytes);
  StartPack();
  user.ChoosesFile(path);
  bool isTried = false;
  user.DuringLongStep([&] {
    user.Presses("Ctrl+N");
    user.ChoosesMenu(menu);
    user.ClosesWindow();
    user.Presses("Alt+F4");
    isTried = true;
  });
  user.ChoosesMenu(menu);
  user.script().files.clear();  // not every check asks for a file
  EXPECT_TRUE(isTried);
  EXPECT_EQ(user.Boxes().size(), 1U);
  EXPECT_EQ(user.LastBox().title, "File OK");
  EXPECT_EQ(user.SeesWindow(), MainTitle);
}

}  // namespace CheckedFile
