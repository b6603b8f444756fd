#include "machine/win32/ControlWindow.h"

#include <algorithm>
#include <array>
#include <new>

#include "base/RuntimeErrorTexts.h"
#include "machine/win32/Failure.h"
#include "machine/win32/UserInput.h"
#include "ui/Forms.h"

namespace Platform {

namespace {

constexpr WORD NoId = 0xFFFF;

struct Class {
  const char* name;
  DWORD style;
  DWORD exStyle;
};

Class ClassOf(const Control& control) {
  switch (control.kind()) {
    case Control::Kind::Label: return {"STATIC", SS_LEFT, 0};
    case Control::Kind::TextBox: {
      const auto& box = static_cast<const TextBox&>(control);
      DWORD style = WS_TABSTOP;
      style |= box.IsMultiline() ? ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL : ES_AUTOHSCROLL;
      if (box.IsReadOnly()) style |= ES_READONLY;
      return {"EDIT", style, WS_EX_CLIENTEDGE};
    }
    case Control::Kind::ListBox:
      return {"LISTBOX", WS_TABSTOP | WS_VSCROLL | WS_HSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
              WS_EX_CLIENTEDGE};
    case Control::Kind::Button: {
      const bool isDefault = static_cast<const Button&>(control).IsDefault();
      return {"BUTTON", WS_TABSTOP | (isDefault ? DWORD{BS_DEFPUSHBUTTON} : DWORD{BS_PUSHBUTTON}),
              0};
    }
  }
  return {};
}

HWND MakeChild(HWND parent, const Class& type, DWORD style, WORD id) {
  const HWND window = CreateWindowExA(
      type.exStyle, type.name, "", WS_CHILD | type.style | style, 0, 0, 0, 0, parent,
      reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), GetModuleHandleA(nullptr), nullptr);
  if (!window) FailAt(RuntimeErrorTexts.MakingWindow);
  return window;
}

// Shows a caption with its access key, or, where it has none, the bare text: then "&" is a
// character like others, and readers find the text as it is meant.
void SetStaticText(HWND window, const std::string& caption) {
  const bool isBare = AccessKey(caption) == 0;
  const LONG_PTR style = GetWindowLongPtrA(window, GWL_STYLE);
  SetWindowLongPtrA(window, GWL_STYLE,
                    isBare ? style | SS_NOPREFIX : style & ~LONG_PTR{SS_NOPREFIX});
  SetWindowTextA(window, (isBare ? WithoutAccessKey(caption) : caption).c_str());
  InvalidateRect(window, nullptr, TRUE);
}

bool IsPage(const Control& control) {
  return control.kind() == Control::Kind::TextBox &&
         static_cast<const TextBox&>(control).IsMultiline();
}

constexpr WPARAM CtrlA = 1;

// The system's own procedure of a kind of control.
WNDPROC& SystemProc(Control::Kind kind) {
  static std::array<WNDPROC, 4> procs{};
  return procs.at(static_cast<size_t>(kind));
}

LRESULT CALLBACK ControlProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  Control& control = *reinterpret_cast<Control*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  const WNDPROC proc = SystemProc(control.kind());
  if (IsHeldBack(message, wParam)) return 0;
  switch (message) {
    case WM_SETFOCUS: {
      const LRESULT result = CallWindowProcA(proc, window, message, wParam, lParam);
      control.form().FocusArrived(control);
      return result;
    }
    case WM_GETDLGCODE: {
      // By itself a text box of many lines would take Enter, Escape and Tab, and would select
      // everything on each visit, so that its reader never starts at the first line.
      const LRESULT code = CallWindowProcA(proc, window, message, wParam, lParam);
      return IsPage(control) ? code & ~(DLGC_WANTALLKEYS | DLGC_WANTTAB | DLGC_HASSETSEL) : code;
    }
    case WM_CHAR:
      // A text box of many lines need not select everything by itself.
      if (control.kind() == Control::Kind::TextBox && wParam == CtrlA) {
        SendMessageA(window, EM_SETSEL, 0, -1);
        return 0;
      }
      break;
    default: break;
  }
  return CallWindowProcA(proc, window, message, wParam, lParam);
}

// Puts our procedure before the system's. Not by SetWindowSubclass: with that, each row added to a
// list takes fifty times as long under Wine.
void Subclass(HWND window, Control& control) {
  SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&control));
  SystemProc(control.kind()) = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ControlProc)));
}

}  // namespace

ControlWindow::ControlWindow(HWND parent, Control& control, WORD id, bool startsGroup)
    : control_(control) {
  const DWORD group = startsGroup ? WS_GROUP : 0;
  const bool hasLabel =
      control.kind() == Control::Kind::TextBox || control.kind() == Control::Kind::ListBox;
  if (hasLabel) label_ = MakeChild(parent, {"STATIC", SS_LEFT, 0}, group, NoId);
  window_ = MakeChild(parent, ClassOf(control), group,
                      control.kind() == Control::Kind::Label ? NoId : id);
  if (control.kind() != Control::Kind::Label) {
    Subclass(window_, control);
  }
  // Everything that fits into memory fits into a text box.
  if (control.kind() == Control::Kind::TextBox) SendMessageA(window_, EM_SETLIMITTEXT, 0, 0);
  ShowCaption();
  ShowState();
}

void ControlWindow::SetFont(const Display::Font& font) {
  for (const HWND window : {label_, window_}) {
    if (window) SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(font.handle()), TRUE);
  }
  if (control_.kind() != Control::Kind::ListBox) return;
  const auto& list = static_cast<const ListBox&>(control_);
  rowWidth_ = 0;
  for (int i = 0; i < list.count(); ++i) rowWidth_ = std::max(rowWidth_, font.Width(list.row(i)));
  ShowRowWidth();
}

void ControlWindow::Place(const Layout::Place& place) const {
  const auto move = [](HWND window, const Layout::Rect& rect) {
    SetWindowPos(window, nullptr, rect.x, rect.y, rect.width, rect.height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    InvalidateRect(window, nullptr, TRUE);
  };
  if (label_) move(label_, place.label);
  move(window_, place.control);
}

void ControlWindow::ShowCaption() const {
  if (label_) return SetStaticText(label_, control_.caption());
  if (control_.kind() == Control::Kind::Label) return SetStaticText(window_, control_.caption());
  SetWindowTextA(window_, control_.caption().c_str());
}

void ControlWindow::ShowState() {
  DrawRows();  // a list that does not draw looks hidden to the system, and would be shown by that
  for (const HWND window : {label_, window_}) {
    if (!window) continue;
    EnableWindow(window, control_.IsEnabled());
    ShowWindow(window, control_.IsVisible() ? SW_SHOWNA : SW_HIDE);
  }
}

void ControlWindow::ShowText() const {
  SetWindowTextA(window_, static_cast<const TextBox&>(control_).text().c_str());
}

void ControlWindow::SelectAll() const {
  SendMessageA(window_, EM_SETSEL, 0, -1);
}

void ControlWindow::ShowRows(const Display::Font& font) {
  const auto& list = static_cast<const ListBox&>(control_);
  PutOffDrawing();
  SendMessageA(window_, LB_RESETCONTENT, 0, 0);
  rowCount_ = rowRoom_ = rowWidth_ = 0;
  size_t bytes = 0;
  for (int i = 0; i < list.count(); ++i) bytes += list.row(i).size() + 1;
  MakeRoom(list.count(), bytes);
  for (int i = 0; i < list.count(); ++i) AddRow(list.row(i), font);
  ShowSelection();
  ShowRowWidth();
  DrawRows();
}

void ControlWindow::AddRow(const std::string& row, const Display::Font& font) {
  PutOffDrawing();
  const int width = font.Width(row);
  constexpr int LeastRoom = 256;
  if (rowCount_ == rowRoom_) MakeRoom(std::max(LeastRoom, rowCount_), 0);
  if (SendMessageA(window_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row.c_str())) < 0) {
    throw std::bad_alloc();
  }
  ++rowCount_;
  if (width > rowWidth_) {
    rowWidth_ = width;
    if (isDrawing_) ShowRowWidth();
  }
}

void ControlWindow::RemoveRow(int index) {
  PutOffDrawing();
  SendMessageA(window_, LB_DELETESTRING, static_cast<WPARAM>(index), 0);
  --rowCount_;
}

// By itself the list would grow in small steps, and be copied at each of them.
void ControlWindow::MakeRoom(int rows, size_t bytes) {
  SendMessageA(window_, LB_INITSTORAGE, static_cast<WPARAM>(rows), static_cast<LPARAM>(bytes));
  rowRoom_ += rows;
}

// A list that draws itself at every row takes minutes for as many as a long track has. A hidden one
// draws nothing, and would be shown when it is told to draw again.
void ControlWindow::PutOffDrawing() {
  if (!isDrawing_ || !control_.IsVisible()) return;
  if (!PostMessageA(GetParent(window_), RowsWait, 0, 0)) return;
  SendMessageA(window_, WM_SETREDRAW, FALSE, 0);
  isDrawing_ = false;
}

void ControlWindow::DrawRows() {
  if (isDrawing_) return;
  isDrawing_ = true;
  SendMessageA(window_, WM_SETREDRAW, TRUE, 0);
  ShowRowWidth();
  InvalidateRect(window_, nullptr, TRUE);
}

void ControlWindow::ShowRowWidth() const {
  // A little air, lest the last letter touch the frame.
  const int width = rowWidth_ > 0 ? rowWidth_ + GetSystemMetrics(SM_CXEDGE) * 2 : 0;
  SendMessageA(window_, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(width), 0);
}

void ControlWindow::ShowSelection() const {
  const int selected = static_cast<const ListBox&>(control_).selected();
  SendMessageA(window_, LB_SETCURSEL, static_cast<WPARAM>(selected), 0);
}

std::string ControlWindow::Text() const {
  std::string text(static_cast<size_t>(GetWindowTextLengthA(window_)), '\0');
  // The length is an upper bound in code pages of two bytes a character.
  const int length = GetWindowTextA(window_, text.data(), static_cast<int>(text.size() + 1));
  text.resize(static_cast<size_t>(length));
  return text;
}

int ControlWindow::SelectedRow() const {
  return static_cast<int>(SendMessageA(window_, LB_GETCURSEL, 0, 0));
}

Layout::Item ControlWindow::LayoutItem() const {
  const auto kind = [this] {
    switch (control_.kind()) {
      case Control::Kind::Label: return Layout::Kind::Text;
      case Control::Kind::TextBox:
        return IsPage(control_) ? Layout::Kind::Page : Layout::Kind::Line;
      case Control::Kind::ListBox: return Layout::Kind::List;
      case Control::Kind::Button: return Layout::Kind::Button;
    }
    return Layout::Kind::Text;
  };
  return {kind(), WithoutAccessKey(control_.caption())};
}

}  // namespace Platform
