// A loaded window on the screen. Each machine makes its own of it: native windows, or a picture of
// them in memory. It mirrors the form and its controls and tells them what the user does, by the
// functions that they keep "for the view". Only Forms, Stage, Controls, Menu
// and Timer use it.
#pragma once

#include <memory>

#include "ui/Controls.h"

namespace Platform {

class Form;
class Timer;

class FormView {
 public:
  // Makes the window, not yet shown, with its menu and with the controls as they are, in the order
  // in which they were made: that is the order of Tab and of the screen reader.
  explicit FormView(Form& form);
  ~FormView();

  // Shows the window, active and with the focus on the form's focused control; a window without
  // controls has the focus itself. The first time it opens over another window, on the screen of
  // that one; null if there is none. Fails when memory has run out.
  void Show(FormView* over);
  void Hide();

  // Shows the window over its owner, which takes no input meanwhile, and handles events until
  // EndModal, or until the window is gone. If it fails, the owner takes input again.
  void RunModal(FormView* owner);
  void EndModal();

  // What changed in the form.
  void TitleChanged();
  void MenuChanged();
  void FocusChanged();
  void CaptionChanged(Control& control);
  void StateChanged(Control& control);  // enabled, visible
  void TextChanged(TextBox& box);
  void AllSelected(TextBox& box);
  // All rows are others, and the selection with them. Fails when memory has run out; the view then
  // has none of the rows, or some.
  void RowsSet(ListBox& list);
  // The last row is new. Fails when memory has run out; the view is then as it was.
  void RowAdded(ListBox& list);
  // A row is gone. Which one is selected now is told by SelectionChanged.
  void RowRemoved(ListBox& list, int index);
  void SelectionChanged(ListBox& list);

  // The row that is selected on the screen; -1 if there is none. Another program, such as a screen
  // reader, may have selected it without a word to this one.
  int SelectedRow(const ListBox& list) const;

  // Lets the timer's time begin, and tells it each time that it is over: Timer::Tick, if it may
  // tick then, otherwise as soon as it may. Starting fails with DeviceError if there is no room for
  // another timer. No tick comes from a timer that was stopped, however long it was over.
  void StartTimer(Timer& timer);
  void StopTimer(Timer& timer);

  struct Native;
  Native& native() const { return *native_; }

 private:
  std::unique_ptr<Native> native_;
};

// Handles events until EndMessageLoop.
void RunMessageLoop();
void EndMessageLoop();

}  // namespace Platform
