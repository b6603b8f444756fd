#include "e2e/driver/Clipboard.h"

#include <cstring>
#include <stdexcept>

#include "e2e/driver/Wait.h"

namespace E2e {

std::wstring ClipboardText() {
  return HeldClipboard().text();
}

HeldClipboard::HeldClipboard()
    : owner_(CreateWindowExA(0, "STATIC", "Holder", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                             nullptr)) {
  if (!ComesTrue([this] { return OpenClipboard(owner_) != FALSE; })) {
    DestroyWindow(owner_);
    throw std::runtime_error("the clipboard is in use");
  }
}

HeldClipboard::~HeldClipboard() {
  CloseClipboard();
  DestroyWindow(owner_);
}

std::wstring HeldClipboard::text() const {
  const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
  if (!memory) return L"";
  std::wstring text = static_cast<const wchar_t*>(GlobalLock(memory));
  GlobalUnlock(memory);
  return text;
}

void HeldClipboard::SetText(const std::wstring& text) {
  EmptyClipboard();
  const size_t size = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
  std::memcpy(GlobalLock(memory), text.c_str(), size);
  GlobalUnlock(memory);
  SetClipboardData(CF_UNICODETEXT, memory);
}

}  // namespace E2e
