#include "machine/win32/MessageLoop.h"

#include "machine/win32/FormWindow.h"
#include "machine/win32/System.h"
#include "machine/win32/UserInput.h"
#include "ui/FormView.h"

namespace Platform {

namespace {

bool IsKeyDown(const MSG& message) {
  if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN) return false;
  // The shifting keys alone are no keys: they show in the shift state of the others.
  return message.wParam != VK_SHIFT && message.wParam != VK_CONTROL && message.wParam != VK_MENU;
}

void Handle(MSG& message) {
  if (IsHeldBack(message.message, message.wParam)) return;
  const HWND window = GetAncestor(message.hwnd, GA_ROOT);
  FormView::Native* form = FormView::Native::Find(window);
  if (form && IsKeyDown(message)) {
    // The system must learn that Alt was not pressed alone: at its release it would open the menu,
    // of this window or of a box that the key has opened.
    if (message.message == WM_SYSKEYDOWN && message.wParam != VK_F4 && message.wParam != VK_F10) {
      DefWindowProcA(window, message.message, message.wParam, message.lParam);
    }
    if (form->KeyDown(message)) return;
    form = FormView::Native::Find(window);  // the key may have taken the window down
  }
  if (form && form->HasDialogKeys() && IsDialogMessageA(window, &message)) return;
  TranslateMessage(&message);
  DispatchMessageA(&message);
}

}  // namespace

void HandleMessagesUntil(const std::function<bool()>& isOver) {
  MSG message;
  while (!isOver()) {
    const BOOL result = GetMessageA(&message, nullptr, 0, 0);
    if (result == 0) {
      // Put back for the loop outside of this one, which has to end too.
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    // Less is a failure of the call itself, and there is no message.
    if (result > 0) Handle(message);
  }
}

void RunMessageLoop() {
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) Handle(message);
}

void EndMessageLoop() {
  PostQuitMessage(0);
}

}  // namespace Platform
