// A long step of the program does not make its windows deaf to other programs.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "platform/Forms.h"
#include "platform/LongStep.h"
#include "platform/win32/FormWindow.h"
#include "tests/platform/TestMachine.h"

namespace {

class LongStep : public ContractTest {
 protected:
  LongStep() { Platform::StartProgram(main); }

  Platform::Form main{FixedText("Main")};
  Platform::TextBox Name{main, {.label = FixedText("&Name")}};
};

TEST_F(LongStep, IsInterruptedByQuestionsOfOthers) {
  const HWND window = Platform::ActiveWindow();
  std::atomic<bool> isOver = false;
  LRESULT answered = 0;
  DWORD_PTR length = 0;
  // As a screen reader asks: from outside of the program's thread.
  std::thread other([&] {
    constexpr UINT PatienceMs = 20000;
    answered =
        SendMessageTimeoutA(window, WM_GETTEXTLENGTH, 0, 0, SMTO_NORMAL, PatienceMs, &length);
    isOver = true;
  });
  while (!isOver) Platform::AnswerMessages();
  other.join();
  EXPECT_NE(answered, 0);
  EXPECT_EQ(length, 4u);
}

TEST_F(LongStep, LeavesWhatTheUserDoesForLater) {
  PostMessageA(GetFocus(), WM_KEYDOWN, 'A', 1);
  PostMessageA(GetFocus(), WM_CHAR, 'a', 1);
  Platform::AnswerMessages();
  EXPECT_EQ(Name.text(), "");
  MSG message;
  EXPECT_TRUE(PeekMessageA(&message, GetFocus(), WM_KEYDOWN, WM_CHAR, PM_NOREMOVE));
}

TEST_F(LongStep, PaintsWhatIsToBePainted) {
  const HWND window = Platform::ActiveWindow();
  InvalidateRect(window, nullptr, FALSE);
  Platform::AnswerMessages();
  EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
}

}  // namespace
