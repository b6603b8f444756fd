// What the user of the simulated machine is going to do when the program asks, and what they were
// shown.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/FileDialog.h"
#include "ui/MsgBox.h"

namespace Simulated {

// A message box that the user was shown.
struct Box {
  std::string text;
  std::string title;
  Platform::Icon icon;
  Platform::Buttons buttons;
  std::string owner;  // the title of the window behind it; empty if there was none
};

// A file dialog that the user was shown.
struct FileDialogSeen {
  Platform::FileDialog::Kind kind = Platform::FileDialog::Kind::Open;
  std::string title;
  std::string fileType;
  std::string pattern;
  std::string defaultExtension;
  std::string initialFolder;
};

// A modal window that the user was shown.
struct ModalSeen {
  std::string title;
  std::string prompt;  // the name of its first text box, as for an input box; empty if it has none
};

// What the user does with a modal window, a box or a file dialog.
struct ModalStep {
  std::string title;  // of the window, box or dialog that must open; empty for any modal window
  bool isForAnything = false;  // for whatever opens next, boxes included
  std::function<void()> action = nullptr;
};

struct Script {
  std::deque<Platform::Answer> answers;
  std::deque<std::string> files;  // empty for Cancel
  std::deque<ModalStep> modals;
  std::deque<std::function<void()>> idleSteps;
  std::deque<std::function<void()>> longSteps;  // what is tried while a long step runs

  std::vector<Box> boxes;
  std::vector<FileDialogSeen> fileDialogs;
  std::vector<ModalSeen> modalsSeen;

  // The action for a modal window, or for a box or dialog, that has just opened; nothing if the
  // next step is not meant for it.
  std::optional<std::function<void()>> TakeModalStep(const std::string& title);
  std::optional<std::function<void()>> TakeBoxStep(const std::string& title);

  // Complains about each step that never came.
  void ComplainAboutLeftovers() const;
};

}  // namespace Simulated
