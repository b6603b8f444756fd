// Stories that begin with the started pack and an installed game.
#pragma once

#include <string>

#include "app/Start.h"
#include "platform/Forms.h"
#include "tests/Story.h"

class PackStory : public Story {
 protected:
  static inline const std::string Game = "C:\\Games\\Skidrun2";
  static inline const std::string PackTitle = "Skidrun2 Utility Pack V1.0";

  PackStory() { machine.InstallGame(Game); }

  // Ends at the test's end: every way must lead back to a window of the pack, or out of it.
  ~PackStory() override {
    if (!Platform::HasProgramEnded() && Platform::ActiveForm()) {
      EXPECT_TRUE(Platform::ActiveForm()->IsVisible()) << "no window of the pack is on the screen";
    }
  }
};
