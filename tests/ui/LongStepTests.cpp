// The gate where what the user does enters the windows: closed while a long step runs, whichever
// event it is.
#include "platform/LongStep.h"

#include "tests/Story.h"
#include "ui/Forms.h"
#include "ui/InputBox.h"
#include "ui/MsgBox.h"
#include "ui/Timer.h"

namespace {

using namespace Platform;
using testing::ElementsAre;
using testing::IsEmpty;

class LongSteps : public Story {
 protected:
  LongSteps() {
    Rows.Add("hill");
    Rows.Add("lake");
    Rows.OnSelect = [this] { events.emplace_back("select"); };
    Rows.OnDoubleClick = [this] { events.emplace_back("double click"); };
    Name.OnChange = [this] { events.emplace_back("change"); };
    Submit.OnClick = [this] { events.emplace_back("click"); };
    Close.OnClick = [this] { events.emplace_back("menu"); };
    Clock.OnTimer = [this] { events.emplace_back("tick"); };
    main.OnKeyDown = [this](KeyEvent&) { events.emplace_back("key"); };
    main.OnLoad = [this] { main.TranslateMenu(); };
    main.OnClose = [this] { events.emplace_back("close"); };
    StartProgram(main);
    Clock.Start();
  }

  // All that can come from a view.
  void DoEverything() {
    Name.Typed("x");
    Submit.Click();
    Close.Choose();
    EXPECT_FALSE(main.KeyDown({.code = Key::F1, .shift = Shift::None}));
    main.CloseRequested();
    Clock.Tick();
    Rows.Selected(1);
    Rows.DoubleClicked();
  }

  Form main{FixedText("Main")};
  MenuItem File{main, {.text = FixedText("&File")}};
  MenuItem Close{File, {.text = FixedText("&Close")}};
  TextBox Name{main, {.label = FixedText("&Name")}};
  ListBox Rows{main, {.label = FixedText("&Rows")}};
  Button Submit{main, {.text = FixedText("OK"), .isDefault = true}};
  Timer Clock{main, {.milliseconds = 1000, .ticksUnderBoxes = true}};
  std::vector<std::string> events;
};

TEST_F(LongSteps, NoEventComesThrough) {
  {
    const LongStep step;
    EXPECT_FALSE(main.TakesInput());
    DoEverything();
  }
  EXPECT_THAT(events, IsEmpty());
  EXPECT_EQ(Rows.selected(), -1);
  EXPECT_EQ(Name.text(), "");
  EXPECT_TRUE(main.TakesInput());
  DoEverything();
  EXPECT_THAT(events, ElementsAre("change", "click", "menu", "key", "close", "tick", "select",
                                  "double click"));
}

TEST_F(LongSteps, NoEventButThatOfATimerComesToAWindowUnderABox) {
  user.WhenWindowOpens("Box", [this] {
    DoEverything();
    user.Presses("Enter");
  });
  MsgBox("Done.", "Box", Icon::Information);
  EXPECT_THAT(events, ElementsAre("tick"));
}

TEST_F(LongSteps, NoEventComesOnceTheProgramHasEnded) {
  EndProgram();
  DoEverything();
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(LongSteps, WhatTheUserTriesMeanwhileIsInVain) {
  bool isTried = false;
  user.DuringLongStep([&] {
    user.Types("x");
    user.Presses("Enter");
    user.Clicks("OK");
    user.Clicks("hill");
    user.DoubleClicks("lake");
    user.ChoosesMenu({"File", "Close"});
    user.ClosesWindow();
    user.ClosesFromTaskbar("Main");
    user.Waits(5000);
    EXPECT_EQ(user.Hears(), "Name, edit, Alt+N");
    isTried = true;
  });
  { const LongStep step; }
  EXPECT_TRUE(isTried);
  EXPECT_THAT(events, IsEmpty());
  user.Waits(1);
  EXPECT_THAT(events, ElementsAre("tick")) << "once, when the step is over";
}

TEST_F(LongSteps, StepsAreOverWhenTheirWorkFails) {
  EXPECT_THROW(
      {
        const LongStep step;
        const LongStep inner;
        throw 7;
      },
      int);
  EXPECT_FALSE(LongStep::IsRunning());
}

TEST_F(LongSteps, AStepRestsWhileABoxOfItIsAnswered) {
  const LongStep step;
  user.WhenWindowOpens("Box", [&] {
    EXPECT_FALSE(LongStep::IsRunning());
    EXPECT_FALSE(main.TakesInput());
    user.Presses("Enter");
  });
  MsgBox("Done.", "Box", Icon::Information);
  EXPECT_TRUE(LongStep::IsRunning());
  user.TypesInBox("3");
  EXPECT_EQ(InputBox("How many?", "Random track"), "3");
  EXPECT_TRUE(LongStep::IsRunning());
}

// --- Timers, by the clock ---

TEST_F(LongSteps, ATimerTicksOnTime) {
  user.Waits(999);
  EXPECT_THAT(events, IsEmpty());
  user.Waits(1);
  EXPECT_THAT(events, ElementsAre("tick"));
  user.Waits(3500);
  EXPECT_EQ(events.size(), 4u);
  EXPECT_EQ(machine.clock.milliseconds(), 4500);
}

TEST_F(LongSteps, ATimerThatIsStartedAgainCountsFromThen) {
  user.Waits(600);
  Clock.Start();
  user.Waits(600);
  EXPECT_THAT(events, IsEmpty());
  user.Waits(400);
  EXPECT_THAT(events, ElementsAre("tick"));
  Clock.Stop();
  user.Waits(5000);
  EXPECT_EQ(events.size(), 1u);
}

TEST_F(LongSteps, TimersTickInTheOrderOfTheirTimes) {
  Timer other(main, {.milliseconds = 400});
  other.OnTimer = [this] { events.emplace_back("other"); };
  other.Start();
  user.Waits(1000);
  EXPECT_THAT(events, ElementsAre("other", "other", "tick"));
}

TEST_F(LongSteps, ATimerIsGoneWithItsObject) {
  {
    Timer brief(main, {.milliseconds = 400});
    brief.OnTimer = [this] { events.emplace_back("brief"); };
    brief.Start();
  }
  user.Waits(500);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(LongSteps, ATimerThatCannotBeStartedDoesNotRun) {
  machine.FailAnyCall(Simulated::After{0});
  EXPECT_THROW(Clock.Start(), RuntimeError);
  EXPECT_EQ(machine.FailedCall(), "FormView::StartTimer Main");
  EXPECT_FALSE(Clock.IsRunning());
  user.Waits(5000);
  EXPECT_THAT(events, IsEmpty());
}

}  // namespace
