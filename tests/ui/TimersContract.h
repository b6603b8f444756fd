// What every machine promises of the timers of windows. Included once by each machine's tests.
#pragma once

#include <gtest/gtest.h>

#include "platform/LongStep.h"
#include "tests/ui/ContractWindows.h"
#include "ui/MsgBox.h"
#include "ui/Timer.h"

class TimersContract : public ContractTest {
 protected:
  using Lines = std::vector<std::string>;

  static constexpr int OftenMs = 10;
  static constexpr int LongEnoughMs = 8 * OftenMs;

  struct Ticking final : Platform::Form {
    Ticking() : Form(FixedText("Ticking")) {
      Quiet.OnTimer = [this] { ++quietTicks; };
      Loud.OnTimer = [this] { ++loudTicks; };
    }

    Platform::Button Stop{*this, {.text = FixedText("Stop")}};
    Platform::Timer Quiet{*this, {.milliseconds = OftenMs}};
    Platform::Timer Loud{*this, {.milliseconds = OftenMs, .ticksUnderBoxes = true}};
    int quietTicks = 0;
    int loudTicks = 0;
  };

  TimersContract() {
    Platform::StartProgram(main);
    tool.Show();
  }

  // Waits so long that a timer that runs ticks several times.
  void WaitForLoudTicks() { WaitForTicks(tool.loudTicks, 3); }
  static void WaitForTicks(const int& ticks, int more) {
    const int enough = ticks + more;
    TestMachine::WaitUntil([&] { return ticks >= enough; });
    EXPECT_GE(ticks, enough);
  }
  // While a box is on the screen.
  static void DuringBox(const std::function<void()>& action) {
    TestMachine::WhenModalWindowOpens([&] {
      EXPECT_EQ(TestMachine::ActiveWindow(), "Question");
      action();
      EXPECT_EQ(TestMachine::ActiveWindow(), "Question") << "nothing took it away";
      TestMachine::Press("Enter");
    });
    Platform::MsgBox("Really?", "Question", Platform::Icon::Question, Platform::Buttons::YesNo);
  }

  ContractWindow main{"Main"};
  Ticking tool;
  ContractTool other{"Other"};
};

TEST_F(TimersContract, ATimerTicksAgainAndAgainUntilItIsStopped) {
  EXPECT_FALSE(tool.Quiet.IsRunning());
  tool.Quiet.Start();
  EXPECT_TRUE(tool.Quiet.IsRunning());
  WaitForTicks(tool.quietTicks, 3);
  tool.Quiet.Stop();
  const int ticks = tool.quietTicks;
  tool.Loud.Start();
  WaitForLoudTicks();
  EXPECT_EQ(tool.quietTicks, ticks);
}

TEST_F(TimersContract, ATimerMayStopItself) {
  tool.Quiet.OnTimer = [this] {
    ++tool.quietTicks;
    tool.Quiet.Stop();
  };
  tool.Quiet.Start();
  tool.Loud.Start();
  WaitForLoudTicks();
  EXPECT_EQ(tool.quietTicks, 1);
}

TEST_F(TimersContract, ATimerOfAWindowThatIsNotLoadedDoesNotRun) {
  tool.Quiet.Start();
  tool.Unload();
  EXPECT_FALSE(tool.Quiet.IsRunning());
  tool.Quiet.Start();
  EXPECT_FALSE(tool.Quiet.IsRunning());
  TestMachine::LetTimeGoBy(LongEnoughMs);
  tool.Show();
  TestMachine::LetTimeGoBy(LongEnoughMs);
  EXPECT_EQ(tool.quietTicks, 0);
}

TEST_F(TimersContract, ATimerMayBeStartedWhileItsWindowLoads) {
  tool.Unload();
  tool.OnLoad = [this] { tool.Quiet.Start(); };
  tool.Show();
  WaitForTicks(tool.quietTicks, 1);
}

TEST_F(TimersContract, ATickMayUnloadItsWindow) {
  tool.Quiet.OnTimer = [this] {
    ++tool.quietTicks;
    tool.Unload();
  };
  tool.Quiet.Start();
  WaitForTicks(tool.quietTicks, 1);
  TestMachine::LetTimeGoBy(LongEnoughMs);
  EXPECT_EQ(tool.quietTicks, 1);
  EXPECT_EQ(TestMachine::VisibleWindows(), Lines{"Main"});
}

TEST_F(TimersContract, ATickThatFallsUnderABoxComesAfterIt) {
  tool.Quiet.Start();
  tool.Loud.Start();
  DuringBox([this] {
    tool.quietTicks = 0;
    WaitForLoudTicks();
    EXPECT_EQ(tool.quietTicks, 0);
  });
  WaitForTicks(tool.quietTicks, 1);
}

TEST_F(TimersContract, ATickThatFallsIntoALongStepComesAfterIt) {
  tool.Quiet.Start();
  tool.Loud.Start();
  {
    const Platform::LongStep step;
    tool.quietTicks = tool.loudTicks = 0;
    TestMachine::LetTimeGoBy(LongEnoughMs);
    step.AnswerOthers();
    EXPECT_EQ(tool.quietTicks + tool.loudTicks, 0);
  }
  WaitForTicks(tool.quietTicks, 1);
  WaitForLoudTicks();
}

TEST_F(TimersContract, ATickThatShowsABoxDoesNotComeAgainUnderIt) {
  tool.Loud.OnTimer = [this] {
    ++tool.loudTicks;
    tool.Loud.Stop();
    tool.Loud.Start();
    DuringBox([] { TestMachine::LetTimeGoBy(LongEnoughMs); });
    tool.Loud.Stop();
  };
  tool.Loud.Start();
  WaitForTicks(tool.loudTicks, 1);
  EXPECT_EQ(tool.loudTicks, 1);
}

// What a tick asks for while a box is open is done when the box has been answered.

TEST_F(TimersContract, AWindowIsNotUnloadedUnderItsBox) {
  int unloads = 0;
  tool.OnUnload = [&] { ++unloads; };
  tool.Loud.OnTimer = [this] {
    ++tool.loudTicks;
    tool.Loud.Stop();
    tool.Unload();
  };
  tool.Loud.Start();
  DuringBox([&] {
    TestMachine::WaitUntil([this] { return tool.loudTicks > 0; });
    EXPECT_EQ(TestMachine::VisibleWindows(), (Lines{"Question", "Ticking"}));
    EXPECT_TRUE(tool.IsLoaded());
  });
  EXPECT_EQ(TestMachine::VisibleWindows(), Lines{"Main"});
  EXPECT_FALSE(tool.IsLoaded());
  EXPECT_EQ(unloads, 1);
}

TEST_F(TimersContract, AWindowDoesNotGoBackUnderItsBox) {
  tool.Loud.OnTimer = [this] {
    ++tool.loudTicks;
    tool.Loud.Stop();
    tool.GoBack();
  };
  tool.Loud.Start();
  DuringBox([&] {
    TestMachine::WaitUntil([this] { return tool.loudTicks > 0; });
    EXPECT_EQ(TestMachine::VisibleWindows(), (Lines{"Question", "Ticking"}));
  });
  EXPECT_EQ(TestMachine::VisibleWindows(), Lines{"Main"});
  EXPECT_TRUE(tool.IsLoaded());
}

TEST_F(TimersContract, AnotherWindowIsNotShownUnderABox) {
  tool.Loud.OnTimer = [this] {
    ++tool.loudTicks;
    tool.Loud.Stop();
    other.Show();
  };
  tool.Loud.Start();
  DuringBox([&] {
    TestMachine::WaitUntil([this] { return tool.loudTicks > 0; });
    EXPECT_EQ(TestMachine::VisibleWindows(), (Lines{"Question", "Ticking"}));
  });
  EXPECT_EQ(TestMachine::VisibleWindows(), Lines{"Other"});
  other.GoBack();
  EXPECT_EQ(TestMachine::VisibleWindows(), Lines{"Ticking"});
}
