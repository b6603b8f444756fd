// What every machine promises of windows that follow each other on the stage. Included once by
// each machine's tests.
#pragma once

#include <gtest/gtest.h>

#include "tests/ui/ContractWindows.h"
#include "ui/MsgBox.h"

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

TEST_F(StageContract, EachWindowOfAChainGoesBackToItsOpener) {
  ContractTool last("Last");
  tool.Show();
  other.Show();
  last.Show();
  EXPECT_EQ(Visible(), Lines{"Last"});
  TestMachine::CloseWindow();
  EXPECT_EQ(Visible(), Lines{"Other"});
  other.GoBack();
  EXPECT_EQ(Visible(), Lines{"Tool"});
  TestMachine::CloseWindow();
  EXPECT_EQ(Visible(), Lines{"Main"});
}

TEST_F(StageContract, AWindowThatFindsNothingToShowSaysSoAndDoesNotCome) {
  const auto refuse = [this](void (Platform::Form::*goes)()) {
    tool.OnLoad = [this, goes] {
      TestMachine::WhenModalWindowOpens([] {
        EXPECT_EQ(TestMachine::ActiveWindow(), "Language");
        EXPECT_EQ(Visible(), (Lines{"Language", "Other"}));
        TestMachine::Press("Enter");
      });
      Platform::MsgBox("No languages are installed.", "Language", Platform::Icon::Critical);
      (tool.*goes)();
    };
  };
  other.Submit.OnClick = [this] { tool.Show(); };
  other.Show();
  refuse(&Platform::Form::Unload);
  TestMachine::Press("Enter");
  EXPECT_EQ(Visible(), Lines{"Other"});
  EXPECT_EQ(TestMachine::Hears(), "Name, edit, Alt+N");
  EXPECT_FALSE(tool.IsLoaded());
  EXPECT_EQ(tool.unloads, 1);
  for (const auto goes : {&Platform::Form::Leave, &Platform::Form::GoBack}) {
    refuse(goes);
    TestMachine::Press("Enter");
    EXPECT_EQ(Visible(), Lines{"Other"});
    EXPECT_TRUE(tool.IsLoaded());
    tool.Unload();
  }
  other.Unload();
  EXPECT_EQ(Visible(), Lines{"Main"});
}

TEST_F(StageContract, AWindowThatIsShownWhileAnotherLoadsStandsOverIt) {
  tool.OnLoad = [this] { other.Show(); };
  tool.Show();
  EXPECT_EQ(Visible(), Lines{"Other"});
  other.GoBack();
  EXPECT_EQ(Visible(), Lines{"Tool"});
  tool.GoBack();
  EXPECT_EQ(Visible(), Lines{"Main"});
}

// A modal window ends in each way in which one on the stage goes.
TEST_F(StageContract, AModalWindowEndsInEveryWay) {
  using Platform::Form;
  int unloads = 0;
  for (const auto goes : {&Form::EndModal, &Form::Unload, &Form::Leave, &Form::GoBack}) {
    tool.Submit.OnClick = [&] { (tool.*goes)(); };
    TestMachine::WhenModalWindowOpens([] {
      EXPECT_EQ(Visible(), (Lines{"Main", "Tool"}));
      TestMachine::Press("Enter");
    });
    tool.ShowModal();
    EXPECT_EQ(Visible(), Lines{"Main"});
    EXPECT_FALSE(tool.IsLoaded());
    EXPECT_EQ(tool.unloads, ++unloads);
  }
  for (const auto goes : {&Form::EndModal, &Form::Unload, &Form::Leave, &Form::GoBack}) {
    tool.OnLoad = [&] { (tool.*goes)(); };
    tool.ShowModal();
    EXPECT_EQ(Visible(), Lines{"Main"});
    EXPECT_FALSE(tool.IsLoaded());
    EXPECT_EQ(tool.unloads, ++unloads);
  }
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, empty, Alt+S");
}

TEST_F(StageContract, WhatAModalWindowShowsComesWhenItHasEnded) {
  tool.Show();
  ContractTool question("Question");
  question.Submit.OnClick = [&] {
    tool.Unload();
    other.Show();
    EXPECT_EQ(Visible(), (Lines{"Question", "Tool"}));
    EXPECT_TRUE(tool.IsLoaded());
    question.EndModal();
  };
  TestMachine::WhenModalWindowOpens([] { TestMachine::Press("Enter"); });
  question.ShowModal();
  EXPECT_EQ(Visible(), Lines{"Other"});
  EXPECT_FALSE(tool.IsLoaded());
  other.GoBack();
  EXPECT_EQ(Visible(), Lines{"Main"});
}
