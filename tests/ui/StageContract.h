// What every machine promises of windows that follow each other on the stage. Included once by
// each machine's tests.
#pragma once

#include <gtest/gtest.h>

#include "tests/ui/ContractWindows.h"

class StageContract : public ContractTest {
 protected:
  using Lines = std::vector<std::string>;

  StageContract() { Platform::StartProgram(main); }
  static Lines Visible() { return TestMachine::VisibleWindows(); }

  ContractWindow main{"Main"};
  ContractTool tool{"Tool"};
  ContractTool other{"Other"};
};

TEST_F(StageContract, AToolTakesThePlaceOfTheMainWindowAndGivesItBack) {
  main.Delete.OnClick = [this] { tool.Show(); };
  TestMachine::Press("Alt+D");
  EXPECT_EQ(Visible(), Lines{"Tool"});
  EXPECT_EQ(TestMachine::ActiveWindow(), "Tool");
  EXPECT_EQ(TestMachine::Hears(), "Name, edit, Alt+N");
  tool.Submit.OnClick = [this] { tool.Leave(); };
  TestMachine::Press("Enter");
  EXPECT_EQ(Visible(), Lines{"Main"});
  EXPECT_EQ(TestMachine::ActiveWindow(), "Main");
  EXPECT_EQ(TestMachine::Hears(), "Delete, button, Alt+D") << "where the user left it";
}

TEST_F(StageContract, AWindowThatLeftKeepsItsContentsAndItsFocus) {
  tool.Show();
  TestMachine::Type("hill");
  tool.Submit.Focus();
  tool.Leave();
  tool.Show();
  EXPECT_EQ(TestMachine::Hears(), "OK, button");
  EXPECT_EQ(tool.Name.text(), "hill");
  EXPECT_EQ(tool.loads, 1);
  EXPECT_EQ(tool.unloads, 0);
}

TEST_F(StageContract, AnUnloadedWindowIsLoadedAnew) {
  tool.Show();
  tool.Unload();
  EXPECT_EQ(Visible(), Lines{"Main"});
  EXPECT_EQ(tool.unloads, 1);
  tool.Show();
  EXPECT_EQ(tool.loads, 2);
  EXPECT_EQ(TestMachine::Hears(), "Name, edit, Alt+N");
}

TEST_F(StageContract, ATextSurvivesUnloadingInTheModel) {
  tool.Show();
  TestMachine::Type("hill");
  tool.Unload();
  tool.Show();
  EXPECT_EQ(TestMachine::Hears(), "Name, edit, hill, Alt+N");
}

TEST_F(StageContract, TheCloseBoxUnloadsATool) {
  tool.Show();
  TestMachine::CloseWindow();
  EXPECT_EQ(tool.unloads, 1);
  EXPECT_EQ(Visible(), Lines{"Main"});
  tool.Show();
  TestMachine::Press("Alt+F4");
  EXPECT_EQ(tool.unloads, 2);
  EXPECT_EQ(Visible(), Lines{"Main"});
}

TEST_F(StageContract, AWindowMayHandleItsCloseBox) {
  int requests = 0;
  tool.OnClose = [&] { ++requests; };
  tool.Show();
  TestMachine::CloseWindow();
  EXPECT_EQ(requests, 1);
  EXPECT_EQ(Visible(), Lines{"Tool"});
}

TEST_F(StageContract, OneToolHandsOverToTheNext) {
  tool.Submit.OnClick = [this] {
    tool.Leave();
    EXPECT_EQ(Visible(), Lines{"Tool"}) << "until somebody takes its place";
    other.Show();
  };
  tool.Show();
  TestMachine::Press("Enter");
  EXPECT_EQ(Visible(), Lines{"Other"});
  EXPECT_EQ(TestMachine::ActiveWindow(), "Other");
}

TEST_F(StageContract, UnloadingTheMainWindowEndsTheProgram) {
  tool.Show();
  main.Unload();
  EXPECT_TRUE(Platform::HasProgramEnded());
  EXPECT_EQ(Visible(), Lines{});
}

TEST_F(StageContract, ClosingTheMainWindowEndsTheProgram) {
  TestMachine::CloseWindow();
  EXPECT_TRUE(Platform::HasProgramEnded());
  EXPECT_EQ(Visible(), Lines{});
}
