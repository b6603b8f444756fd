#include "machine/win32/FormWindow.h"

#include <commctrl.h>

#include <algorithm>
#include <map>
#include <utility>

#include "base/RuntimeErrorTexts.h"
#include "machine/win32/DialogTemplate.h"
#include "machine/win32/Failure.h"
#include "machine/win32/MessageLoop.h"
#include "machine/win32/UserInput.h"
#include "ui/Forms.h"

namespace Platform {

namespace {

constexpr char WindowClass[] = "SK2PackWindow";
constexpr WORD IconId = 1;
constexpr WORD FirstControlId = 100;
constexpr UINT SoonMs = 20;  // until a timer that may not tick now is asked again

std::map<HWND, FormView::Native*>& Windows() {
  static std::map<HWND, FormView::Native*> windows;
  return windows;
}

HICON LoadProgramIcon(int widthMetric, int heightMetric) {
  return static_cast<HICON>(LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IconId),
                                       IMAGE_ICON, GetSystemMetrics(widthMetric),
                                       GetSystemMetrics(heightMetric), LR_SHARED));
}

// Keeps a window from taking input, until it goes. Null is no window.
class DisabledWindow {
 public:
  explicit DisabledWindow(HWND window) : window_(window) {
    wasEnabled_ = window && EnableWindow(window, FALSE) == 0;
  }
  ~DisabledWindow() {
    if (wasEnabled_) EnableWindow(window_, TRUE);
  }
  DisabledWindow(const DisabledWindow&) = delete;
  DisabledWindow& operator=(const DisabledWindow&) = delete;

 private:
  HWND window_;
  bool wasEnabled_;
};

DWORD StyleOf(const Frame& frame) {
  DWORD style = WS_CAPTION | WS_SYSMENU;
  if (frame.hasMinimizeBox) style |= WS_MINIMIZEBOX;
  if (frame.isResizable) style |= WS_THICKFRAME | WS_MAXIMIZEBOX;
  return style;
}

WORD IdOf(const Control& control, size_t index) {
  if (control.kind() == Control::Kind::Button) {
    const auto& button = static_cast<const Button&>(control);
    // Enter and Escape reach a dialog as clicks on these two numbers.
    if (button.IsCancel()) return IDCANCEL;
    if (button.IsDefault()) return IDOK;
  }
  return static_cast<WORD>(FirstControlId + index);
}

}  // namespace

FormView::Native* FormView::Native::Find(HWND window) {
  const auto found = Windows().find(window);
  return found == Windows().end() ? nullptr : found->second;
}

FormView::Native::Native(Form& form) : form_(form) {
  if (form.frame().isDialog) {
    MakeDialog();
  } else {
    MakeWindow();
  }
  if (!window_) FailAt(RuntimeErrorTexts.MakingWindow);
  try {
    Windows()[window_] = this;
    SendMessageA(window_, WM_SETICON, ICON_BIG,
                 reinterpret_cast<LPARAM>(LoadProgramIcon(SM_CXICON, SM_CYICON)));
    SendMessageA(window_, WM_SETICON, ICON_SMALL,
                 reinterpret_cast<LPARAM>(LoadProgramIcon(SM_CXSMICON, SM_CYSMICON)));
    ShowTitle();
    ShowMenu();
    font_ = std::make_unique<Display::Font>(Display::DpiOf(window_));
    MakeControls();
  } catch (...) {
    Windows().erase(window_);
    DestroyWindow(window_);
    throw;
  }
}

FormView::Native::~Native() {
  Windows().erase(window_);
  DestroyWindow(window_);
}

void FormView::Native::MakeDialog() {
  // Without it, controls may look as they did before there were themes.
  const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&controls);
  const DialogTemplate dialog(WS_POPUP | WS_CLIPCHILDREN | StyleOf(form_.frame()), WS_EX_APPWINDOW);
  window_ =
      CreateDialogIndirectParamA(GetModuleHandleA(nullptr), dialog.get(), nullptr, DialogProc, 0);
  if (window_) Display::KeepLayoutOurs(window_);
}

void FormView::Native::MakeWindow() {
  static const ATOM registered = [] {
    WNDCLASSEXA description{};
    description.cbSize = sizeof description;
    description.lpfnWndProc = WindowProc;
    description.hInstance = GetModuleHandleA(nullptr);
    description.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    description.lpszClassName = WindowClass;
    return RegisterClassExA(&description);
  }();
  if (!registered) return;
  // Place and size follow when it is shown the first time.
  window_ = CreateWindowExA(WS_EX_APPWINDOW, WindowClass, "", StyleOf(form_.frame()), CW_USEDEFAULT,
                            CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr,
                            GetModuleHandleA(nullptr), nullptr);
}

void FormView::Native::MakeControls() {
  const Control* before = nullptr;
  for (Control* control : form_.controls()) {
    const bool isNextButton = before && before->kind() == Control::Kind::Button &&
                              control->kind() == Control::Kind::Button;
    controls_.emplace_back(window_, *control, IdOf(*control, controls_.size()), !isNextButton);
    ControlWindow& child = controls_.back();
    child.SetFont(*font_);
    if (control->kind() == Control::Kind::TextBox) ShowText(static_cast<TextBox&>(*control));
    if (control->kind() == Control::Kind::ListBox) child.ShowRows(*font_);
    before = control;
  }
  if (Button* const button = form_.defaultButton()) {
    SendMessageA(window_, DM_SETDEFID, static_cast<WPARAM>(GetDlgCtrlID(Of(*button).window())), 0);
  }
}

ControlWindow& FormView::Native::Of(const Control& control) {
  return *std::find_if(controls_.begin(), controls_.end(),
                       [&](const ControlWindow& child) { return &child.control() == &control; });
}

bool FormView::Native::HasDialogKeys() const {
  return form_.focus() != nullptr;
}

void FormView::Native::Show(HWND over) {
  if (!isLaidOut_) OpenAtItsPlace(over);
  ShowWindow(window_, IsIconic(window_) ? SW_RESTORE : SW_SHOW);
}

void FormView::Native::Hide() {
  ShowWindow(window_, SW_HIDE);
}

void FormView::Native::RunModal(HWND owner) {
  isModalOver_ = false;
  const HWND window = window_;
  // A dialog has a close box only.
  SetWindowLongPtrA(
      window, GWL_STYLE,
      GetWindowLongPtrA(window, GWL_STYLE) & ~LONG_PTR{WS_MINIMIZEBOX | WS_MAXIMIZEBOX});
  if (owner) {
    SetWindowLongPtrA(window_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
    // The owner stands for both on the taskbar.
    SetWindowLongPtrA(window_, GWL_EXSTYLE,
                      GetWindowLongPtrA(window_, GWL_EXSTYLE) & ~LONG_PTR{WS_EX_APPWINDOW});
  }
  {
    const DisabledWindow disabled(owner);
    Show(owner);
    // This object is gone when its window is.
    HandleMessagesUntil([this, window] { return !IsWindow(window) || isModalOver_; });
  }
  // The owner takes input again before the window goes: otherwise another program would be
  // activated.
  if (Find(window)) Hide();
}

void FormView::Native::EndModal() {
  isModalOver_ = true;
}

void FormView::Native::ShowTitle() {
  SetWindowTextA(window_, form_.title().c_str());
}

void FormView::Native::ShowMenu() {
  // Made whole before the old one goes: where that fails, the old menu stays.
  auto menuBar = std::make_unique<MenuBar>(form_.menus());
  menuBar->PutOn(window_);
  menuBar_ = std::move(menuBar);
}

void FormView::Native::MoveFocus() {
  isFocusMoved_ = true;
  // A window that is not in use must not come to the front by this; it follows when it is.
  if (GetActiveWindow() == window_ && IsWindowVisible(window_)) RestoreFocus();
}

void FormView::Native::RestoreFocus() {
  if (!IsWindowEnabled(window_)) return;  // a window over it has the focus
  const bool isMoved = std::exchange(isFocusMoved_, false);
  Control* const focus = form_.focus();
  if (!focus) {
    SetFocus(window_);
  } else if (isMoved) {
    // The dialog's own way keeps the default button right and selects the text of a text box.
    SendMessageA(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Of(*focus).window()), TRUE);
  } else {
    SetFocus(Of(*focus).window());
  }
}

void FormView::Native::ShowText(TextBox& box) {
  isWritingText_ = true;
  Of(box).ShowText();
  isWritingText_ = false;
}

void FormView::Native::StartTimer(Timer& timer) {
  // Each start has an id of its own: a tick that is on its way when the timer is stopped, and that
  // the system does not take back, belongs to none that runs.
  const UINT_PTR id = ++lastTimerId_;
  timers_[id] = &timer;
  if (SetTimer(window_, id, static_cast<UINT>(timer.milliseconds()), nullptr)) return;
  timers_.erase(id);
  FailAt(RuntimeErrorTexts.StartingTimer);
}

void FormView::Native::StopTimer(Timer& timer) {
  const auto runs = [&](const auto& each) { return each.second == &timer; };
  const auto found = std::find_if(timers_.begin(), timers_.end(), runs);
  if (found == timers_.end()) return;
  KillTimer(window_, found->first);
  timers_.erase(found);
}

void FormView::Native::TimeIsOver(UINT_PTR timerId) {
  const auto found = timers_.find(timerId);
  if (found == timers_.end()) return;
  Timer& timer = *found->second;
  // Set anew before the tick, which may be the end of the timer and its window.
  const bool mayTick = timer.MayTick();
  SetTimer(window_, timerId, mayTick ? static_cast<UINT>(timer.milliseconds()) : SoonMs, nullptr);
  if (mayTick) timer.Tick();
}

bool FormView::Native::KeyDown(const MSG& message) {
  const auto isDown = [](int key) { return GetKeyState(key) < 0; };
  KeyEvent key{static_cast<int>(message.wParam), Shift::None};
  if (isDown(VK_SHIFT)) key.shift |= Shift::Shift;
  if (isDown(VK_CONTROL)) key.shift |= Shift::Ctrl;
  if (isDown(VK_MENU)) key.shift |= Shift::Alt;
  return form_.KeyDown(key);
}

INT_PTR CALLBACK FormView::Native::DialogProc(HWND window, UINT message, WPARAM wParam,
                                              LPARAM lParam) noexcept {
  // The focus is set when the window is activated, so the system need not: WM_INITDIALOG, which
  // comes before the window is known here, is answered with FALSE too.
  Native* const native = Find(window);
  if (!native) return FALSE;
  const auto result = native->HandleSafely(message, wParam, lParam);
  if (!result) return FALSE;
  SetWindowLongPtrA(window, DWLP_MSGRESULT, *result);
  return TRUE;
}

LRESULT CALLBACK FormView::Native::WindowProc(HWND window, UINT message, WPARAM wParam,
                                              LPARAM lParam) noexcept {
  if (Native* const native = Find(window)) {
    if (const auto result = native->HandleSafely(message, wParam, lParam)) return *result;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

std::optional<LRESULT> FormView::Native::HandleSafely(UINT message, WPARAM wParam,
                                                      LPARAM lParam) noexcept {
  try {
    return Handle(message, wParam, lParam);
  } catch (...) {
    TellFailure();
    return 0;
  }
}

std::optional<LRESULT> FormView::Native::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  // A library's loop dispatches straight to here, without our own loop's asking.
  if (IsHeldBack(message, wParam)) return 0;
  switch (message) {
    case WM_COMMAND: Command(wParam, lParam); return 0;
    case WM_TIMER: TimeIsOver(wParam); return 0;
    case ControlWindow::RowsWait:
      for (ControlWindow& child : controls_) child.DrawRows();
      return 0;
    case WM_CLOSE: form_.CloseRequested(); return 0;
    case WM_ACTIVATE:
      // The upper half says that the window is an icon, in which nothing can have the focus.
      if (LOWORD(wParam) == WA_INACTIVE || HIWORD(wParam)) return std::nullopt;
      RestoreFocus();
      return 0;
    case WM_SETFOCUS:
      // The system would look for a control to hand the focus on to.
      if (form_.focus()) RestoreFocus();
      return 0;
    case WM_SIZE:
      if (wParam == SIZE_MINIMIZED || !isLaidOut_) return std::nullopt;
      if (isGrowthPutOff_) {
        LayOutAgain();
      } else {
        PlaceControls();
      }
      return std::nullopt;
    case WM_GETMINMAXINFO: {
      if (!isLaidOut_) return std::nullopt;
      const SIZE least = Display::WithFrame(window_, leastSize_);
      reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {least.cx, least.cy};
      return 0;
    }
    case WM_DPICHANGED:
      MoveToScreen(HIWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
      return 0;
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
      RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
      return std::nullopt;
    case WM_SETTINGCHANGE:
      if (wParam != SPI_SETNONCLIENTMETRICS) return std::nullopt;
      ChangeFont(Display::DpiOf(window_));
      LayOutAgain();
      return 0;
    default: return std::nullopt;
  }
}

void FormView::Native::Command(WPARAM wParam, LPARAM lParam) {
  const auto sender = reinterpret_cast<HWND>(lParam);
  if (!sender) {
    // Of the menu; or Enter or Escape in a dialog that has no button for it.
    MenuItem* const item = menuBar_->ItemOf(LOWORD(wParam));
    if (item) item->Choose();
    return;
  }
  const auto child = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const ControlWindow& c) { return c.window() == sender; });
  if (child == controls_.end()) return;
  const WORD event = HIWORD(wParam);
  switch (child->control().kind()) {
    case Control::Kind::Label: return;
    case Control::Kind::Button:
      if (event == BN_CLICKED) static_cast<Button&>(child->control()).Click();
      return;
    case Control::Kind::ListBox: {
      auto& list = static_cast<ListBox&>(child->control());
      if (event == LBN_SELCHANGE) list.Selected(child->SelectedRow());
      if (event == LBN_DBLCLK) list.DoubleClicked();
      return;
    }
    case Control::Kind::TextBox:
      if (event == EN_CHANGE && !isWritingText_) {
        static_cast<TextBox&>(child->control()).Typed(child->Text());
      }
      return;
  }
}

HWND WindowOf(const Form& form) {
  return form.view() ? form.view()->native().window() : nullptr;
}

HWND ActiveWindow() {
  const Form* const form = ActiveForm();
  return form ? WindowOf(*form) : nullptr;
}

}  // namespace Platform
