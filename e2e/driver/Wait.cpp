#include "e2e/driver/Wait.h"

#include <windows.h>

namespace E2e {

bool ComesTrue(const std::function<bool()>& isSo) {
  const ULONGLONG deadline = GetTickCount64() + 30'000;
  while (!isSo()) {
    if (GetTickCount64() > deadline) return false;
    Sleep(10);  // between two looks
  }
  return true;
}

void WaitUntil(const std::string& what, const std::function<bool()>& isSo) {
  if (!ComesTrue(isSo)) throw Overdue("never seen: " + what);
}

}  // namespace E2e
