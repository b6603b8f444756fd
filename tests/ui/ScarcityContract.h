// What every machine promises where the system has no room for another window, menu or timer: the
// user is told, and all is as before. Included once by each machine's tests.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "base/RuntimeError.h"
#include "tests/ui/ContractWindows.h"
#include "ui/Timer.h"

class ScarcityContract : public ContractTest {
 protected:
  using Lines = std::vector<std::string>;
  using Scarce = TestMachine::Scarce;

  ScarcityContract() {
    One.OnClick = [] {};
    main.OnLoad = [this] { main.TranslateMenu(); };
    Platform::StartProgram(main);
  }

  static Lines Visible() { return TestMachine::VisibleWindows(); }

  // What the system said of the failure of an action: "Making a window: 1158". Empty if it did not
  // fail.
  static std::string SystemCauseFor(const std::function<void()>& action) {
    try {
      action();
      return "";
    } catch (const RuntimeError& error) {
      return error.system().step.english + (": " + std::to_string(error.system().code));
    }
  }

  // Has each call of an action refused in turn that makes such a thing.
  //   look  looks at what has become of it each time.
  static void RefuseEachCall(Scarce thing, const std::string& cause,
                             const std::function<void()>& action,
                             const std::function<void()>& look) {
    int n = 0;
    for (;; ++n) {
      TestMachine::Refuse(thing, n);
      const std::string said = SystemCauseFor(action);
      if (!TestMachine::HasRefused()) break;
      SCOPED_TRACE(n);
      EXPECT_EQ(said, cause);
      look();
      ASSERT_FALSE(HasFailure());
    }
    EXPECT_GT(n, 0) << "it needs nothing of the kind";
  }

  // The box that tells of it comes, and is answered.
  static void ExpectToBeTold(const std::string& lastLine) {
    TestMachine::WhenModalWindowOpens([lastLine] {
      EXPECT_EQ(TestMachine::MessageBoxOnScreen().title, "Error");
      EXPECT_EQ(TestMachine::MessageBoxOnScreen().text,
                "The device reported an error.\r\n" + lastLine);
      TestMachine::Press("Enter");
    });
  }

  ContractWindow main{"Main"};
  Platform::MenuItem File{main, {.text = FixedText("&File")}};
  Platform::MenuItem One{File, {.text = FixedText("&One")}};
  ContractWindow tool{"Tool"};
  Platform::Timer Clock{tool, {.milliseconds = 10}};
};

TEST_F(ScarcityContract, AWindowThatCannotBeMadeLeavesTheStageAsItWas) {
  main.Delete.Focus();
  RefuseEachCall(
      Scarce::Windows, "Making a window: 1158", [this] { tool.Show(); },
      [this] {
        EXPECT_FALSE(tool.IsLoaded());
        EXPECT_EQ(Visible(), Lines{"Main"});
        EXPECT_EQ(TestMachine::Hears(), "Delete, button, Alt+D");
      });
  EXPECT_EQ(Visible(), Lines{"Tool"});
  tool.GoBack();
  EXPECT_EQ(Visible(), Lines{"Main"});
}

TEST_F(ScarcityContract, AModalWindowThatCannotBeMadeLeavesTheOwnerInUse) {
  TestMachine::Refuse(Scarce::Windows);
  EXPECT_EQ(SystemCauseFor([this] { tool.ShowModal(); }), "Making a window: 1158");
  EXPECT_FALSE(tool.IsLoaded());
  EXPECT_EQ(Visible(), Lines{"Main"});
  TestMachine::Press("Alt+D");
  EXPECT_EQ(main.events, Lines{"delete"});
}

TEST_F(ScarcityContract, AnEventWhoseWindowCannotBeMadeIsTold) {
  main.Delete.OnClick = [this] { tool.Show(); };
  TestMachine::Refuse(Scarce::Windows);
  ExpectToBeTold("Making a window: system error 1158");
  TestMachine::Press("Alt+D");
  EXPECT_EQ(Visible(), Lines{"Main"});
  TestMachine::Press("Alt+D");
  EXPECT_EQ(Visible(), Lines{"Tool"});
}

TEST_F(ScarcityContract, AMenuThatCannotBeMadeStaysAsItWas) {
  RefuseEachCall(
      Scarce::Menus, "Making a menu: 1158", [this] { One.SetChecked(true); },
      [this] {
        EXPECT_FALSE(One.IsChecked());
        EXPECT_EQ(TestMachine::Menus(), "&File(&One)");
      });
  EXPECT_EQ(TestMachine::Menus(), "&File(checked:&One)");
  TestMachine::ChooseMenu({"&File", "&One"});
}

TEST_F(ScarcityContract, ATimerThatCannotBeSetFailsTheEventAndIsTold) {
  int ticks = 0;
  Clock.OnTimer = [&] { ++ticks; };
  bool isReached = false;
  tool.Delete.OnClick = [&] {
    Clock.Start();
    isReached = true;
  };
  tool.Show();
  TestMachine::Refuse(Scarce::Timers);
  ExpectToBeTold("Starting a timer: system error 1158");
  TestMachine::Press("Alt+D");
  EXPECT_FALSE(isReached);
  EXPECT_FALSE(Clock.IsRunning());
  TestMachine::Press("Alt+D");
  EXPECT_TRUE(Clock.IsRunning());
  TestMachine::WaitUntil([&] { return ticks > 0; });
  EXPECT_GT(ticks, 0);
}

TEST_F(ScarcityContract, AWindowThatCannotSetItsTimerWhileItLoadsIsNotShown) {
  tool.OnLoad = [this] { Clock.Start(); };
  TestMachine::Refuse(Scarce::Timers);
  EXPECT_EQ(SystemCauseFor([this] { tool.Show(); }), "Starting a timer: 1158");
  EXPECT_FALSE(tool.IsLoaded());
  EXPECT_EQ(Visible(), Lines{"Main"});
  tool.Show();
  EXPECT_EQ(Visible(), Lines{"Tool"});
  EXPECT_TRUE(Clock.IsRunning());
}
