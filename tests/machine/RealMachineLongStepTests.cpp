// A long step of the program does not make its windows deaf to other programs.
#include <gtest/gtest.h>

#include <atomic>
#include <optional>
#include <thread>

#include "machine/win32/FormWindow.h"
#include "platform/LongStep.h"
#include "tests/machine/TestMachine.h"
#include "ui/Forms.h"

namespace {

class LongStep : public ContractTest {
 protected:
  LongStep() { Platform::StartProgram(main); }

  // What the window answers to a message from outside of the program's thread, such as a screen
  // reader's, that arrives during a long step. Nothing if it does not answer.
  static std::optional<DWORD_PTR> AnswerDuringStep(HWND window, UINT message, WPARAM wParam = 0,
                                                   LPARAM lParam = 0) {
    std::atomic<bool> isOver = false;
    DWORD_PTR answer = 0;
    LRESULT isAnswered = 0;
    std::thread other([&] {
      constexpr UINT PatienceMs = 20000;
      isAnswered =
          SendMessageTimeoutA(window, message, wParam, lParam, SMTO_NORMAL, PatienceMs, &answer);
      isOver = true;
    });
    while (!isOver) Platform::AnswerMessages();
    other.join();
    if (!isAnswered) return std::nullopt;
    return answer;
  }

  Platform::Form main{FixedText("Main")};
  Platform::TextBox Name{main, {.label = FixedText("&Name")}};
  Platform::Button Save{main, {.text = FixedText("&Save")}};
};

TEST_F(LongStep, IsInterruptedByQuestionsOfOthers) {
  EXPECT_EQ(AnswerDuringStep(Platform::ActiveWindow(), WM_GETTEXTLENGTH), 4u);
}

TEST_F(LongStep, IsNotInterruptedByOthersThatPressAButtonOrCloseTheWindow) {
  bool isSaved = false;
  Save.OnClick = [&] { isSaved = true; };
  const HWND window = Platform::ActiveWindow();
  const HWND button = FindWindowExA(window, nullptr, "Button", nullptr);
  ASSERT_NE(button, nullptr);
  EXPECT_TRUE(AnswerDuringStep(button, BM_CLICK));
  EXPECT_FALSE(isSaved);
  EXPECT_TRUE(AnswerDuringStep(window, WM_CLOSE));
  EXPECT_TRUE(main.IsVisible());
  SendMessageA(button, BM_CLICK, 0, 0);
  EXPECT_TRUE(isSaved) << "the step is over";
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
