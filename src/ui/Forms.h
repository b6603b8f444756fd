// Windows of the program.
//
// Exactly one window is on the stage: the main window, or the tool that was shown in its place.
// Show puts a window on the stage, and the one that was there leaves the screen only then, so that
// until the program ends one of its windows is always on the screen, holds the focus, and can own
// message boxes and dialogs. The stage remembers who opened a window: when it closes, its opener
// comes back, and no window need know by whom it was opened.
//
// Every event of the user runs through Dispatch. A handler that fails ends there, and the user is
// told.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/LangText.h"
#include "ui/Controls.h"
#include "ui/Keys.h"
#include "ui/Menu.h"

namespace Platform {

class FormView;

class Form {
 public:
  explicit Form(const LangText& title);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& title() const { return title_; }
  void SetTitle(const std::string& title);

  // Loads the window if it is not loaded, and puts it on the stage in place of the one there. The
  // focus is where it was when the window was last shown. A failure while loading is passed on; the
  // window is then not loaded and the stage as before. So is the failure to show it; it is then
  // loaded and hidden.
  void Show();

  // Gives up the stage: to the window that is shown before the running event ends, and that is then
  // opened by this one's opener; otherwise to the opener itself. Until then it stays on the screen
  // as the owner of boxes and dialogs. The window stays loaded and keeps its contents. Does nothing
  // if it is not on the stage.
  void Leave();
  // Shows the opener in its place at once. Otherwise as Leave.
  void GoBack();

  // Takes the window down: OnUnload runs, and the next Show loads it anew. On the stage, its opener
  // takes its place unless another is shown in OnUnload. Unloading the main window ends the
  // program.
  void Unload();

  // Shows the window over the one that is in use, and returns when EndModal or Unload is called.
  // Afterwards, and after a failure, it is not loaded.
  void ShowModal();
  void EndModal();

  bool IsLoaded() const { return view_ != nullptr; }
  bool IsVisible() const { return isVisible_; }

  // Loading: the title, captions and labels are looked up first. The focus is then on the first
  // control that takes it, unless the handler moves it.
  std::function<void()> OnLoad;
  std::function<void()> OnUnload;
  // The close box or Alt+F4. Without a handler the window is unloaded.
  std::function<void()> OnClose;
  // A key that is pressed in the window, before the focused control sees it. Keys with which a text
  // box edits (Ctrl+A, C, V, X, Z, arrows, Home, End, Delete...) stay with a focused text box.
  std::function<void(KeyEvent&)> OnKeyDown;

  // Looks up the captions of the menu, in the order in which the items were made.
  void TranslateMenu();

  const std::vector<Control*>& controls() const { return controls_; }
  const std::vector<MenuItem*>& menus() const { return menus_; }
  Control* focus() const { return focus_; }
  Button* defaultButton() const;
  Button* cancelButton() const;
  FormView* view() const { return view_.get(); }

  // For controls and menus, when an event of the user enters: takes over the rows that another
  // program has selected in the lists meanwhile without telling, and runs OnSelect of those lists.
  // False if the window has left the screen by that: the event has then lost its ground.
  bool TakeSelections();

  // For the view: what the user does in the window. KeyDown returns true if the key was used. A
  // window over which a modal one stands is not closed, whoever asks for it.
  bool KeyDown(KeyEvent key);
  void CloseRequested();
  void FocusArrived(Control& control);

 private:
  friend class Control;
  friend class MenuItem;
  friend struct Stage;

  void Load();
  void TakeDown();
  void ModalEnded();
  void MoveFocusOn();

  LangText titleText_;
  std::string title_;
  std::vector<Control*> controls_;
  std::vector<MenuItem*> menus_;      // those of the bar
  std::vector<MenuItem*> menuItems_;  // all, in the order in which they were made
  Control* focus_ = nullptr;
  bool isVisible_ = false;
  bool isModal_ = false;
  std::unique_ptr<FormView> view_;
};

// Runs what an event asks for. If it fails, whatever the exception, the user is told in a critical
// box, with the cause and the file. Afterwards, if the window on the stage has left and none was
// shown in its place, its opener is shown.
void Dispatch(const std::function<void()>& handler) noexcept;

// Tells the user of the exception that is being handled: for a catch (...) where the system calls
// the program outside of an event. Where memory does not even suffice for that, the cause is told
// in English and without the file.
void TellFailure() noexcept;

// Starts the program with its main window: loads and shows it. If it cannot be loaded, the user is
// told and the program ends.
void StartProgram(Form& main);
// The main window. There must be one. For the machine: a tool goes back to its opener instead.
Form& MainForm();
// Closes all windows at once and ends the message loop.
void EndProgram();
bool HasProgramEnded();

// The window in use: the modal one on top, otherwise the one on the stage; none before the start.
Form* ActiveForm();

// The access keys that two visible, enabled controls of a window, or two items of one menu, share:
// one line for each. A well-made window has none, in any language.
std::vector<std::string> SharedAccessKeys(const Form& form);

}  // namespace Platform
