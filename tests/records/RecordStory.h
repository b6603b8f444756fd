// The ground of stories about the game's records: an installed game and the running pack.
#pragma once

#include <string>
#include <string_view>

#include "tests/app/PackStory.h"

class RecordStory : public PackStory {
 protected:
  static inline const std::string RecordPath = Game + "\\highscore.cfg";

  RecordStory() { StartPack(); }

  void PutRecords(std::string_view bytes) { machine.files.Put(RecordPath, bytes); }
  std::string Records() const { return machine.files.Text(RecordPath); }

  void OpenViewer() { user.ChoosesMenu({"Game", "Record Viewer"}); }

  // What the user hears of the viewer's list and, one Tab further, of the time. Ends on the list.
  std::string HearsTracks() {
    const auto& controls = Platform::ActiveForm()->controls();
    for (size_t i = 0; i < controls.size() && !controls.front()->HasFocus(); ++i) {
      user.Presses("Shift+Tab");
    }
    return user.Hears();
  }
  std::string HearsTime() {
    HearsTracks();
    user.Presses("Tab");
    const std::string heard = user.Hears();
    user.Presses("Shift+Tab");
    return heard;
  }

  void ExpectMainWindow() const {
    EXPECT_EQ(Platform::ActiveForm(), &Platform::MainForm());
    EXPECT_TRUE(Platform::MainForm().IsVisible());
  }
};
