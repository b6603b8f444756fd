// What every machine promises while a long step runs: nothing that the user does begins anything,
// and nothing of it is left over. Included once by each machine's tests.
#pragma once

#include <gmock/gmock.h>

#include "platform/LongStep.h"
#include "tests/ui/ContractWindows.h"
#include "ui/InputBox.h"
#include "ui/MsgBox.h"

using LongStepContract = ContractWindowTest;

TEST_F(LongStepContract, NothingThatTheUserDoesBeginsAnything) {
  OpenWindow();
  {
    const Platform::LongStep step;
    for (const char* key : {"Enter", "Escape", "Down", "End", "Tab", "Alt+D", "Alt+A", "Alt+F4"}) {
      TestMachine::Press(key);
    }
    TestMachine::Type("l");
    TestMachine::ClickButton("Delete");
    TestMachine::ClickRow("lake.example");
    TestMachine::DoubleClickRow("hollow.example");
    TestMachine::CloseWindow();
    TestMachine::CloseFromTaskbar("Server manager");
    EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 3, Alt+S");
  }
  EXPECT_EQ(Events(), Lines{});
  EXPECT_EQ(Visible(), Lines{"Server manager"});
  EXPECT_FALSE(Platform::HasProgramEnded());
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 3, Alt+S");
  TestMachine::Press("Enter");
  EXPECT_EQ(Events(), Lines{"submit"}) << "the step is over";
}

TEST_F(LongStepContract, ATextStaysAsItIs) {
  window.Address.SetText("play.example");
  OpenWindow();
  window.Address.Focus();
  {
    const Platform::LongStep step;
    TestMachine::Type("x");
    TestMachine::Press("Delete");
  }
  EXPECT_EQ(TestMachine::Hears(), "Address, edit, play.example, Alt+A");
  EXPECT_EQ(Events(), Lines{});
}

TEST_F(LongStepContract, NoMenuItemIsChosen) {
  Platform::Form main(FixedText("Utility Pack"), {.isDialog = false});
  Platform::MenuItem File(main, {.text = FixedText("&File")});
  Platform::MenuItem Close(File, {.text = FixedText("&Close")});
  int chosen = 0;
  Close.OnClick = [&] { ++chosen; };
  main.OnLoad = [&] { main.TranslateMenu(); };
  Platform::StartProgram(main);
  {
    const Platform::LongStep step;
    TestMachine::ChooseMenu({"&File", "&Close"});
  }
  EXPECT_EQ(chosen, 0);
  TestMachine::ChooseMenu({"&File", "&Close"});
  EXPECT_EQ(chosen, 1);
}

TEST_F(LongStepContract, KeysThatCameMeanwhileAreDroppedAtItsEnd) {
  OpenWindow();
  {
    const Platform::LongStep step;
    for (const char* key : {"Enter", "Escape", "Alt+F4"}) TestMachine::PressWhileBusy(key);
    step.AnswerOthers();
  }
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 3, Alt+S");
  EXPECT_EQ(Events(), Lines{});
  EXPECT_EQ(Visible(), Lines{"Server manager"});
}

TEST_F(LongStepContract, TheBoxAfterItIsNotAnsweredByAKeyThatCameBefore) {
  OpenWindow();
  {
    const Platform::LongStep step;
    TestMachine::PressWhileBusy("Enter");
  }
  TestMachine::WhenModalWindowOpens([] {
    EXPECT_EQ(TestMachine::ActiveWindow(), "Done");
    TestMachine::Press("Enter");
  });
  Platform::MsgBox("It is written.", "Done", Platform::Icon::Information);
  EXPECT_EQ(Events(), Lines{});
}

TEST_F(LongStepContract, AStepWithinAStepEndsWithTheOuterOne) {
  OpenWindow();
  {
    const Platform::LongStep outer;
    { const Platform::LongStep inner; }
    TestMachine::Press("Enter");
    EXPECT_TRUE(Platform::LongStep::IsRunning());
  }
  EXPECT_EQ(Events(), Lines{});
  EXPECT_FALSE(Platform::LongStep::IsRunning());
}

TEST_F(LongStepContract, ABoxThatTheStepShowsIsAnswered) {
  OpenWindow();
  const Platform::LongStep step;
  TestMachine::PressWhileBusy("Enter");  // of before the box
  TestMachine::WhenModalWindowOpens([] {
    EXPECT_EQ(TestMachine::ActiveWindow(), "Replace");
    TestMachine::Press("Alt+Y");
  });
  EXPECT_EQ(Platform::MsgBox("Really?", "Replace", Platform::Icon::Question,
                             Platform::Buttons::YesNoDefaultNo),
            Platform::Answer::Yes);
  TestMachine::WhenModalWindowOpens([] {
    TestMachine::Type("hill");
    TestMachine::Press("Enter");
  });
  EXPECT_EQ(Platform::InputBox("Another name?", "Replace"), "hill");
  TestMachine::Press("Enter");
  EXPECT_EQ(Events(), Lines{}) << "the step goes on";
}

// The keyboard repeats a key that is held down; nobody means to answer a box with that.
TEST_F(LongStepContract, AKeyThatIsHeldDownThroughItAnswersNoBoxUntilItIsPressedAnew) {
  auto answer = Platform::Answer::No;
  window.Submit.OnClick = [&] {
    { const Platform::LongStep step; }
    answer = Platform::MsgBox("It is written. Another one?", "Done", Platform::Icon::Question,
                              Platform::Buttons::YesNo);
  };
  OpenWindow();
  TestMachine::WhenModalWindowOpens([] {
    for (int times = 0; times < 3 && TestMachine::ActiveWindow() == "Done"; ++times) {
      TestMachine::RepeatKey();
    }
    EXPECT_EQ(TestMachine::ActiveWindow(), "Done");
    TestMachine::LetGoOfKeys();
    TestMachine::Press("N");
  });
  TestMachine::HoldDown("Enter");
  EXPECT_EQ(answer, Platform::Answer::No);

  TestMachine::WhenModalWindowOpens([] {
    TestMachine::LetGoOfKeys();
    TestMachine::Press("Enter");
  });
  TestMachine::HoldDown("Enter");
  EXPECT_EQ(answer, Platform::Answer::Yes) << "a key that is pressed anew counts";
}

TEST_F(LongStepContract, AKeyThatIsHeldDownAfterItIsRepeated) {
  OpenWindow();
  { const Platform::LongStep step; }
  TestMachine::HoldDown("Down");
  TestMachine::RepeatKey();
  TestMachine::LetGoOfKeys();
  EXPECT_EQ(Events(), (Lines{"select 1", "select 2"}));
}
