// The screen, its density, and the user's font for windows.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "machine/win32/System.h"
#include "ui/Layout.h"

namespace Platform::Display {

// The density of the screen that a window stands on, in dots per inch.
UINT DpiOf(HWND window);

// The font that the user has chosen for messages and dialogs, at a density.
LOGFONTW MessageFont(UINT dpi);

// A font in use: its measures, and the handle that controls draw with.
class Font {
 public:
  // Fails with DeviceError if the system has no room for another font.
  explicit Font(UINT dpi);
  ~Font();
  Font(const Font&) = delete;
  Font& operator=(const Font&) = delete;

  HFONT handle() const { return handle_.get(); }
  Layout::Units units() const { return units_; }
  // The size of a text in the system code page, broken into lines of at most that width. "&" counts
  // as a character like others.
  Layout::Size Measure(const std::string& text, int width) const;
  // The width of a text that is shown in one line.
  int Width(const std::string& text) const;

 private:
  struct FontDeleter {
    using pointer = HFONT;
    void operator()(HFONT font) const { DeleteObject(font); }
  };
  struct ContextDeleter {
    using pointer = HDC;
    void operator()(HDC context) const { DeleteDC(context); }
  };

  // The characters that stand alone in every code page.
  static constexpr char FirstPlain = ' ';
  static constexpr char LastPlain = '~';

  std::unique_ptr<HFONT, FontDeleter> handle_;
  std::unique_ptr<HDC, ContextDeleter> context_;
  HGDIOBJ previous_ = nullptr;
  Layout::Units units_{};
  std::array<int, LastPlain - FirstPlain + 1> plainWidths_{};
};

// The part of a window's screen that no taskbar covers.
RECT WorkArea(HWND window);

// A size with the frame and the menu that the window has. One line of menu is counted.
SIZE WithFrame(HWND window, Layout::Size client);

// Leaves it to us, not to the system, to lay out a dialog again on a screen of another density.
void KeepLayoutOurs(HWND dialog);

}  // namespace Platform::Display
