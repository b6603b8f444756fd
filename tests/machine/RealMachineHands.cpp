// Keys, clicks and the modal windows that wait for them. Keys are posted to the focused window, and
// go from there through the program's message loop as those of a keyboard do.
#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <set>

#include "machine/win32/FormWindow.h"
#include "machine/win32/MessageLoop.h"
#include "tests/machine/RealMachine.h"
#include "tests/machine/RealMachineKeys.h"
#include "tests/machine/TestMachine.h"
#include "ui/Controls.h"
#include "ui/Keys.h"

namespace TestMachine {

namespace {

using KeyNames::Stroke;

Stroke StrokeOf(const std::string& name) {
  const auto stroke = KeyNames::StrokeNamed(name);
  EXPECT_TRUE(stroke) << "no such key: " << name;
  return stroke.value_or(Stroke{});
}

void SetKeys(const Stroke& stroke, bool areDown) {
  BYTE state[256];
  GetKeyboardState(state);
  const auto set = [&](BYTE key, bool isUsed) {
    if (isUsed) state[key] = areDown ? 0x80 : 0;
  };
  set(static_cast<BYTE>(stroke.key), true);
  set(VK_CONTROL, stroke.isCtrl);
  set(VK_LCONTROL, stroke.isCtrl);
  set(VK_SHIFT, stroke.isShift);
  set(VK_LSHIFT, stroke.isShift);
  set(VK_MENU, stroke.isAlt);
  set(VK_LMENU, stroke.isAlt);
  SetKeyboardState(state);
}

HWND KeyboardWindow() {
  RealMachine::StayInFront();
  return GetFocus() ? GetFocus() : GetActiveWindow();
}

HWND WindowInUse() {
  RealMachine::StayInFront();
  return GetActiveWindow();
}

constexpr LPARAM WasDownBefore = 1 << 30;

void PostKey(WORD key, bool isDown, bool isAlt, bool isHandledAtOnce = true, LPARAM more = 0) {
  LPARAM data = more | 1 | static_cast<LPARAM>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC)) << 16;
  if (isAlt) data |= 1 << 29;
  if (!isDown) data |= static_cast<LPARAM>(3) << 30;
  const UINT message =
      isDown ? (isAlt ? WM_SYSKEYDOWN : WM_KEYDOWN) : (isAlt ? WM_SYSKEYUP : WM_KEYUP);
  PostMessageA(KeyboardWindow(), message, key, data);
  if (isHandledAtOnce) RealMachine::Pump();
}

void PutDown(const Stroke& stroke) {
  SetKeys(stroke, true);
  if (stroke.isAlt) PostKey(VK_MENU, true, true);
  PostKey(stroke.key, true, stroke.isAlt);
}

void PressStroke(const Stroke& stroke) {
  PutDown(stroke);
  PostKey(stroke.key, false, stroke.isAlt);
  SetKeys(stroke, false);
  if (stroke.isAlt) PostKey(VK_MENU, false, false);
}

Stroke& StrokeHeldDown() {
  static Stroke stroke{};
  return stroke;
}

HWND ChildOfClass(HWND parent, const char* name) {
  return FindWindowExA(parent, nullptr, name, nullptr);
}

void ClickAt(HWND window, POINT point, UINT downMessage) {
  const LPARAM place = MAKELPARAM(point.x, point.y);
  PostMessageA(window, downMessage, MK_LBUTTON, place);
  PostMessageA(window, WM_LBUTTONUP, 0, place);
}

HWND ListInUse() {
  return ChildOfClass(WindowInUse(), "ListBox");
}

HWND FindRow(const std::string& row, POINT& middle) {
  const HWND list = ListInUse();
  const LRESULT index = SendMessageA(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                     reinterpret_cast<LPARAM>(row.c_str()));
  EXPECT_GE(index, 0) << row;
  RECT rect{};
  SendMessageA(list, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rect));
  middle = {rect.left + 4, (rect.top + rect.bottom) / 2};
  return list;
}

// What a list does whose memory does not suffice for one row.
struct ListWithoutRoom {
  WNDPROC proc = nullptr;
  std::string refused;
};

ListWithoutRoom& TheListWithoutRoom() {
  static ListWithoutRoom list;
  return list;
}

LRESULT CALLBACK RefusingProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const ListWithoutRoom& list = TheListWithoutRoom();
  if (message == LB_ADDSTRING && list.refused == reinterpret_cast<const char*>(lParam)) {
    return LB_ERRSPACE;
  }
  return CallWindowProcA(list.proc, window, message, wParam, lParam);
}

// --- Modal windows ---

struct Waiting {
  std::deque<std::function<void()>> actions;
  std::set<HWND> seen;
  UINT_PTR timer = 0;
  int pressed = 0;  // the button to press in a file dialog's own box, until it comes; 0 for none
};

Waiting& TheWaiting() {
  static Waiting waiting;
  return waiting;
}

// A window that is new, in use, and keeps its owner from being used.
HWND NewModalWindow() {
  RealMachine::StayInFront();
  std::erase_if(TheWaiting().seen, [](HWND window) { return !IsWindowVisible(window); });
  const HWND window = GetActiveWindow();
  if (!window || !IsWindowVisible(window) || TheWaiting().seen.contains(window)) return nullptr;
  const HWND owner = GetWindow(window, GW_OWNER);
  return owner && !IsWindowEnabled(owner) ? window : nullptr;
}

void CALLBACK LookForModalWindow(HWND, UINT, UINT_PTR, DWORD) {
  Waiting& waiting = TheWaiting();
  const HWND window = NewModalWindow();
  if (!window) return;
  if (waiting.pressed) {
    waiting.seen.insert(window);
    const int button = std::exchange(waiting.pressed, 0);
    const HWND control = GetDlgItem(window, button);
    EXPECT_NE(control, nullptr) << "another box: " << MessageBoxOnScreen().text;
    PostMessageA(window, WM_COMMAND, button, reinterpret_cast<LPARAM>(control));
    return;
  }
  if (waiting.actions.empty()) {
    ADD_FAILURE() << "unexpected: " << ActiveWindow() << ": " << MessageBoxOnScreen().text;
    waiting.seen.insert(window);
    PostMessageA(window, WM_CLOSE, 0, 0);
    PostMessageA(window, WM_COMMAND, IDNO, 0);
    return;
  }
  waiting.seen.insert(window);
  const std::function<void()> action = std::move(waiting.actions.front());
  waiting.actions.pop_front();
  action();
}

void StartLooking() {
  constexpr UINT OftenMs = 10;
  if (!TheWaiting().timer) TheWaiting().timer = SetTimer(nullptr, 0, OftenMs, LookForModalWindow);
}

}  // namespace

void Press(const std::string& key) {
  PressStroke(StrokeOf(key));
}

void PressWhileBusy(const std::string& key) {
  const Stroke stroke = StrokeOf(key);
  PostKey(stroke.key, true, stroke.isAlt, false);
  PostKey(stroke.key, false, stroke.isAlt, false);
}

void HoldDown(const std::string& key) {
  StrokeHeldDown() = StrokeOf(key);
  PutDown(StrokeHeldDown());
}

void LetGoOfKeys() {
  const Stroke stroke = std::exchange(StrokeHeldDown(), Stroke{});
  SetKeys(stroke, false);
  if (stroke.isAlt) PostKey(VK_MENU, false, true);
  PostKey(stroke.key, false, false);
}

void RepeatKey() {
  const Stroke& stroke = StrokeHeldDown();
  PostKey(stroke.key, true, stroke.isAlt, true, WasDownBefore);
}

void Type(const std::string& text) {
  for (const char c : text) {
    const SHORT key = VkKeyScanA(c);
    ASSERT_NE(key, -1) << c;
    Stroke stroke{};
    stroke.key = LOBYTE(key);
    stroke.isShift = HIBYTE(key) & 1;
    PressStroke(stroke);
  }
}

void CloseWindow() {
  PostMessageA(WindowInUse(), WM_SYSCOMMAND, SC_CLOSE, 0);
  RealMachine::Pump();
}

void CloseFromTaskbar(const std::string& title) {
  PostMessageA(FindWindowA(nullptr, title.c_str()), WM_CLOSE, 0, 0);
  RealMachine::Pump();
}

void ClickRow(const std::string& row) {
  POINT middle;
  const HWND list = FindRow(row, middle);
  ClickAt(list, middle, WM_LBUTTONDOWN);
  RealMachine::Pump();
}

void DoubleClickRow(const std::string& row) {
  POINT middle;
  const HWND list = FindRow(row, middle);
  ClickAt(list, middle, WM_LBUTTONDOWN);
  ClickAt(list, middle, WM_LBUTTONDBLCLK);
  RealMachine::Pump();
}

void SelectRowUnnoticed(int row) {
  SendMessageA(ListInUse(), LB_SETCURSEL, static_cast<WPARAM>(row), 0);
}

void RefuseRow(const std::string& row) {
  const auto proc = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrA(ListInUse(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(RefusingProc)));
  TheListWithoutRoom() = {proc, row};
}

void ClickButton(const std::string& caption) {
  for (HWND button = nullptr;
       (button = FindWindowExA(WindowInUse(), button, "Button", nullptr)) != nullptr;) {
    char text[256] = "";
    GetWindowTextA(button, text, sizeof text);
    if (Platform::WithoutAccessKey(text) != caption) continue;
    RECT rect{};
    GetClientRect(button, &rect);
    ClickAt(button, {rect.right / 2, rect.bottom / 2}, WM_LBUTTONDOWN);
    return RealMachine::Pump();
  }
  ADD_FAILURE() << "no button " << caption;
}

void ChooseMenu(const std::vector<std::string>& captions) {
  const HWND window = WindowInUse();
  HMENU menu = GetMenu(window);
  for (size_t level = 0; level < captions.size(); ++level) {
    int item = 0;
    for (; item < GetMenuItemCount(menu); ++item) {
      char caption[256] = "";
      GetMenuStringA(menu, static_cast<UINT>(item), caption, sizeof caption, MF_BYPOSITION);
      if (caption == captions[level]) break;
    }
    ASSERT_LT(item, GetMenuItemCount(menu)) << captions[level];
    if (level + 1 < captions.size()) {
      menu = GetSubMenu(menu, item);
      continue;
    }
    const UINT state = GetMenuState(menu, static_cast<UINT>(item), MF_BYPOSITION);
    if (state & (MF_GRAYED | MF_DISABLED)) return;
    PostMessageA(window, WM_COMMAND, GetMenuItemID(menu, item), 0);
  }
  RealMachine::Pump();
}

void WaitUntil(const std::function<bool()>& condition) {
  constexpr DWORD PatienceMs = 20000;
  constexpr DWORD OftenMs = 10;
  const ULONGLONG end = GetTickCount64() + PatienceMs;
  while (!condition() && GetTickCount64() < end) {
    MsgWaitForMultipleObjectsEx(0, nullptr, OftenMs, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    RealMachine::Pump();
  }
}

void LetTimeGoBy(int milliseconds) {
  const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
  WaitUntil([&] { return GetTickCount64() >= end; });
}

void WhenModalWindowOpens(std::function<void()> action) {
  TheWaiting().actions.push_back(std::move(action));
  StartLooking();
}

namespace {

// Types a path and presses Enter. The dialog then shows a box of its own with that button, or none.
void ChooseAndPress(const std::string& path, int button) {
  // The focus is on the box for the file's name.
  const HWND name = GetFocus();
  SendMessageA(name, EM_SETSEL, 0, -1);
  for (const char c : path) PostMessageA(name, WM_CHAR, static_cast<unsigned char>(c), 1);
  RealMachine::Pump();
  TheWaiting().pressed = button;
  Press("Enter");
  EXPECT_EQ(TheWaiting().pressed, 0) << "the dialog showed no box for " << path;
  TheWaiting().pressed = 0;
}

}  // namespace

void ChooseInFileDialog(const std::string& path, std::optional<bool> replaces) {
  ChooseAndPress(path, !replaces ? 0 : *replaces ? IDYES : IDNO);
}

void ChooseInMissingFolder(const std::string& path) {
  ChooseAndPress(path, IDOK);
}

void LeaveFileDialog() {
  Press("Escape");
}

}  // namespace TestMachine

void RealMachine::StayInFront() {
  if (GetActiveWindow()) return;
  const auto bring = [](HWND window, LPARAM) -> BOOL {
    if (!IsWindowVisible(window) || !IsWindowEnabled(window) || IsIconic(window)) return TRUE;
    SetForegroundWindow(window);
    return FALSE;
  };
  EnumThreadWindows(GetCurrentThreadId(), bring, 0);
}

void RealMachine::Pump() {
  MSG message;
  while (PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE)) {
    if (message.message == WM_QUIT) return;
    const HWND window = GetAncestor(message.hwnd, GA_ROOT);
    if (window && !Platform::FormView::Native::Find(window)) {
      // A box or a dialog of the system: its own loop would do this.
      PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE);
      if (!IsDialogMessageA(window, &message)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
      }
      continue;
    }
    bool isHandled = false;
    Platform::HandleMessagesUntil([&] { return std::exchange(isHandled, true); });
  }
  StayInFront();
}

void RealMachine::EmptyQueue() {
  MSG message;
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
  }
}

void RealMachine::ForgetModalWindows() {
  auto& waiting = TestMachine::TheWaiting();
  EXPECT_TRUE(waiting.actions.empty()) << "a modal window that was expected did not come";
  if (waiting.timer) KillTimer(nullptr, waiting.timer);
  waiting = {};
}
