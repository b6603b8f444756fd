#include "machine/win32/UserInput.h"

#include "platform/LongStep.h"

namespace Platform {

bool IsUserInput(UINT message) {
  return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
         (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) ||
         (message >= WM_NCMOUSEMOVE && message <= WM_NCXBUTTONDBLCLK);
}

bool IsHeldBack(UINT message, WPARAM wParam) {
  if (!LongStep::IsRunning()) return false;
  if (IsUserInput(message)) return true;
  if (message != WM_SYSCOMMAND) return false;
  // The lowest four bits are the system's own. A window that is put aside begins nothing.
  const WPARAM command = wParam & 0xFFF0;
  return command != SC_MINIMIZE && command != SC_RESTORE;
}

}  // namespace Platform
