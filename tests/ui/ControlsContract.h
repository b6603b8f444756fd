// What every machine promises of text boxes and lists. Included once by each machine's tests.
#pragma once

#include <gtest/gtest.h>

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
  window.Servers.Remove(2);
  EXPECT_EQ(Events(), Lines{});
}

// --- Lists ---

TEST_F(ControlsContract, ArrowKeysMoveThroughAList) {
  OpenWindow();
  TestMachine::Press("Down");
  EXPECT_EQ(Events(), Lines{"select 1"});
  TestMachine::Press("End");
  TestMachine::Press("Down");
  EXPECT_EQ(Events(), Lines{"select 2"}) << "the last row is the end";
  TestMachine::Press("Up");
  TestMachine::Press("Home");
  TestMachine::Press("Up");
  EXPECT_EQ(Events(), (Lines{"select 1", "select 0"}));
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 3, Alt+S");
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
