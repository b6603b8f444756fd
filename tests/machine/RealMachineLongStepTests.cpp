// A long step of the program does not make its windows deaf to other programs.
#include <gtest/gtest.h>

#include <atomic>
#include <optional>
#include <thread>

#include "machine/win32/FormWindow.h"
#include "platform/LongStep.h"
#include "tests/machine/RealMachine.h"
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
    const Platform::LongStep step;
    while (!isOver) step.AnswerOthers();
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

TEST_F(LongStep, PutsBackATextThatOthersChangeMeanwhile) {
  Name.SetText("hill");
  int changes = 0;
  Name.OnChange = [&] { ++changes; };
  const HWND edit = FindWindowExA(Platform::ActiveWindow(), nullptr, "Edit", nullptr);
  EXPECT_TRUE(AnswerDuringStep(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("lake")));
  EXPECT_EQ(TestMachine::Hears(), "Name, edit, hill, Alt+N");
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(Name.text(), "hill");
}

// A library that waits within the step hands on whatever comes.
TEST_F(LongStep, LetsNoLoopOfALibraryHandOnKeysAndClicks) {
  bool isSaved = false;
  Save.OnClick = [&] { isSaved = true; };
  main.OnKeyDown = [&](Platform::KeyEvent&) { isSaved = true; };
  const HWND button = FindWindowExA(Platform::ActiveWindow(), nullptr, "Button", nullptr);
  {
    const Platform::LongStep step;
    PostMessageA(GetFocus(), WM_KEYDOWN, 'A', 1);
    PostMessageA(GetFocus(), WM_CHAR, 'a', 1);
    PostMessageA(button, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    PostMessageA(button, WM_LBUTTONUP, 0, 0);
    PostMessageA(Platform::ActiveWindow(), WM_SYSCOMMAND, SC_CLOSE, 0);
    PostMessageA(Platform::ActiveWindow(), WM_NCLBUTTONDOWN, HTCLOSE, 0);
    PostMessageA(Platform::ActiveWindow(), WM_CLOSE, 0, 0);
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
      TranslateMessage(&message);
      DispatchMessageA(&message);
    }
  }
  EXPECT_FALSE(isSaved);
  EXPECT_EQ(TestMachine::Hears(), "Name, edit, Alt+N");
  EXPECT_TRUE(main.IsVisible());
}

TEST_F(LongStep, LeavesWhatTheUserDoesUntilItsEndAndDropsItThen) {
  MSG message;
  {
    const Platform::LongStep step;
    PostMessageA(GetFocus(), WM_KEYDOWN, 'A', 1);
    PostMessageA(GetFocus(), WM_CHAR, 'a', 1);
    PostMessageA(GetFocus(), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    PostMessageA(Platform::ActiveWindow(), WM_NCLBUTTONDOWN, HTCLOSE, 0);
    PostMessageA(Platform::ActiveWindow(), WM_SYSCOMMAND, SC_CLOSE, 0);
    PostMessageA(Platform::ActiveWindow(), WM_CLOSE, 0, 0);
    step.AnswerOthers();
    EXPECT_EQ(Name.text(), "");
    EXPECT_TRUE(PeekMessageA(&message, nullptr, WM_KEYDOWN, WM_CHAR, PM_NOREMOVE));
  }
  for (const UINT kind :
       {WM_KEYDOWN, WM_CHAR, WM_LBUTTONDOWN, WM_NCLBUTTONDOWN, WM_SYSCOMMAND, WM_CLOSE}) {
    EXPECT_FALSE(PeekMessageA(&message, nullptr, kind, kind, PM_NOREMOVE)) << kind;
  }
}

TEST_F(LongStep, DropsWhatComesFromTheKeyboardItself) {
  SetForegroundWindow(Platform::ActiveWindow());
  TestMachine::Hears();  // brings the window to rest
  {
    const Platform::LongStep step;
    INPUT strokes[2] = {};
    for (INPUT& stroke : strokes) {
      stroke.type = INPUT_KEYBOARD;
      stroke.ki.wVk = 'X';
    }
    strokes[1].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(2, strokes, sizeof(INPUT));
    constexpr DWORD PatienceMs = 5000;
    const DWORD waited =
        MsgWaitForMultipleObjectsEx(0, nullptr, PatienceMs, QS_KEY, MWMO_INPUTAVAILABLE);
    if (waited == WAIT_TIMEOUT) GTEST_SKIP() << "the keyboard belongs to another program";
    step.AnswerOthers();
  }
  EXPECT_EQ(TestMachine::Hears(), "Name, edit, Alt+N");
}

TEST_F(LongStep, DropsTheRepeatsOfAKeyUntilItIsLetGo) {
  SetForegroundWindow(Platform::ActiveWindow());
  TestMachine::Hears();  // brings the window to rest
  const auto send = [](DWORD flags) {
    INPUT stroke{};
    stroke.type = INPUT_KEYBOARD;
    stroke.ki.wVk = 'X';
    stroke.ki.dwFlags = flags;
    SendInput(1, &stroke, sizeof stroke);
  };
  {
    const Platform::LongStep step;
    send(0);
    constexpr DWORD PatienceMs = 5000;
    const DWORD waited =
        MsgWaitForMultipleObjectsEx(0, nullptr, PatienceMs, QS_KEY, MWMO_INPUTAVAILABLE);
    if (waited == WAIT_TIMEOUT) GTEST_SKIP() << "the keyboard belongs to another program";
  }
  const auto seen = [](UINT message) {
    bool isSeen = false;
    TestMachine::WaitUntil([&] {
      MSG waiting;
      isSeen = PeekMessageA(&waiting, nullptr, message, message, PM_NOREMOVE);
      return isSeen;
    });
    return isSeen;
  };
  send(0);
  send(0);
  send(KEYEVENTF_KEYUP);
  EXPECT_TRUE(seen(WM_KEYUP));
  RealMachine::Pump();
  EXPECT_EQ(Name.text(), "");
  send(0);
  send(KEYEVENTF_KEYUP);
  TestMachine::WaitUntil([this] { return !Name.text().empty(); });
  EXPECT_EQ(Name.text(), "x");
}

TEST_F(LongStep, DoesNotSwallowTheEndOfTheProgram) {
  {
    const Platform::LongStep step;
    PostQuitMessage(7);
    PostMessageA(GetFocus(), WM_KEYDOWN, 'A', 1);
    step.AnswerOthers();
  }
  MSG message;
  EXPECT_FALSE(PeekMessageA(&message, nullptr, WM_KEYDOWN, WM_KEYDOWN, PM_NOREMOVE) &&
               message.message == WM_KEYDOWN);
  ASSERT_TRUE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 7u);
}

TEST_F(LongStep, LetsAWindowBePutAside) {
  const HWND window = Platform::ActiveWindow();
  const Platform::LongStep step;
  SendMessageA(window, WM_SYSCOMMAND, SC_MINIMIZE, 0);
  EXPECT_TRUE(IsIconic(window));
  SendMessageA(window, WM_SYSCOMMAND, SC_RESTORE, 0);
  EXPECT_FALSE(IsIconic(window));
}

TEST_F(LongStep, PaintsWhatIsToBePainted) {
  const HWND window = Platform::ActiveWindow();
  InvalidateRect(window, nullptr, FALSE);
  const Platform::LongStep step;
  EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
}

}  // namespace
