// The native window of a form.
//
// Windows are real dialogs, or, for the main window, of a class of our own; either has the focus
// itself while no control of it takes it. Whatever the user does may end with the window gone:
// after a call into the form, and after handling messages, nothing of this object is touched again
// unless it is found anew by its window's handle.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "machine/win32/ControlWindow.h"
#include "machine/win32/Display.h"
#include "machine/win32/MenuBar.h"
#include "machine/win32/System.h"
#include "ui/FormView.h"
#include "ui/Timer.h"

namespace Platform {

struct FormView::Native {
 public:
  explicit Native(Form& form);
  ~Native();
  Native(const Native&) = delete;
  Native& operator=(const Native&) = delete;

  // The one behind a window; null if it is none of ours, or is gone.
  static Native* Find(HWND window);

  HWND window() const { return window_; }
  // Tab, arrows, Enter and Escape are what they are in dialogs. In a window that has the focus
  // itself they have nowhere to lead; the system would hand the focus to a label.
  bool HasDialogKeys() const;
  ControlWindow& Of(const Control& control);
  const Display::Font& font() const { return *font_; }

  // The first time it opens over another window; null opens it in the middle of the screen.
  void Show(HWND over);
  void Hide();
  void RunModal(HWND owner);
  void EndModal();
  void ShowTitle();
  void ShowMenu();
  void MoveFocus();
  void ShowText(TextBox& box);
  // Lays the controls out again after one of them has changed. The window grows if it has to.
  void LayOutAgain();

  void StartTimer(Timer& timer);
  void StopTimer(Timer& timer);

  // A key went down in the window. True if the form used it.
  bool KeyDown(const MSG& message);

 private:
  static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam,
                                     LPARAM lParam) noexcept;
  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam,
                                     LPARAM lParam) noexcept;

  void MakeDialog();
  void MakeWindow();
  void MakeControls();
  // What both kinds of windows answer. The result if the message is settled.
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam);
  // The same; a failure is told to the user, and the message settled.
  std::optional<LRESULT> HandleSafely(UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  void Command(WPARAM wParam, LPARAM lParam);
  void TimeIsOver(UINT_PTR timerId);
  void RestoreFocus();
  void ChangeFont(UINT dpi);

  std::vector<Layout::Item> LayoutItems() const;
  Layout::Font LayoutFont() const;
  // Takes the least size from the controls and the title. Returns the size to open with.
  //   area  what can be used of the screen that the window is to stand on.
  Layout::Size Measure(const RECT& area);
  void OpenAtItsPlace(HWND over);
  // Makes the window at least as large as its least size.
  void Grow();
  // The window has come to a screen of another density.
  void MoveToScreen(UINT dpi, const RECT& suggested);
  void PlaceControls();

  Form& form_;
  HWND window_ = nullptr;
  std::unique_ptr<Display::Font> font_;
  std::vector<ControlWindow> controls_;
  std::unique_ptr<MenuBar> menuBar_;
  std::map<UINT_PTR, Timer*> timers_;  // those that run
  UINT_PTR lastTimerId_ = 0;
  Layout::Size leastSize_;
  bool isLaidOut_ = false;
  bool isGrowthPutOff_ = false;  // until it is restored
  bool isFocusMoved_ = true;  // the form has moved the focus, and the window has not followed yet
  bool isWritingText_ = false;
  bool isModalOver_ = false;
};

// The native window of a loaded form; null if it is not loaded.
HWND WindowOf(const Form& form);
// The window in use, which owns boxes and dialogs; null before there is one.
HWND ActiveWindow();

}  // namespace Platform
