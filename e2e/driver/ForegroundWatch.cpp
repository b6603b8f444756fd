#include "e2e/driver/ForegroundWatch.h"

#include "e2e/driver/Wait.h"
#include "e2e/driver/Window.h"

namespace E2e {

ForegroundWatch::ForegroundWatch(DWORD processId)
    : processId_(processId), thread_([this](const std::stop_token& stop) { Watch(stop); }) {
  WaitUntil("the bystander's window", [this] { return bystander_ != nullptr; });
}

std::set<std::wstring> ForegroundWatch::Strangers() {
  // Answered when the bystander has handled what was sent to it before.
  Window(bystander_).Ask(WM_NULL);
  const std::lock_guard lock(mutex_);
  return strangers_;
}

void ForegroundWatch::Watch(const std::stop_token& stop) {
  const HWND bystander = CreateWindowExW(0, L"STATIC", BystanderTitle, WS_OVERLAPPEDWINDOW, 0, 0,
                                         200, 100, nullptr, nullptr, nullptr, nullptr);
  SetWindowLongPtrW(bystander, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  SetWindowLongPtrW(bystander, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(BystanderProcedure));
  SetWindowPos(bystander, HWND_BOTTOM, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
  bystander_ = bystander;
  while (!stop.stop_requested()) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    const HWND front = GetForegroundWindow();
    const DWORD owner = Window(front).processId();
    // None is in front while one is losing its place, and none has an owner once it is gone.
    if (owner != 0 && owner != processId_) Note(front);
    SwitchToThread();
  }
  DestroyWindow(bystander);
}

void ForegroundWatch::Note(HWND stranger) {
  // Read without asking the window: one of another thread may be waiting for this one.
  wchar_t title[256] = L"";
  InternalGetWindowText(stranger, title, 256);
  const std::lock_guard lock(mutex_);
  strangers_.insert(title);
}

LRESULT CALLBACK ForegroundWatch::BystanderProcedure(HWND window, UINT message, WPARAM first,
                                                     LPARAM second) {
  if (message == WM_ACTIVATE && LOWORD(first) != WA_INACTIVE) {
    reinterpret_cast<ForegroundWatch*>(GetWindowLongPtrW(window, GWLP_USERDATA))->Note(window);
  }
  return DefWindowProcW(window, message, first, second);
}

}  // namespace E2e
