#include "platform/Clipboard.h"

#include <cstring>

#include "base/RuntimeError.h"
#include "machine/win32/CodePage.h"
#include "machine/win32/FormWindow.h"
#include "machine/win32/System.h"
#include "platform/Patience.h"

namespace Platform {

namespace {

[[noreturn]] void Fail(const LangText& step, DWORD code) {
  throw RuntimeError(RuntimeError::PermissionDenied, RuntimeErrorTexts.ClipboardInUse, "",
                     {step, code});
}

// The clipboard while it is ours. Managers of the clipboard and remote desktops open it each time
// that it changes, for moments.
class OpenedClipboard {
 public:
  OpenedClipboard() {
    const SystemError error = Patiently(
        [] {
          // Its owner must be a window, or what is put there may be refused.
          if (OpenClipboard(ActiveWindow())) return SystemError::None;
          return SystemError::AccessDenied;
        },
        IsInUseForReplacing);
    if (error != SystemError::None) {
      Fail(RuntimeErrorTexts.OpeningClipboard, static_cast<DWORD>(error));
    }
  }
  ~OpenedClipboard() { CloseClipboard(); }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
};

// Memory as the clipboard takes it over.
HGLOBAL GlobalCopy(const std::wstring& text) {
  const size_t size = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
  if (!memory) throw RuntimeError(RuntimeError::OutOfMemory);
  std::memcpy(GlobalLock(memory), text.c_str(), size);
  GlobalUnlock(memory);
  return memory;
}

}  // namespace

void SetClipboardText(const std::string& text) {
  // As wide characters alone: of a text in a code page the system believes that it is in that of
  // the keyboard in use, which need not be ours. It makes the other kinds of text by itself.
  const HGLOBAL memory = GlobalCopy(Widen(text));
  struct Keeper {
    HGLOBAL memory;
    ~Keeper() { GlobalFree(memory); }
  } keeper{memory};
  const OpenedClipboard clipboard;
  if (!EmptyClipboard() || !SetClipboardData(CF_UNICODETEXT, memory)) {
    Fail(RuntimeErrorTexts.FillingClipboard, GetLastError());
  }
  // It belongs to the system now.
  keeper.memory = nullptr;
}

}  // namespace Platform
