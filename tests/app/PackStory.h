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

  // Ends at the test's end: every way must lead back to a window of the pack, and out of it.
  ~PackStory() override {
    if (!hasStarted_) return;
    ExpectAppendedTextsToBeListed();
    if (Platform::HasProgramEnded()) return;
    EXPECT_THAT(machine.screen.Titles(), testing::SizeIs(1)) << "not one window is on the screen";
    EXPECT_TRUE(Platform::ActiveForm() && Platform::ActiveForm()->IsVisible());
    ClosePack();
  }

 private:
  // Closes what is open, window by window: the main one comes at last, and with it the pack ends.
  void ClosePack() {
    constexpr int MostWindows = 5;
    for (int i = 0; i < MostWindows && !Platform::HasProgramEnded(); ++i) {
      user.ClosesWindow();
    }
    EXPECT_TRUE(Platform::HasProgramEnded()) << "the pack stays open: " << user.SeesWindow();
    EXPECT_THAT(machine.screen.Titles(), testing::IsEmpty());
  }

  // What the program has written into the language file is what translators get.
  void ExpectAppendedTextsToBeListed() const {
    // All of them: of two keys that differ in letter case alone the template has the first.
    std::vector<std::string> listed{""};
    for (const LangText& text : AllTexts()) {
      if (text.key) listed.push_back(std::string(text.key) + "=" + text.english);
    }
    const std::string file = Platform::PathBesideProgram(".lng");
    for (const std::string& line : Texts::Split(machine.files.Appended(file), "\r\n")) {
      EXPECT_TRUE(std::count(listed.begin(), listed.end(), line))
          << "not for translators: " << line;
    }
  }

  bool hasStarted_ = false;
};
