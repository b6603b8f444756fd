// Stories of a user who builds tracks with the track editor.
#pragma once

#include <string>

#include "tests/app/PackStory.h"

class TrackEditorStory : public PackStory {
 protected:
  static inline const std::string Tracks = Game + "\\tracks";
  static inline const std::string EditorTitle = "SK2 Trackmaker by Orvane Interactive";
  static inline const std::string PartTitle = "New track part";

  TrackEditorStory() { StartPack(); }

  void StartsTrack(const std::string& name) {
    user.ChoosesFile(name);
    user.ChoosesMenu({"Track", "New"});
  }

  // Presses Tab until the control with this name is heard.
  void GoesTo(const std::string& name) {
    for (int i = 0; i < 10 && !user.Hears().starts_with(name); ++i) user.Presses("Tab");
    EXPECT_THAT(user.Hears(), testing::StartsWith(name));
  }

  void PressesTimes(const std::string& key, int times) {
    for (int i = 0; i < times; ++i) user.Presses(key);
  }

  // Fills in the dialog of a part, which must be open.
  void DescribesPart(int curve, int surface, const std::string& length) {
    GoesTo("Length:");
    user.Types(length);
    GoesTo("Surface:");
    PressesTimes("Down", surface);
    GoesTo("Curve:");
    PressesTimes("Down", curve);
  }

  // Adds a part from the editor's window, by keyboard.
  void AddsPart(int curve, int surface, const std::string& length) {
    user.Presses("Alt+P");
    DescribesPart(curve, surface, length);
    user.Presses("Enter");
  }

  void SavesSunnyTrack() {
    user.AnswersYes();
    user.Presses("Alt+S");
  }

  std::string TrackNamed(const std::string& name) const {
    return machine.files.Text(Tracks + "\\" + name);
  }
};
