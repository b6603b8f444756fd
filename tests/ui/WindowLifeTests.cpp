// The life of a window: who opened whom, and windows that go away in the middle of their own
// events.
#include <memory>
#include <new>

#include "base/PerRun.h"
#include "base/RuntimeError.h"
#include "tests/FailureSweep.h"
#include "tests/ui/StageStory.h"
#include "ui/Stage.h"

namespace {

using namespace Platform;
using testing::ElementsAre;
using testing::IsEmpty;

class WindowLife : public StageStory {
 protected:
  size_t Loaded() const { return machine.screen.windows.size(); }

  StageTool a{"A"};
  StageTool b{"B"};
  StageTool c{"C"};
};

// --- Openers ---

TEST_F(WindowLife, AnOpenerThatIsShownAgainIsTheWayBack) {
  a.Show();
  b.Show();
  c.Show();
  a.Show();
  EXPECT_THAT(Screen(), ElementsAre("A"));
  c.Show();
  c.GoBack();
  EXPECT_THAT(Screen(), ElementsAre("A"));
  a.GoBack();
  EXPECT_THAT(Screen(), ElementsAre("Main"));
}

TEST_F(WindowLife, AnOpenerThatWasUnloadedMeanwhileIsPassedOver) {
  a.Show();
  b.Show();
  c.Show();
  b.Unload();
  c.GoBack();
  EXPECT_THAT(Screen(), ElementsAre("A"));
}

TEST_F(WindowLife, WithoutAnyOpenerLeftTheMainWindowComes) {
  a.Show();
  b.Show();
  a.Unload();
  b.Unload();
  EXPECT_THAT(Screen(), ElementsAre("Main"));
  c.Show();
  c.GoBack();
  EXPECT_THAT(Screen(), ElementsAre("Main"));
}

TEST_F(WindowLife, AToolThatTakesThePlaceOfOneThatLeftHasItsOpener) {
  a.Show();
  b.Show();
  Dispatch([this] {
    b.Leave();
    c.Show();
  });
  EXPECT_THAT(Screen(), ElementsAre("C"));
  c.GoBack();
  EXPECT_THAT(Screen(), ElementsAre("A"));
}

TEST_F(WindowLife, AToolThatLeftAndIsShownAgainHasTheOpenerOfThen) {
  a.Show();
  a.Leave();
  b.Show();
  a.Show();
  a.GoBack();
  EXPECT_THAT(Screen(), ElementsAre("B"));
}

TEST_F(WindowLife, TheMainWindowGoesNowhere) {
  a.Show();
  main.Show();
  main.GoBack();
  main.Leave();
  EXPECT_THAT(Screen(), ElementsAre("Main"));
  b.Show();
  b.GoBack();
  EXPECT_THAT(Screen(), ElementsAre("Main"));
}

TEST_F(WindowLife, AWindowThatIsNotOnTheStageLeavesNothing) {
  a.Show();
  b.Show();
  a.Leave();
  a.GoBack();
  main.GoBack();
  EXPECT_THAT(Screen(), ElementsAre("B"));
}

TEST_F(WindowLife, AWindowThatCannotTakeThePlaceLeavesItToTheOpener) {
  a.Show();
  b.Show();
  b.Submit.OnClick = [this] {
    b.Leave();
    machine.screen.refusesWindows = true;
    try {
      c.Show();
    } catch (const std::bad_alloc&) {
      machine.screen.refusesWindows = false;
      throw;
    }
  };
  user.Presses("Enter");
  EXPECT_THAT(Screen(), ElementsAre("A"));
}

// --- While a window loads ---

TEST_F(WindowLife, AWindowShowsItselfWhileItLoadsOnlyOnce) {
  int loads = 0;
  a.OnLoad = [&] {
    ++loads;
    a.Show();
    EXPECT_THAT(Screen(), ElementsAre("Main"));
  };
  a.Show();
  EXPECT_EQ(loads, 1);
  EXPECT_THAT(Screen(), ElementsAre("A"));
  a.GoBack();
  EXPECT_THAT(Screen(), ElementsAre("Main"));
}

TEST_F(WindowLife, AWindowThatUnloadsItselfForAnotherIsNotItsOpener) {
  a.OnLoad = [this] {
    b.Show();
    a.Unload();
  };
  a.Show();
  EXPECT_THAT(Screen(), ElementsAre("B"));
  b.GoBack();
  EXPECT_THAT(Screen(), ElementsAre("Main"));
  EXPECT_FALSE(a.IsLoaded());
}

TEST_F(WindowLife, AMainWindowMayOpenAnotherWhileItLoads) {
  main.Unload();
  RunObjects::End();
  Form first(FixedText("First"));
  first.OnLoad = [this] { a.Show(); };
  StartProgram(first);
  EXPECT_FALSE(HasProgramEnded());
  EXPECT_THAT(Screen(), ElementsAre("A"));
  a.Unload();
  EXPECT_THAT(Screen(), ElementsAre("First"));
}

TEST_F(WindowLife, AMainWindowThatUnloadsItselfEndsTheProgram) {
  main.Unload();
  RunObjects::End();
  Form first(FixedText("First"));
  first.OnLoad = [&] { first.Unload(); };
  StartProgram(first);
  EXPECT_TRUE(HasProgramEnded());
  EXPECT_THAT(Screen(), testing::Not(testing::Contains("First")));
}

TEST_F(WindowLife, TheProgramMayEndWhileAWindowLoads) {
  a.OnLoad = [] { EndProgram(); };
  a.ShowModal();
  EXPECT_TRUE(HasProgramEnded());
  EXPECT_THAT(Screen(), IsEmpty());
}

// --- While a window unloads ---

TEST_F(WindowLife, AWindowUnloadsOnceWhateverItsHandlerAsks) {
  int unloads = 0;
  a.OnUnload = [&] {
    ++unloads;
    a.Unload();
    a.GoBack();
  };
  a.Show();
  a.Unload();
  EXPECT_EQ(unloads, 1);
  EXPECT_FALSE(a.IsLoaded());
  EXPECT_THAT(Screen(), ElementsAre("Main"));
  user.WhenWindowOpens("A", [this] { a.EndModal(); });
  a.ShowModal();
  EXPECT_EQ(unloads, 2);
}

TEST_F(WindowLife, AWindowWhoseUnloadingFailsStays) {
  a.OnUnload = [] { throw RuntimeError(RuntimeError::DiskFull); };
  a.Show();
  user.ClosesWindow();
  EXPECT_THAT(Screen(), ElementsAre("A"));
  a.OnUnload = nullptr;
  user.ClosesWindow();
  EXPECT_THAT(Screen(), ElementsAre("Main"));
}

TEST_F(WindowLife, WhatWasPutOffAndFailsIsTold) {
  a.OnLoad = [] { throw RuntimeError(RuntimeError::FileNotFound); };
  user.WhenWindowOpens("B", [this] {
    a.Show();
    b.EndModal();
  });
  b.ShowModal();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "The file was not found."));
  EXPECT_THAT(Screen(), ElementsAre("Main"));
}

TEST_F(WindowLife, WhatWasPutOffIsForgottenWithItsWindow) {
  auto brief = std::make_unique<StageTool>("Brief");
  user.WhenWindowOpens("B", [&] {
    brief->Show();
    brief.reset();
    b.EndModal();
  });
  b.ShowModal();
  EXPECT_THAT(Screen(), ElementsAre("Main"));
}

TEST_F(WindowLife, NothingIsShownAnyMoreOnceTheProgramHasEnded) {
  user.WhenWindowOpens("B", [&] {
    a.Show();
    EndProgram();
  });
  b.ShowModal();
  a.Show();
  EXPECT_THAT(Screen(), IsEmpty());
}

// --- Windows that are destroyed in their own events ---

class DestroyedWindow : public WindowLife {
 protected:
  void Destroy() { brief.reset(); }

  std::unique_ptr<StageTool> brief = std::make_unique<StageTool>("Brief");
};

TEST_F(DestroyedWindow, IsNotTouchedAfterTheEvent) {
  const std::vector<std::function<void()>> ways{
      [this] {
        brief->Submit.OnClick = [this] { Destroy(); };
        user.Presses("Enter");
      },
      [this] {
        brief->Name.OnChange = [this] { Destroy(); };
        user.Types("x");
      },
      [this] {
        brief->Rows.Add("hill");
        brief->Rows.OnSelect = [this] { Destroy(); };
        user.Clicks("hill");
      },
      [this] {
        brief->Rows.Add("hill");
        brief->Rows.OnDoubleClick = [this] { Destroy(); };
        user.DoubleClicks("hill");
      },
      [this] {
        brief->OnKeyDown = [this](KeyEvent&) { Destroy(); };
        user.Presses("Ctrl+N");
      },
      [this] {
        brief->OnClose = [this] { Destroy(); };
        user.ClosesWindow();
      },
      [this] {
        brief->OnUnload = [this] { Destroy(); };
        user.ClosesWindow();
      },
      [this] {
        brief->Clock.OnTimer = [this] { Destroy(); };
        brief->Clock.Start();
        user.Waits(1000);
      },
  };
  for (size_t i = 0; i < ways.size(); ++i) {
    brief = std::make_unique<StageTool>("Brief");
    brief->Show();
    ways[i]();
    EXPECT_EQ(brief, nullptr) << "way " << i;
    EXPECT_THAT(Screen(), ElementsAre("Main")) << "way " << i;
    EXPECT_EQ(Loaded(), 1u) << "way " << i;
  }
  EXPECT_THAT(user.Boxes(), IsEmpty());
}

TEST_F(DestroyedWindow, IsNotShownIfItWasDestroyedWhileItLoaded) {
  brief->OnLoad = [this] { Destroy(); };
  brief->Show();
  EXPECT_THAT(Screen(), ElementsAre("Main"));
  brief = std::make_unique<StageTool>("Brief");
  brief->OnLoad = [this] { Destroy(); };
  brief->ShowModal();
  brief = std::make_unique<StageTool>("Brief");
  brief->OnLoad = [this] {
    Destroy();
    throw RuntimeError(RuntimeError::FileNotFound);
  };
  EXPECT_THROW(brief->Show(), RuntimeError);
  EXPECT_THAT(Screen(), ElementsAre("Main"));
  EXPECT_EQ(Loaded(), 1u);
}

TEST_F(DestroyedWindow, EndsItsModalLoop) {
  user.WhenWindowOpens("Brief", [this] { Destroy(); });
  brief->ShowModal();
  EXPECT_EQ(ActiveForm(), &main);
  brief = std::make_unique<StageTool>("Brief");
  brief->OnUnload = [this] { Destroy(); };
  user.WhenWindowOpens("Brief", [this] { user.ClosesWindow(); });
  brief->ShowModal();
  EXPECT_EQ(ActiveForm(), &main);
  EXPECT_EQ(Loaded(), 1u);
}

TEST_F(DestroyedWindow, LeavesNoViewBehind) {
  brief->Show();
  main.Show();
  EXPECT_EQ(Loaded(), 2u);
  Destroy();
  EXPECT_EQ(Loaded(), 1u);
  auto extra = std::make_unique<Button>(a, Button::Options{.text = FixedText("Extra")});
  a.Show();
  main.Show();
  extra.reset();
  EXPECT_FALSE(a.IsLoaded()) << "its view would show a control that is gone";
  EXPECT_EQ(Loaded(), 1u);
}

// --- Windows that the system cannot make ---

TEST(WindowFailures, WhateverCannotBeMadeIsToldAndAWindowIsThere) {
  const auto calls = ForEachCallThatFails([](Simulated::Machine& machine, Simulated::After after) {
    Form main(FixedText("Main"));
    MenuItem Tools(main, {.text = FixedText("&Tools")});
    MenuItem Open(Tools, {.text = FixedText("&Open")});
    StageTool tool("Tool");
    main.OnLoad = [&] {
      main.TranslateMenu();
      tool.Clock.Start();
    };
    tool.OnLoad = [&] { tool.Clock.Start(); };
    Open.OnClick = [&] { tool.Show(); };
    StartProgram(main);
    machine.FailAnyCall(after);
    machine.user.ChoosesMenu({"Tools", "Open"});
    if (machine.FailureHappened()) {
      EXPECT_THAT(machine.user.LastBox(), Shows(Icon::Critical, testing::_));
      EXPECT_THAT(machine.screen.Titles(), ElementsAre("Main"));
      EXPECT_FALSE(tool.Clock.IsRunning() && !tool.IsLoaded());
      machine.user.ChoosesMenu({"Tools", "Open"});
    }
    EXPECT_THAT(machine.screen.Titles(), ElementsAre("Tool"));
  });
  EXPECT_THAT(calls, ElementsAre("FormView::FormView Tool", "FormView::StartTimer Tool",
                                 "FormView::Show Tool"));
}

TEST_F(WindowLife, AMenuThatCannotBeMadeStaysAsItIs) {
  MenuItem Options(main, {.text = FixedText("&Options")});
  MenuItem Auto(Options, {.text = FixedText("&Auto")});
  machine.FailAnyCall(Simulated::After{0});
  EXPECT_THROW(Auto.SetChecked(true), RuntimeError);
  EXPECT_EQ(machine.FailedCall(), "FormView::MenuChanged Main");
  EXPECT_FALSE(Auto.IsChecked());
}

TEST_F(WindowLife, AModalWindowThatCannotBeShownLeavesNothingBehind) {
  machine.FailAnyCall(Simulated::After{1});
  EXPECT_THROW(a.ShowModal(), RuntimeError);
  EXPECT_EQ(machine.FailedCall(), "FormView::Show A");
  EXPECT_EQ(ActiveForm(), &main);
  EXPECT_EQ(Loaded(), 1u);
}

}  // namespace
