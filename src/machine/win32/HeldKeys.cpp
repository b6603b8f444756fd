#include "machine/win32/HeldKeys.h"

#include <bitset>

#include "machine/win32/System.h"

namespace Platform {

namespace {

constexpr size_t KeyCount = 256;
constexpr LPARAM WasDownBefore = LPARAM{1} << 30;
constexpr LPARAM IsLetGo = LPARAM{1} << 31;

std::bitset<KeyCount> deafKeys;
HHOOK keyboardHook = nullptr;
HHOOK messageHook = nullptr;

// Mouse buttons have codes too, but send no keys; and the shifting keys begin nothing by
// themselves.
bool IsOfKeyboard(size_t key) {
  return key > VK_XBUTTON2 && key != VK_SHIFT && key != VK_CONTROL && key != VK_MENU &&
         !(key >= VK_LSHIFT && key <= VK_RMENU);
}

void RemoveHooks() {
  for (HHOOK* hook : {&keyboardHook, &messageHook}) {
    if (*hook) UnhookWindowsHookEx(*hook);
    *hook = nullptr;
  }
}

// True if the key must not be seen.
//   isTaken  the message leaves the queue. Who only looks may look past repeats that wait: nothing
//            has happened to the key yet.
bool IsDeaf(WPARAM key, LPARAM data, bool isTaken) {
  if (key >= KeyCount || !deafKeys.test(key)) return false;
  // A key that was let go over another program's window is known by its next first press.
  const bool isRepeat = (data & WasDownBefore) && !(data & IsLetGo);
  if (!isRepeat && isTaken) deafKeys.reset(key);
  if (deafKeys.none()) RemoveHooks();
  return isRepeat;
}

// Boxes and file dialogs of the system have loops of their own, so that no loop of ours could keep
// a repeated key from them. Hooks see what any loop of the thread takes: this one what comes from
// the keyboard ...
LRESULT CALLBACK LookAtKey(int code, WPARAM key, LPARAM data) noexcept {
  if (code >= 0 && IsDeaf(key, data, code == HC_ACTION)) return TRUE;
  return CallNextHookEx(nullptr, code, key, data);
}

// ... and this one what other programs, such as a keyboard on the screen, have posted.
LRESULT CALLBACK LookAtMessage(int code, WPARAM flags, LPARAM place) noexcept {
  auto& message = *reinterpret_cast<MSG*>(place);
  const bool isKey = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN ||
                     message.message == WM_KEYUP || message.message == WM_SYSKEYUP;
  if (code == HC_ACTION && isKey && IsDeaf(message.wParam, message.lParam, flags == PM_REMOVE)) {
    message.message = WM_NULL;
  }
  return CallNextHookEx(nullptr, code, flags, place);
}

}  // namespace

void IgnoreHeldKeys() noexcept {
  BYTE state[KeyCount] = {};
  GetKeyboardState(state);
  constexpr BYTE IsDown = 0x80;
  for (size_t key = 0; key < KeyCount; ++key) {
    if (IsOfKeyboard(key) && (state[key] & IsDown)) deafKeys.set(key);
  }
  if (deafKeys.none()) return;
  const auto hook = [](HHOOK& place, int kind, HOOKPROC look) {
    if (!place) place = SetWindowsHookExA(kind, look, nullptr, GetCurrentThreadId());
  };
  hook(keyboardHook, WH_KEYBOARD, LookAtKey);
  hook(messageHook, WH_GETMESSAGE, LookAtMessage);
}

}  // namespace Platform
