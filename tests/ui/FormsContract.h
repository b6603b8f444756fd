// What every machine promises of a window: what it says, and where the focus is.
// Included once by each machine's tests.
#pragma once

#include <gmock/gmock.h>

#include "tests/ui/ContractWindows.h"

using FormsContract = ContractWindowTest;

TEST_F(FormsContract, AWindowOpensWithTheFocusOnItsFirstUsefulControl) {
  OpenWindow();
  EXPECT_EQ(Visible(), Lines{"Server manager"});
  EXPECT_EQ(TestMachine::ActiveWindow(), "Server manager");
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 3, Alt+S");
  EXPECT_TRUE(window.Servers.HasFocus());
}

TEST_F(FormsContract, LoadingMayMoveTheFocus) {
  window.OnLoad = [this] { window.Address.Focus(); };
  OpenWindow();
  EXPECT_EQ(TestMachine::Hears(), "Address, edit, Alt+A");
}

TEST_F(FormsContract, EachControlIsHeardByItsNameRoleAndState) {
  window.Notes.SetText("Fast and near.");
  OpenWindow();
  window.Servers.Clear();
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, empty, Alt+S");
  TestMachine::Press("Tab");
  EXPECT_EQ(TestMachine::Hears(), "Address, edit, Alt+A");
  TestMachine::Press("Tab");
  EXPECT_EQ(TestMachine::Hears(), "Notes, edit, read only, Fast and near., Alt+N");
  TestMachine::Press("Tab");
  EXPECT_EQ(TestMachine::Hears(), "Delete, button, Alt+D");
  TestMachine::Press("Tab");
  EXPECT_EQ(TestMachine::Hears(), "OK, button");
  TestMachine::Press("Tab");
  EXPECT_EQ(TestMachine::Hears(), "Cancel, button");
}

TEST_F(FormsContract, WhatTheProgramChangesIsHeardAtOnce) {
  OpenWindow();
  window.SetTitle("Servers of Tom & Jane");
  EXPECT_EQ(TestMachine::ActiveWindow(), "Servers of Tom & Jane");
  window.Servers.SetCaption("&Hosts");
  window.Servers.Select(2);
  EXPECT_EQ(TestMachine::Hears(), "Hosts, list, hollow.example, 3 of 3, Alt+H");
  window.Servers.Add("moor.example");
  EXPECT_EQ(TestMachine::Hears(), "Hosts, list, hollow.example, 3 of 4, Alt+H");
  window.Servers.Select(-1);
  EXPECT_EQ(TestMachine::Hears(), "Hosts, list, not selected, Alt+H");
  window.Address.SetText("play.example");
  window.Address.Focus();
  EXPECT_EQ(TestMachine::Hears(), "Address, edit, play.example, Alt+A");
}

TEST_F(FormsContract, AmpersandsOfForeignNamesAreHeard) {
  window.Servers.Add("Tom & Jane's");
  Platform::StartProgram(window);
  window.Servers.Select(0);
  window.Servers.SetCaption(Platform::AsCaption("Friends & family"));
  EXPECT_EQ(TestMachine::Hears(), "Friends & family, list, Tom & Jane's, 1 of 1");
  window.Delete.SetCaption(Platform::AsCaption("A&B"));
  window.Delete.Focus();
  EXPECT_EQ(TestMachine::Hears(), "A&B, button");
}

TEST_F(FormsContract, RemovingRowsKeepsANeighbourSelected) {
  OpenWindow();
  window.Servers.Remove(0);
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, lake.example, 1 of 2, Alt+S");
  window.Servers.Select(1);
  window.Servers.Remove(1);
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, lake.example, 1 of 1, Alt+S");
  window.Servers.Remove(0);
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, empty, Alt+S");
  EXPECT_EQ(window.Servers.selected(), -1);
}

TEST_F(FormsContract, ATextOfSeveralLinesKeepsThem) {
  window.Notes.SetText("one\r\ntwo\r\n");
  OpenWindow();
  window.Notes.Focus();
  EXPECT_EQ(TestMachine::Hears(), "Notes, edit, read only, one\r\ntwo\r\n, Alt+N");
}

TEST_F(FormsContract, AFocusedControlThatIsDisabledHandsTheFocusOn) {
  OpenWindow();
  window.Servers.SetEnabled(false);
  EXPECT_EQ(TestMachine::Hears(), "Address, edit, Alt+A");
  window.Address.SetVisible(false);
  EXPECT_EQ(TestMachine::Hears(), "Notes, edit, read only, Alt+N");
  window.Ccl.Focus();
  window.Ccl.SetEnabled(false);
  EXPECT_EQ(TestMachine::Hears(), "Notes, edit, read only, Alt+N") << "on from the start again";
}

TEST_F(FormsContract, AWindowWithoutControlsHasTheFocusItself) {
  Platform::Form main(FixedText("Utility Pack"), {.isDialog = false});
  std::vector<int> keys;
  main.OnKeyDown = [&](Platform::KeyEvent& key) { keys.push_back(key.code); };
  Platform::StartProgram(main);
  EXPECT_EQ(TestMachine::Hears(), "Utility Pack, window");
  TestMachine::Press("Ctrl+P");
  EXPECT_THAT(keys, testing::Contains('P'));
}

TEST_F(FormsContract, AWindowThatOnlySaysSomethingHasTheFocusItselfAndItsNewTitleIsHeard) {
  struct Recording final : Platform::Form {
    Recording() : Form(FixedText("Recording...")) {}
    Platform::Label Length{*this, {.text = FixedText("Press Space to stop.")}};
  } recording;
  std::vector<int> keys;
  recording.OnKeyDown = [&](Platform::KeyEvent& key) {
    keys.push_back(key.code);
    key.isHandled = true;
  };
  OpenWindow();
  recording.Show();
  EXPECT_EQ(Visible(), Lines{"Recording..."});
  EXPECT_EQ(TestMachine::Hears(), "Recording..., window");
  recording.SetTitle("Playing...");
  EXPECT_EQ(TestMachine::Hears(), "Playing..., window");
  for (const char* key : {"Space", "Enter", "Tab", "Escape"}) TestMachine::Press(key);
  EXPECT_EQ(keys, (std::vector<int>{Platform::Key::Space, Platform::Key::Enter, Platform::Key::Tab,
                                    Platform::Key::Escape}));
  EXPECT_EQ(TestMachine::Hears(), "Playing..., window");
  recording.OnKeyDown = nullptr;
  for (const char* key : {"Space", "Enter", "Tab", "Down", "Escape"}) TestMachine::Press(key);
  EXPECT_EQ(TestMachine::Hears(), "Playing..., window") << "there is nowhere to go";
  TestMachine::Press("Alt+F4");
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 3, Alt+S");
}
