// Stories that begin with the started pack and an installed game.
#pragma once

#include <algorithm>
#include <string>

#include "app/LanguageTemplate.h"
#include "app/Start.h"
#include "platform/Executable.h"
#include "tests/SimulatedGame.h"
#include "tests/Story.h"
#include "tests/Texts.h"
#include "ui/Forms.h"

class PackStory : public Story {
 protected:
  static inline const std::string Game = "C:\\Games\\Skidrun2";
  static inline const std::string PackTitle = "Skidrun2 Utility Pack V1.0";

  PackStory() { InstallGame(machine, Game); }

  void StartPack() {
    hasStarted_ = true;
    ::StartPack();
  }

  // Ends at the test's end: every way must lead back to a window of the pack, or out of it.
  ~PackStory() override {
    if (!hasStarted_) return;
    ExpectAppendedTextsToBeListed();
    if (Platform::HasProgramEnded()) return;
    EXPECT_THAT(machine.screen.Titles(), testing::SizeIs(1)) << "not one window is on the screen";
    EXPECT_TRUE(Platform::ActiveForm() && Platform::ActiveForm()->IsVisible());
  }

 private:
  // What the program has written into the language file is what translators get.
  void ExpectAppendedTextsToBeListed() const {
    const auto listed = Texts::Split(LanguageTemplate(), "\r\n");
    const std::string file = Platform::PathBesideProgram(".lng");
    for (const std::string& line : Texts::Split(machine.files.Appended(file), "\r\n")) {
      EXPECT_TRUE(std::count(listed.begin(), listed.end(), line))
          << "not for translators: " << line;
    }
  }

  bool hasStarted_ = false;
};
