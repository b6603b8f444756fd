// The clipboard that all programs share.
#pragma once

#include <windows.h>

#include <string>

namespace E2e {

// The text on it; empty if there is none.
std::wstring ClipboardText();

// Has it open as long as it lives: no other program can.
class HeldClipboard {
 public:
  // Throws std::runtime_error if it cannot be had.
  HeldClipboard();
  ~HeldClipboard();
  HeldClipboard(const HeldClipboard&) = delete;
  HeldClipboard& operator=(const HeldClipboard&) = delete;

  std::wstring text() const;
  // Leaves a text there in place of what there was.
  void SetText(const std::wstring& text);

 private:
  HWND owner_;
};

}  // namespace E2e
