// The clipboard of the contract tests, and another program that has it open.
#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <optional>
#include <thread>

#include "tests/machine/RealMachine.h"
#include "tests/machine/RealMachineImports.h"
#include "tests/machine/TestMachine.h"

namespace {

// Has the clipboard open as long as it lives: by a window of a thread of its own, to which the
// system lets the clipboard belong.
class Holder {
 public:
  Holder() : thread_([this] { Hold(); }) { isOpen_.wait(false); }
  ~Holder() {
    isOver_ = true;
    isOver_.notify_all();
    thread_.join();
  }
  Holder(const Holder&) = delete;
  Holder& operator=(const Holder&) = delete;

 private:
  void Hold() {
    const HWND window = CreateWindowExA(0, "STATIC", "Holder", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                        nullptr, nullptr);
    EXPECT_TRUE(OpenClipboard(window));
    isOpen_ = true;
    isOpen_.notify_all();
    isOver_.wait(false);
    CloseClipboard();
    DestroyWindow(window);
  }

  std::atomic<bool> isOpen_ = false;
  std::atomic<bool> isOver_ = false;
  std::thread thread_;
};

std::optional<Holder>& TheHolder() {
  static std::optional<Holder> holder;
  return holder;
}

// --- Counting the program's attempts ---

using Opening = BOOL(WINAPI*)(HWND);
Opening systemsOwn = nullptr;
int attemptsLeft = 0;

BOOL WINAPI LetGoAfterAttempts(HWND window) {
  const BOOL isOpened = systemsOwn(window);
  if (!isOpened && --attemptsLeft == 0) TheHolder().reset();
  return isOpened;
}

void StopCounting() {
  if (!systemsOwn) return;
  RealMachine::ReplaceImport("OpenClipboard", reinterpret_cast<void*>(systemsOwn));
  systemsOwn = nullptr;
}

}  // namespace

namespace TestMachine {

std::string ClipboardText() {
  StopCounting();
  TheHolder().reset();
  EXPECT_TRUE(OpenClipboard(nullptr));
  std::string text;
  if (const HANDLE memory = GetClipboardData(CF_UNICODETEXT)) {
    const auto* wide = static_cast<const wchar_t*>(GlobalLock(memory));
    text.resize(static_cast<size_t>(
        WideCharToMultiByte(CP_UTF8, 0, wide, -1, nullptr, 0, nullptr, nullptr)));
    WideCharToMultiByte(CP_UTF8, 0, wide, -1, text.data(), static_cast<int>(text.size()), nullptr,
                        nullptr);
    text.pop_back();  // the NUL
    GlobalUnlock(memory);
  }
  CloseClipboard();
  return text;
}

void PutClipboardText(const std::string& text) {
  std::thread other([&] {
    const HWND window = CreateWindowExA(0, "STATIC", "Other", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                        nullptr, nullptr);
    EXPECT_TRUE(OpenClipboard(window));
    EmptyClipboard();
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    std::memcpy(GlobalLock(memory), text.c_str(), text.size() + 1);
    GlobalUnlock(memory);
    EXPECT_TRUE(SetClipboardData(CF_TEXT, memory));
    CloseClipboard();
    DestroyWindow(window);
  });
  other.join();
}

void HoldClipboard() {
  TheHolder().emplace();
}

void HoldClipboardForAMoment() {
  HoldClipboard();
  attemptsLeft = 2;
  systemsOwn = reinterpret_cast<Opening>(
      RealMachine::ReplaceImport("OpenClipboard", reinterpret_cast<void*>(&LetGoAfterAttempts)));
}

}  // namespace TestMachine

void RealMachine::PutBackClipboard() {
  StopCounting();
  TheHolder().reset();
}
