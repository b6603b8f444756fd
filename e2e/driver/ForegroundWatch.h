// Who is in front while a program hands over between its windows.
#pragma once

#include <windows.h>

#include <atomic>
#include <mutex>
#include <set>
#include <stop_token>
#include <string>
#include <thread>

namespace E2e {

// While it lives, a window that is not the watched program's stands open at the bottom of the
// screen, as the next one for the system to activate once nothing else is there: it notices
// whenever that happens, be it for the shortest moment. Besides, a thread looks at the window in
// front all the time.
class ForegroundWatch {
 public:
  static constexpr const wchar_t* BystanderTitle = L"Bystander";

  // The watched program must be in front.
  explicit ForegroundWatch(DWORD processId);
  ForegroundWatch(const ForegroundWatch&) = delete;
  ForegroundWatch& operator=(const ForegroundWatch&) = delete;

  // The titles of the windows that have been in front and are not the watched program's. What
  // happened before the call is in there.
  std::set<std::wstring> Strangers();

 private:
  void Watch(const std::stop_token& stop);
  void Note(HWND stranger);
  static LRESULT CALLBACK BystanderProcedure(HWND window, UINT message, WPARAM first,
                                             LPARAM second);

  DWORD processId_;
  std::atomic<HWND> bystander_ = nullptr;
  std::mutex mutex_;
  std::set<std::wstring> strangers_;
  std::jthread thread_;
};

}  // namespace E2e
