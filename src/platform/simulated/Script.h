// What the user of the simulated machine is going to do when the program asks, and what they were
// shown.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/FileDialog.h"
#include "platform/MsgBox.h"

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
  std::string filter;
  std::string defaultExtension;
  std::string initialFolder;
};

// A modal window that the user was shown.
struct ModalSeen {
  std::string title;
  std::string prompt;  // the name of its first text box, as for an input box; empty if it has none
};

// What the user does with a modal window.
struct ModalStep {
  std::string title;  // of the window that must open; empty for any
  std::function<void()> action;
};

struct Script {
  std::deque<Platform::Answer> answers;
  std::deque<std::string> files;  // empty for Cancel
  std::deque<ModalStep> modals;
  std::deque<std::function<void()>> idleSteps;

  std::vector<Box> boxes;
  std::vector<FileDialogSeen> fileDialogs;
  std::vector<ModalSeen> modalsSeen;

  // Complains about each step that never came.
  void ComplainAboutLeftovers() const;
};

}  // namespace Simulated
