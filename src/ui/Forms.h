// Windows of the program.
//
// Exactly one window is on the stage: the main window, or the tool that was shown in its place.
// Show puts a window on the stage, and the one that was there leaves the screen only then, so that
// until the program ends one of its windows is always on the screen, holds the focus, and can own
// message boxes and dialogs. The stage remembers who opened a window: when it closes, its opener
// comes back, and no window need know by whom it was opened.
//
// All that is said here may be asked for at any moment: while a window loads or unloads, in every
// event, and while a box, a dialog or a modal window is open. What would take a window from under a
// box that it owns waits until the box has gone.
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
class Timer;

// How a window is framed, and what screen readers take it for by that.
struct Frame {
  // It can be made larger: for lists and pages, which show more then.
  bool isResizable = false;
  bool hasMinimizeBox = true;
  // A real dialog of the system. Screen readers announce it as one, and read the labels of dialogs
  // alone, so each window that asks, shows or says something is one. The main window, which has a
  // menu bar and nothing else, is none: there is nothing in it to be answered.
  bool isDialog = true;
};

class Form {
 public:
  explicit Form(const LangText& title, const Frame& frame = {});
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  // A title that changes is heard if the window has the focus itself, which it has if no control of
  // it takes the focus.
  const std::string& title() const { return title_; }
  void SetTitle(const std::string& title);
  const Frame& frame() const { return frame_; }

  // Loads the window if it is not loaded, and puts it on the stage in place of the one there. The
  // focus is where it was when the window was last shown. A failure while loading is passed on; the
  // window is then not loaded and the stage as before. So is the failure to show it; it is then
  // loaded and hidden.
  //
  // A window that leaves, goes back or unloads itself while it loads is not shown; another that it
  // shows meanwhile is, as if opened from it. While a box, a dialog or a modal window is open all
  // of this is put off until it has gone and the running event is over; a failure is then told to
  // the user.
  void Show();

  // Gives up the stage: to the window that is shown before the running event ends, and that is then
  // opened by this one's opener; otherwise to the opener itself. Until then it stays on the screen
  // as the owner of boxes and dialogs. The window stays loaded and keeps its contents. Does nothing
  // if it is not on the stage.
  void Leave();
  // Shows the opener in its place at once, or, if a box or a modal window stands over it, once that
  // has gone. Otherwise as Leave.
  void GoBack();

  // Takes the window down: OnUnload runs, and the next Show loads it anew. On the stage, its opener
  // takes its place unless another is shown in OnUnload; if a box or a modal window stands over it,
  // once that has gone. Unloading the main window ends the program.
  void Unload();

  // Shows the window over the one that is in use, and returns when it is ended: EndModal, Leave,
  // GoBack and Unload all do that, and run OnUnload. Afterwards, and after a failure, it is not
  // loaded. Does nothing if the window is on the screen already.
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
  const std::vector<Timer*>& timers() const { return timers_; }
  FormView* view() const { return view_.get(); }
  // Expires when the window is destroyed: for who must know after a handler has run.
  std::weak_ptr<const void> life() const { return life_; }

  // The gate: true if what the user does in the window may begin something. All that comes from the
  // view is asked here, and is otherwise as if it had not been done.
  bool TakesInput() const;
  // For controls and menus, when an event of the user enters: takes over the rows that another
  // program has selected in the lists meanwhile without telling, and runs OnSelect of those lists.
  // False if the window has left the screen by that: the event has then lost its ground.
  bool TakeSelections();

  // For the view: what the user does in the window. KeyDown returns true if the key was used: by
  // the handler's word, or because another window is in use now.
  bool KeyDown(KeyEvent key);
  void CloseRequested();
  void FocusArrived(Control& control);

 private:
  friend class Control;
  friend class MenuItem;
  friend class Stage;
  friend class Timer;

  bool Load();
  void TakeDown();
  bool RunOnUnload();
  void ModalEnded();
  void MoveFocusOn();

  LangText titleText_;
  Frame frame_;
  std::string title_;
  std::vector<Control*> controls_;
  std::vector<MenuItem*> menus_;      // those of the bar
  std::vector<MenuItem*> menuItems_;  // all, in the order in which they were made
  std::vector<Timer*> timers_;
  Control* focus_ = nullptr;
  bool isVisible_ = false;
  bool isModal_ = false;
  bool isArriving_ = false;   // OnLoad runs, and the window is to be shown after it
  bool isUnloading_ = false;  // OnUnload runs
  bool isEnding_ = false;     // it is modal, and EndModal was called
  std::unique_ptr<FormView> view_;
  std::shared_ptr<const void> life_;
};

// Runs what an event asks for. If it fails, whatever the exception, the user is told in a critical
// box, with the cause and the file. Afterwards what was put off is done, and if the window on the
// stage has left and none was shown in its place, its opener is shown; and the user is told of
// files that the event found half saved from an earlier run. The handler is a copy of its own, so
// that it may be the end of the window to which it belongs.
void Dispatch(std::function<void()> handler) noexcept;

// Tells the user of the exception that is being handled: for a catch (...) where the system calls
// the program outside of an event. Where memory does not even suffice for that, the cause is told
// in English and without the file.
void TellFailure() noexcept;

// Starts the program with its main window: loads and shows it. If it cannot be loaded, the user is
// told, and if no window is on the screen then, the program ends.
void StartProgram(Form& main);
// The main window. There must be one. For the machine: a tool goes back to its opener instead.
Form& MainForm();
// Closes all windows at once, without asking any of them, and ends the message loop.
void EndProgram();
bool HasProgramEnded();

// The window in use: the modal one on top, otherwise the one on the stage; none before the start.
Form* ActiveForm();

// The access keys that two visible, enabled controls of a window, or two items of one menu, share:
// one line for each. A well-made window has none, in any language.
std::vector<std::string> SharedAccessKeys(const Form& form);

}  // namespace Platform
