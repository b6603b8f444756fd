#include "platform/ShellOpen.h"

#include "platform/win32/System.h"

#include <objbase.h>
#include <shellapi.h>

#include "platform/win32/FormWindow.h"

namespace Platform {

void ShellOpen(const std::string& target) {
  // Programs that the shell talks to by COM need it made ready on this thread.
  const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
  ShellExecuteA(ActiveWindow(), nullptr, target.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  if (SUCCEEDED(com)) CoUninitialize();
}

}  // namespace Platform
