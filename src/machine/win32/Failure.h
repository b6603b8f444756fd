// How a call of the system that is no file's fails: with DeviceError and what the system says.
#pragma once

#include "base/LangText.h"
#include "machine/win32/System.h"

namespace Platform {

//   step  what was being done, a text of RuntimeErrorTexts.
//   code  the system's own: of its last error, or an HRESULT.
[[noreturn]] void FailAt(const LangText& step, DWORD code = GetLastError());

}  // namespace Platform
