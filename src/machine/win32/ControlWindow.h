// The native control of a Control, with the label before it.
#pragma once

#include <string>

#include "machine/win32/Display.h"
#include "machine/win32/System.h"
#include "ui/Controls.h"

namespace Platform {

class ControlWindow {
 public:
  // Posted to the parent: lists have rows that are not drawn yet.
  static constexpr UINT RowsWait = WM_APP;

  // Makes the label and the control, last in the order of the parent's children.
  //   id           IDOK and IDCANCEL are what Enter and Escape press.
  //   startsGroup  the arrow keys do not lead here from the control before.
  ControlWindow(HWND parent, Control& control, WORD id, bool startsGroup);

  Control& control() const { return control_; }
  HWND window() const { return window_; }

  void SetFont(const Display::Font& font);
  void Place(const Layout::Place& place) const;

  void ShowCaption() const;
  void ShowState();
  void ShowText() const;
  void SelectAll() const;
  // All rows anew, and which of them is selected. Fails when memory has run out; there are then
  // none of them, or some.
  void ShowRows(const Display::Font& font);
  // Rows that come and go one by one are drawn when the program has come to rest: the parent then
  // gets RowsWait. AddRow fails when memory has run out; the rows are then as they were.
  void AddRow(const std::string& row, const Display::Font& font);
  void RemoveRow(int index);
  void ShowSelection() const;
  void DrawRows();

  // What the user made of it.
  std::string Text() const;
  int SelectedRow() const;

  Layout::Item LayoutItem() const;

 private:
  void ShowRowWidth() const;
  void MakeRoom(int rows, size_t bytes);
  void PutOffDrawing();

  Control& control_;
  HWND label_ = nullptr;  // null for labels and buttons, which are their own
  HWND window_ = nullptr;
  int rowCount_ = 0;
  int rowRoom_ = 0;   // rows that the list has room for
  int rowWidth_ = 0;  // the widest row's
  bool isDrawing_ = true;
};

}  // namespace Platform
