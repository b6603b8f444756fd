#include "e2e/driver/Wait.h"

#include <windows.h>

namespace E2e {

void WaitUntil(const std::string& what, const std::function<bool()>& isSo) {
  const ULONGLONG deadline = GetTickCount64() + 30'000;
  while (!isSo()) {
    if (GetTickCount64() > deadline) throw Overdue("never seen: " + what);
    Sleep(10);  // between two looks
  }
}

}  // namespace E2e
