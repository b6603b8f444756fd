// What the tests of the translated pack are made of.
//
// A scene is one thing that a user does, with all that they are shown for it, in a language in
// which every text of the tools is its key in angle brackets. The scenes of a tool stand in a file
// of their own, beside the tool's other tests.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/app/PackStory.h"

namespace Translated {

using Lines = std::vector<std::string>;

inline const std::string Game = "C:\\Games\\Skidrun2";

// What a scene has to do with, and a few steps that many scenes take.
class Player {
 public:
  explicit Player(Simulated::Machine& itsMachine) : machine(itsMachine), user(itsMachine.user) {}

  // Says what the window in use shows: its title and all controls, with the rows of the lists.
  void Looks() {
    std::string line = "window " + user.SeesWindow() + ":";
    const auto& controls = Platform::ActiveForm()->controls();
    for (size_t tabs = 0; tabs < controls.size(); ++tabs) {
      line += " [" + user.Hears();
      for (const Platform::Control* control : controls) {
        if (!control->HasFocus() || control->kind() != Platform::Control::Kind::ListBox) continue;
        const auto& list = static_cast<const Platform::ListBox&>(*control);
        for (int i = 0; i < list.count(); ++i) line += " / " + list.row(i);
      }
      line += "]";
      user.Presses("Tab");
    }
    shown.push_back(line);
  }

  // The boxes, file dialogs and input boxes that came since this was called last.
  void Collects() {
    const auto& boxes = user.Boxes();
    for (; boxes_ < boxes.size(); ++boxes_) {
      shown.push_back("box " + boxes[boxes_].title + ": " + boxes[boxes_].text);
    }
    const auto& dialogs = user.FileDialogs();
    for (; dialogs_ < dialogs.size(); ++dialogs_) {
      shown.push_back("dialog " + dialogs[dialogs_].title + ": " + dialogs[dialogs_].fileType);
    }
    const auto& modals = user.ModalWindows();
    for (; modals_ < modals.size(); ++modals_) {
      shown.push_back("question " + modals[modals_].title + ": " + modals[modals_].prompt);
    }
  }

  // Presses Tab until the control whose name begins so is heard.
  void GoesTo(const std::string& name) {
    for (int i = 0; i < 12 && !user.Hears().starts_with(name); ++i) user.Presses("Tab");
    EXPECT_THAT(user.Hears(), testing::StartsWith(name));
  }
  void Clicks(const std::string& button) {
    GoesTo(button);
    user.Presses("Enter");
  }

  // Chooses a file of these bytes in the dialog that a menu item opens.
  void Checks(const Lines& menu, const std::string& path, const std::string& bytes) {
    machine.files.Put(path, bytes);
    user.ChoosesFile(path);
    user.ChoosesMenu(menu);
    dialogs_ = user.FileDialogs().size();  // shown by a scene of its own
  }
  void ChecksVehicle(const std::string& bytes) {
    Checks({"<XVehicle>", "<VCheck>"}, Game + "\\vehicles\\a.vhc", bytes);
  }
  void ChecksTrack(const std::string& bytes) {
    Checks({"<XTrack>", "<TCheck>"}, Game + "\\tracks\\a.trk", bytes);
  }
  void ChecksRecords(const std::string& bytes) {
    machine.files.Put(Game + "\\highscore.cfg", bytes);
    user.ChoosesMenu({"<XGame>", "<GCheckRecordFile>"});
  }
  void NewTrack(const std::string& name) {
    user.ChoosesFile(name);
    user.ChoosesMenu({"<XTrack>", "<TNew>"});
    dialogs_ = user.FileDialogs().size();
  }

  void NewVehicle(const std::string& name) {
    user.ChoosesFile(name);
    user.ChoosesMenu({"<XVehicle>", "<VNew>"});
    dialogs_ = user.FileDialogs().size();
  }
  // Presses a key on a row of the vehicle editor, counted from 0.
  void OnRow(int row, const std::string& button) {
    GoesTo("<SelectItem>");
    user.Presses("Home");
    for (int i = 0; i < row; ++i) user.Presses("Down");
    Clicks(button);
  }

  Simulated::Machine& machine;
  Simulated::User& user;
  Lines shown;

 private:
  size_t boxes_ = 0;
  size_t dialogs_ = 0;
  size_t modals_ = 0;
};

struct Scene {
  const char* name;
  std::function<void(Player&)> play;
  Lines shows;
};

// The scenes, a function for each tool.
std::vector<Scene> MainWindowScenes();
std::vector<Scene> VehicleScenes();
std::vector<Scene> TrackScenes();
std::vector<Scene> PackagingScenes();
std::vector<Scene> RecordScenes();
std::vector<Scene> LanguageScenes();
std::vector<Scene> ServerScenes();
std::vector<Scene> AddressScenes();
std::vector<Scene> DownloadScenes();
std::vector<Scene> UpdateScenes();
std::vector<Scene> FailureScenes();

}  // namespace Translated
