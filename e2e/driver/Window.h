// A window or a control on the screen, read the way a screen reader reads it.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace E2e {

class Window {
 public:
  explicit Window(HWND handle) : handle_(handle) {}
  bool operator==(const Window&) const = default;

  HWND handle() const { return handle_; }
  int id() const { return GetDlgCtrlID(handle_); }
  DWORD processId() const;
  DWORD threadId() const { return GetWindowThreadProcessId(handle_, nullptr); }
  std::string className() const;
  bool IsClass(const char* name) const;
  // Its title, caption or contents. Empty if the window does not answer.
  std::string text() const;
  LONG_PTR style() const { return GetWindowLongPtrA(handle_, GWL_STYLE); }
  RECT rectangle() const;  // on the screen
  RECT clientSize() const;

  bool Exists() const { return IsWindow(handle_) != FALSE; }
  bool IsVisible() const { return IsWindowVisible(handle_) != FALSE; }
  bool IsEnabled() const { return IsWindowEnabled(handle_) != FALSE; }
  bool IsForeground() const { return GetForegroundWindow() == handle_; }

  // Sends a message; nothing if the window does not answer in time.
  std::optional<LRESULT> Ask(UINT message, WPARAM first = 0, LPARAM second = 0) const;

  // Its children, in the order of Tab and of a screen reader.
  std::vector<Window> children() const;
  // Its visible children of a class, in that order.
  std::vector<Window> controls(const char* className) const;
  // The child that a screen reader names so: a button by its caption, any other control by the
  // label before it; "&" is left out of either. Throws std::runtime_error if there is none.
  Window control(const std::string& name) const;
  // That name; empty if the control has none.
  std::string name() const;
  std::optional<Window> previousSibling() const;
  // Of a list: its rows from the top, and the selected one; empty if none is selected.
  std::vector<std::string> rows() const;
  std::string selectedRow() const;
  // The control with the focus in this window's thread.
  std::optional<Window> focus() const;

  // Waits until the keys that were pressed before have had their effect, its program waits for new
  // ones, and nothing in the window is left to be drawn; or until it is gone.
  void WaitUntilDrawn() const;
  // Clicks with the mouse in its middle.
  void Click() const;

 private:
  HWND handle_;
};

// The visible top-level windows of a process, the topmost first.
std::vector<Window> TopWindows(DWORD processId);

// A caption as it is seen: without the "&" of its access key.
std::string WithoutAccessKey(const std::string& caption);
// Its access key in upper case, 0 if it has none.
char AccessKey(const std::string& caption);

}  // namespace E2e
