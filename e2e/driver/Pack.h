// The running pack, as its user meets it: one window at a time, worked by the keyboard.
//
// Every window that is met is photographed once, and is held to the rules of Accessibility.h each
// time that it is in front and waited for; a broken rule is a failure of the running test.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "e2e/driver/Boxes.h"
#include "e2e/driver/FileDialogDriver.h"
#include "e2e/driver/Menu.h"
#include "e2e/driver/RunningProgram.h"
#include "e2e/driver/Window.h"

namespace E2e {

class Pack {
 public:
  // Starts the program and waits for its main window.
  explicit Pack(const std::string& programPath);
  // Takes over the one that another program starts.
  explicit Pack(const RunningProgram::StartedByOthers& other);

  RunningProgram& program() { return program_; }
  const RunningProgram& program() const { return program_; }

  // Waits until the main window is in front and takes input.
  Window WaitForMain();
  // The same for the tool window of that title.
  Window WaitForWindow(const std::string& title);
  // Waits for a message box and reads it.
  BoxText WaitForBox();
  // The same, and answers it with a key; waits until it is gone.
  BoxText AnswerBox(const std::string& key = "Enter");
  // Waits for the dialog for choosing a file.
  FileDialogDriver WaitForFileDialog();
  // Waits for that dialog and fills it in; waits until it is gone.
  void ChooseFile(const std::string& name);
  void CancelFileDialog();

  // Chooses an item of the main window's menu, which must be in front.
  void ChooseMenu(const std::vector<std::string>& path);

  // Presses keys in the window in front, which must be one of the pack's.
  void Press(const std::string& keys);
  // Presses Tab until the control of that name has the focus. Throws std::runtime_error if Tab
  // comes round without it.
  void TabTo(const std::string& name);
  // Types a text into the focused control, and waits until it is in there.
  void Type(const std::string& text);
  // Waits until the list that has the focus has that row selected.
  void WaitForRow(const std::string& row);
  // Presses keys that are to have no effect; returns when the pack has seen them.
  void PressInVain(const std::string& keys);

 private:
  bool IsInFront(const Window& window) const;
  Window WaitInFront(const std::string& what, const std::function<bool(const Window&)>& isIt);
  void Meet(const Window& window);
  // What the window breaks and was not told of before; not what it breaks for a moment while it
  // changes, for it goes on while it is looked at. None if it is in front no more.
  std::vector<std::string> LastinglyBroken(const Window& window) const;
  void WaitUntilGone(const Window& window);

  RunningProgram program_;
  std::set<std::string> met_;
  std::set<std::string> told_;  // what was found broken
};

// Saves a picture of a part of the screen, named after the running test and the given words.
void SavePictureOf(RECT rectangle, const std::string& words);

}  // namespace E2e
