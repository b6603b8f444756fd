// The user of the simulated machine. They work the program by keyboard and hear what a screen
// reader says; what they do when a box or a dialog comes is told to them before.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "machine/simulated/Keyboard.h"
#include "machine/simulated/Script.h"
#include "ui/Controls.h"
#include "ui/Forms.h"

namespace Simulated {

class User {
 public:
  // --- What the user will do when asked; each step is used once, in this order. ---

  // In the next file dialog. A bare name is one in the dialog's initial folder; a name without an
  // extension gets the dialog's. Where that would replace a file the dialog asks, in a box that is
  // answered as all others; on No it stays and takes the next of these steps.
  void ChoosesFile(const std::string& path) { script_.files.push_back(path); }
  void CancelsFileDialog() { script_.files.emplace_back(); }

  // At the next question box. Boxes with OK alone are always answered.
  void AnswersYes() { script_.answers.push_back(Platform::Answer::Yes); }
  void AnswersNo() { script_.answers.push_back(Platform::Answer::No); }

  // In the next input box, closed with Enter, or left with Escape.
  void TypesInBox(const std::string& text);
  void CancelsBox();

  // In the next modal window, box or file dialog with this title, which the action must close. A
  // box that comes before it is answered as if nothing had been told.
  void WhenWindowOpens(const std::string& title, std::function<void()> action);

  // In the next modal window, box or file dialog, whatever its title.
  void WhenAnythingOpens(std::function<void()> action);

  // Once the program waits for events in RunMessageLoop.
  void WhenProgramWaits(std::function<void()> action);

  // While the next long step runs, or the one that runs now: what is done then must begin nothing,
  // so that whatever the user tries is tried in vain.
  void DuringLongStep(std::function<void()> action);

  // --- What the user does now, in the window in use. ---

  // Presses a key, such as "Enter", "Alt+S", "Ctrl+Shift+N", "Down".
  void Presses(const std::string& key) { keyboard_.Press(key); }
  // Presses a key and holds it down; the keyboard repeats it; the user lets it go.
  void HoldsDown(const std::string& key) { keyboard_.HoldDown(key); }
  void KeyRepeats() { keyboard_.Repeat(); }
  void LetsGo() { keyboard_.LetGo(); }
  // Types a text into the focused control, key by key.
  void Types(const std::string& text) { keyboard_.Type(text); }
  void ClosesWindow();
  // Asks the window of that title to close, as the taskbar does, whatever stands over it.
  void ClosesFromTaskbar(const std::string& title);
  // Chooses an item of the menu bar by the captions on the way to it, without their "&". What
  // stands in parentheses at a caption's end may be left out.
  void ChoosesMenu(const std::vector<std::string>& captions);
  // Clicks a button by its caption without "&", or a row of a list.
  void Clicks(const std::string& text);
  void DoubleClicks(const std::string& row);
  // Does nothing for a while: the clock goes on, and timers tick.
  void Waits(int milliseconds);

  // --- What the user hears and sees. ---

  // What a screen reader says of the focused control, or of the menu item while a menu is open:
  //   "Address, edit, play.example, Alt+A"      name, role, contents, access key
  //   "Map, edit, read only, row 1"             a box to read and copy from
  //   "Servers, list, empty, Alt+S"
  //   "Tracks, list, hill, 1 of 3, Alt+T"       selected row, its place
  //   "Tracks, list, not selected, Alt+T"
  //   "OK, button"
  //   "Skidrun2 Utility Pack, window"           a window without controls
  //   "New (CTRL+N), menu item, N"              see MenuWalk::Heard
  std::string Hears() const;
  // What a screen reader says when a window opens: title, explaining texts, focused control.
  std::vector<std::string> HearsOnOpening() const;
  // The title of the window in use; empty if there is none.
  std::string SeesWindow() const;
  // The selected part of the focused text box.
  std::string SelectedText() const { return keyboard_.SelectedText(); }

  const std::vector<Box>& Boxes() const { return script_.boxes; }
  // The box shown last. There must have been one.
  Box LastBox() const;
  const std::vector<FileDialogSeen>& FileDialogs() const { return script_.fileDialogs; }
  FileDialogSeen LastFileDialog() const;
  const std::vector<ModalSeen>& ModalWindows() const { return script_.modalsSeen; }
  ModalSeen LastModalWindow() const;

  // --- For the machine. ---
  // Does the next of what was to be done in a long step. For the services that wait within one too.
  void ActsDuringLongStep();
  // What the keyboard repeats from now on reaches nothing, until the user lets go.
  void HeldKeyIsIgnored() { keyboard_.LetGo(); }
  Script& script() { return script_; }
  void ComplainAboutUnusedSteps() const { script_.ComplainAboutLeftovers(); }

 private:
  Script script_;
  Keyboard keyboard_;
};

}  // namespace Simulated
