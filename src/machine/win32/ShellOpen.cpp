#include "platform/ShellOpen.h"

#include "machine/win32/System.h"

#include <objbase.h>
#include <shellapi.h>

#include "machine/win32/FormWindow.h"
#include "machine/win32/SystemLibrary.h"
#include "platform/LongStep.h"

namespace Platform {

namespace {

SystemFunction<decltype(::CoInitializeEx)> CoInitializeEx("ole32.dll", "CoInitializeEx");
SystemFunction<decltype(::CoUninitialize)> CoUninitialize("ole32.dll", "CoUninitialize");
SystemFunction<decltype(::ShellExecuteExA)> ShellExecuteExA("shell32.dll", "ShellExecuteExA");

}  // namespace

void ShellOpen(const std::string& target) {
  // The shell may run a loop of its own.
  const LongStep step;
  // Programs that the shell talks to by COM need it made ready on this thread.
  const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
  SHELLEXECUTEINFOA what{};
  what.cbSize = sizeof what;
  // Without the flag that keeps the system silent, it tells what it cannot open. All is done when
  // the call returns.
  what.fMask = SEE_MASK_NOASYNC;
  what.hwnd = ActiveWindow();
  what.lpFile = target.c_str();
  what.nShow = SW_SHOWNORMAL;
  ShellExecuteExA(&what);
  if (SUCCEEDED(com)) CoUninitialize();
}

}  // namespace Platform
