// What every machine promises of text boxes and lists. Included once by each machine's tests.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <new>

#include "tests/ui/ContractWindows.h"

using ControlsContract = ContractWindowTest;

// --- Text boxes ---

TEST_F(ControlsContract, TypingChangesTheText) {
  OpenWindow();
  window.Address.Focus();
  TestMachine::Type("aB.");
  EXPECT_EQ(Events(), (Lines{"change a", "change aB", "change aB."}));
  TestMachine::Press("Backspace");
  EXPECT_EQ(Events(), Lines{"change aB"});
  EXPECT_EQ(TestMachine::Hears(), "Address, edit, aB, Alt+A");
}

TEST_F(ControlsContract, TheCaretMovesByKeys) {
  OpenWindow();
  window.Address.SetText("lake");
  window.Address.Focus();
  TestMachine::Press("End");
  TestMachine::Press("Left");
  TestMachine::Type("x");
  TestMachine::Press("Home");
  TestMachine::Press("Delete");
  TestMachine::Press("Right");
  TestMachine::Type("y");
  EXPECT_EQ(window.Address.text(), "aykxe");
}

TEST_F(ControlsContract, EnteringATextBoxSelectsItsText) {
  window.Address.SetText("old.example");
  OpenWindow();
  TestMachine::Press("Tab");
  EXPECT_EQ(TestMachine::SelectedText(), "old.example");
  TestMachine::Type("n");
  EXPECT_EQ(window.Address.text(), "n");
}

TEST_F(ControlsContract, TheProgramSelectsAllText) {
  OpenWindow();
  window.Address.Focus();
  TestMachine::Type("wrong");
  window.Address.SelectAll();
  EXPECT_EQ(TestMachine::SelectedText(), "wrong");
  TestMachine::Type("r");
  EXPECT_EQ(window.Address.text(), "r");
}

TEST_F(ControlsContract, ControlAndASelectsAll) {
  OpenWindow();
  window.Address.Focus();
  TestMachine::Type("wrong");
  TestMachine::Press("Ctrl+A");
  EXPECT_EQ(TestMachine::SelectedText(), "wrong");
}

TEST_F(ControlsContract, AReadOnlyTextIsNotChanged) {
  window.Notes.SetText("Fast");
  OpenWindow();
  window.Notes.Focus();
  TestMachine::Type("x");
  TestMachine::Press("Delete");
  TestMachine::Press("Backspace");
  EXPECT_EQ(window.Notes.text(), "Fast");
  TestMachine::Press("Ctrl+A");
  EXPECT_EQ(TestMachine::SelectedText(), "Fast");
}

TEST_F(ControlsContract, WhatTheProgramWritesIsNoChangeOfTheUser) {
  OpenWindow();
  window.Address.SetText("a");
  window.Servers.Select(2);
  window.Servers.SetRows({"moor.example", "fell.example"}, 1);
  window.Servers.Add("hill.example");
  window.Servers.Clear();
  EXPECT_EQ(Events(), Lines{});
}

// --- Lists ---

TEST_F(ControlsContract, ArrowKeysMoveThroughAList) {
  OpenWindow();
  TestMachine::Press("Down");
  EXPECT_EQ(Events(), Lines{"select 1"});
  TestMachine::Press("End");
  TestMachine::Press("Up");
  TestMachine::Press("Home");
  EXPECT_EQ(Events(), (Lines{"select 2", "select 1", "select 0"}));
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 3, Alt+S");
}

TEST_F(ControlsContract, AtTheEndsOfAListTheArrowKeysStayOnTheRow) {
  OpenWindow();
  TestMachine::Press("Up");
  EXPECT_EQ(window.Servers.selected(), 0);
  TestMachine::Press("End");
  TestMachine::Press("Down");
  EXPECT_EQ(window.Servers.selected(), 2);
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hollow.example, 3 of 3, Alt+S");
}

TEST_F(ControlsContract, WhereNothingIsSelectedAnArrowKeySelectsTheFirstRow) {
  OpenWindow();
  for (const char* key : {"Down", "Up", "Right", "Left"}) {
    ContractWindow fresh("Fresh");
    fresh.Servers.SetRows({"hill.example", "lake.example"}, -1);
    fresh.Show();
    EXPECT_EQ(TestMachine::Hears(), "Servers, list, not selected, Alt+S");
    TestMachine::Press(key);
    EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 2, Alt+S") << key;
    EXPECT_EQ(fresh.events, Lines{"select 0"}) << key;
    fresh.Leave();
  }
}

// Whichever of these keys it is: the reader says the row at which the list begins, and the next key
// goes on from there.
TEST_F(ControlsContract, WhereNothingIsSelectedPagingKeysSelectTheFirstRowToo) {
  OpenWindow();
  for (const char* key : {"PageUp", "PageDown", "Home", "End"}) {
    ContractWindow fresh("Fresh");
    fresh.Servers.SetRows({"hill.example", "lake.example", "moor.example"}, -1);
    fresh.Show();
    TestMachine::Press(key);
    EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 3, Alt+S") << key;
    EXPECT_EQ(fresh.events, Lines{"select 0"}) << key;
    TestMachine::Press("End");
    EXPECT_EQ(TestMachine::Hears(), "Servers, list, moor.example, 3 of 3, Alt+S") << key;
    fresh.Leave();
  }
}

TEST_F(ControlsContract, AnArrowKeySelectsTheRowThatWasSelectedLast) {
  OpenWindow();
  window.Servers.Select(1);
  window.Servers.Select(-1);
  TestMachine::Press("Down");
  EXPECT_EQ(Events(), Lines{"select 1"});
  TestMachine::Press("Down");
  EXPECT_EQ(Events(), Lines{"select 2"}) << "and goes on from there";
}

TEST_F(ControlsContract, InAnEmptyListNoKeySelectsAnything) {
  OpenWindow();
  window.Servers.Clear();
  for (const char* key : {"Down", "Up", "Home", "End", "PageDown"}) TestMachine::Press(key);
  TestMachine::Type("h");
  EXPECT_EQ(Events(), Lines{});
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, empty, Alt+S");
}

TEST_F(ControlsContract, TypingALetterMovesToTheNextRowThatBeginsWithIt) {
  OpenWindow();
  TestMachine::Type("h");
  EXPECT_EQ(window.Servers.selected(), 2);
  TestMachine::Type("l");
  EXPECT_EQ(window.Servers.selected(), 1);
  TestMachine::Type("x");
  EXPECT_EQ(window.Servers.selected(), 1);
}

TEST_F(ControlsContract, ClicksOnRowsDoWhatTheArrowKeysDo) {
  OpenWindow();
  window.Address.Focus();
  TestMachine::ClickRow("lake.example");
  EXPECT_EQ(Events(), Lines{"select 1"});
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, lake.example, 2 of 3, Alt+S");
  TestMachine::DoubleClickRow("hollow.example");
  EXPECT_EQ(Events(), (Lines{"select 2", "double click"}));
}

TEST_F(ControlsContract, AClickOnTheSelectedRowIsAChoiceToo) {
  OpenWindow();
  TestMachine::ClickRow("hill.example");
  EXPECT_EQ(Events(), Lines{"select 0"});
  TestMachine::Press("Home");
  EXPECT_EQ(Events(), Lines{"select 0"}) << "and so is a key that leads there";
}

// --- Rows that come and go ---

TEST_F(ControlsContract, RowsAreSetTogetherWithTheSelection) {
  OpenWindow();
  window.Servers.SetRows({"moor.example", "fell.example"}, 1);
  EXPECT_EQ(window.Servers.count(), 2);
  EXPECT_EQ(window.Servers.row(0), "moor.example");
  EXPECT_EQ(window.Servers.selected(), 1);
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, fell.example, 2 of 2, Alt+S");
  TestMachine::Press("Up");
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, moor.example, 1 of 2, Alt+S");
  for (const int outside : {-1, 1, 2}) {
    window.Servers.SetRows({"tarn.example"}, outside);
    EXPECT_EQ(window.Servers.selected(), -1);
    EXPECT_EQ(TestMachine::Hears(), "Servers, list, not selected, Alt+S");
  }
}

TEST_F(ControlsContract, RowsThatAreSetBeforeLoadingAreShown) {
  ContractWindow late("Late");
  late.Servers.SetRows({"moor.example", "fell.example", "tarn.example"}, 2);
  late.Servers.Remove(0);
  OpenWindow();
  late.Show();
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, tarn.example, 2 of 2, Alt+S");
}

TEST_F(ControlsContract, ARemovalIsToldToWhatFollowsTheSelection) {
  OpenWindow();
  window.Servers.Remove(0);
  EXPECT_EQ(Events(), Lines{"select 0"}) << "another row has its place";
  window.Servers.Select(1);
  window.Servers.Remove(1);
  EXPECT_EQ(Events(), Lines{"select 0"});
  window.Servers.Remove(0);
  EXPECT_EQ(Events(), Lines{"select -1"});
}

TEST_F(ControlsContract, ARemovalBesideTheSelectedRowLeavesItSelected) {
  OpenWindow();
  window.Servers.Select(1);
  window.Servers.Remove(2);
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, lake.example, 2 of 2, Alt+S");
  window.Servers.Remove(0);
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, lake.example, 1 of 1, Alt+S");
  EXPECT_EQ(window.Servers.selected(), 0);
}

TEST_F(ControlsContract, TheWindowMaySayWhatIsSelectedAfterARemoval) {
  OpenWindow();
  window.Servers.Remove(0, 1);
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hollow.example, 2 of 2, Alt+S");
  EXPECT_EQ(Events(), Lines{"select 1"});
  window.Servers.Remove(0, -1);
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, not selected, Alt+S");
  EXPECT_EQ(Events(), Lines{"select -1"});
  window.Servers.Remove(0, 0);
  EXPECT_EQ(window.Servers.selected(), -1) << "there is no row left";
}

TEST_F(ControlsContract, ARemovalOutsideTheListDoesNothing) {
  OpenWindow();
  for (const int outside : {-1, 3, 4}) {
    window.Servers.Remove(outside);
    window.Servers.Remove(outside, 2);
  }
  EXPECT_EQ(Events(), Lines{});
  EXPECT_EQ(window.Servers.count(), 3);
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 3, Alt+S");
}

// --- Rows for which there is no memory ---

TEST_F(ControlsContract, ARowThatCannotBeAddedLeavesTheListAsItWas) {
  OpenWindow();
  window.Servers.Select(1);
  TestMachine::RefuseRow("moor.example");
  EXPECT_THROW(window.Servers.Add("moor.example"), std::bad_alloc);
  EXPECT_EQ(window.Servers.count(), 3);
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, lake.example, 2 of 3, Alt+S");
  window.Servers.Add("fell.example");
  TestMachine::Press("End");
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, fell.example, 4 of 4, Alt+S");
}

TEST_F(ControlsContract, RowsThatCannotBeSetLeaveTheListAsItWas) {
  OpenWindow();
  window.Servers.Select(1);
  TestMachine::RefuseRow("moor.example");
  EXPECT_THROW(window.Servers.SetRows({"fell.example", "moor.example"}, 0), std::bad_alloc);
  EXPECT_EQ(window.Servers.count(), 3);
  EXPECT_EQ(window.Servers.row(0), "hill.example");
  EXPECT_EQ(window.Servers.selected(), 1);
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, lake.example, 2 of 3, Alt+S");
  TestMachine::Press("Down");
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hollow.example, 3 of 3, Alt+S");
  EXPECT_EQ(Events(), Lines{"select 2"});
}

TEST_F(ControlsContract, RowsThatCannotEvenBePutBackLeaveAnEmptyList) {
  OpenWindow();
  TestMachine::RefuseRow("hill.example");
  EXPECT_THROW(window.Servers.SetRows({"fell.example", "hill.example"}, 0), std::bad_alloc);
  EXPECT_EQ(window.Servers.count(), 0);
  EXPECT_EQ(window.Servers.selected(), -1);
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, empty, Alt+S");
}

// --- Selections that nobody told of ---

TEST_F(ControlsContract, AButtonActsOnTheRowThatAnotherProgramHasSelected) {
  OpenWindow();
  TestMachine::SelectRowUnnoticed(1);
  TestMachine::Press("Enter");
  EXPECT_EQ(Events(), (Lines{"select 1", "submit"}));
  EXPECT_EQ(window.Servers.selected(), 1);
  TestMachine::SelectRowUnnoticed(-1);
  TestMachine::ClickButton("Delete");
  EXPECT_EQ(Events(), (Lines{"select -1", "delete"}));
  TestMachine::Press("Alt+D");
  EXPECT_EQ(Events(), Lines{"delete"}) << "told once";
}

TEST_F(ControlsContract, AKeyActsOnTheRowThatAnotherProgramHasSelected) {
  std::vector<int> rows;
  window.OnKeyDown = [&](Platform::KeyEvent& key) {
    if (key.code == Platform::Key::Delete) rows.push_back(window.Servers.selected());
  };
  OpenWindow();
  TestMachine::SelectRowUnnoticed(2);
  TestMachine::Press("Delete");
  EXPECT_EQ(rows, std::vector<int>{2});
  EXPECT_EQ(Events(), Lines{"select 2"});
}

TEST_F(ControlsContract, WhatFollowsTheSelectionMayEndTheEvent) {
  OpenWindow();
  ContractWindow tool("Tool");
  tool.Servers.SetRows({"moor.example", "fell.example"}, 0);
  const std::vector<std::function<void()>> ways = {[&] { tool.GoBack(); }, [&] { tool.Unload(); }};
  for (const std::function<void()>& leave : ways) {
    tool.Servers.OnSelect = leave;
    for (const char* key : {"Enter", "Alt+D", "Escape"}) {
      tool.Show();
      tool.Servers.Select(0);
      TestMachine::SelectRowUnnoticed(1);
      TestMachine::Press(key);
      EXPECT_EQ(Visible(), Lines{"Server manager"}) << key;
      EXPECT_EQ(tool.events, Lines{}) << key;
      EXPECT_EQ(Events(), Lines{}) << key << " goes to no other window";
    }
  }
}
