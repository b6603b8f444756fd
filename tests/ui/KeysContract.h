// What every machine promises of working a window by its keys: Tab, Enter, Escape, Space, access
// keys, and the keys that the window itself wants. Included once by each machine's tests.
#pragma once

#include <gmock/gmock.h>

#include "tests/ui/ContractWindows.h"
#include "ui/MsgBox.h"

using KeysContract = ContractWindowTest;

TEST_F(KeysContract, TabGoesRoundInTheOrderOfTheControls) {
  OpenWindow();
  const std::vector<Platform::Control*> order = {&window.Address, &window.Notes, &window.Delete,
                                                 &window.Submit,  &window.Ccl,   &window.Servers};
  for (const Platform::Control* control : order) {
    TestMachine::Press("Tab");
    EXPECT_EQ(window.focus(), control) << TestMachine::Hears();
  }
  for (int i = 4; i >= 0; --i) {
    TestMachine::Press("Shift+Tab");
    EXPECT_EQ(window.focus(), order[static_cast<size_t>(i)]) << TestMachine::Hears();
  }
}

TEST_F(KeysContract, TabPassesDisabledAndHiddenControls) {
  OpenWindow();
  window.Address.SetEnabled(false);
  window.Notes.SetVisible(false);
  TestMachine::Press("Tab");
  EXPECT_EQ(TestMachine::Hears(), "Delete, button, Alt+D");
  window.Address.SetEnabled(true);
  window.Notes.SetVisible(true);
  TestMachine::Press("Shift+Tab");
  EXPECT_EQ(TestMachine::Hears(), "Notes, edit, read only, Alt+N");
}

TEST_F(KeysContract, EnterPressesTheDefaultButtonFromEveryOtherControl) {
  OpenWindow();
  for (Platform::Control* control :
       std::vector<Platform::Control*>{&window.Servers, &window.Address, &window.Notes}) {
    control->Focus();
    TestMachine::Press("Enter");
    EXPECT_EQ(Events(), Lines{"submit"});
  }
}

TEST_F(KeysContract, EnterPressesTheFocusedButton) {
  OpenWindow();
  window.Delete.Focus();
  TestMachine::Press("Enter");
  EXPECT_EQ(Events(), Lines{"delete"});
  window.Ccl.Focus();
  TestMachine::Press("Enter");
  EXPECT_EQ(Events(), Lines{"cancel"});
  window.Servers.Focus();
  TestMachine::Press("Enter");
  EXPECT_EQ(Events(), Lines{"submit"}) << "the default button is the default again";
}

TEST_F(KeysContract, EnterDoesNothingWhileTheDefaultButtonIsDisabled) {
  OpenWindow();
  window.Submit.SetEnabled(false);
  TestMachine::Press("Enter");
  EXPECT_EQ(Events(), Lines{});
  window.Submit.SetEnabled(true);
  TestMachine::Press("Enter");
  EXPECT_EQ(Events(), Lines{"submit"});
}

TEST_F(KeysContract, EscapePressesTheCancelButtonFromEveryControl) {
  OpenWindow();
  for (int i = 0; i < 6; ++i) {
    TestMachine::Press("Escape");
    EXPECT_EQ(Events(), Lines{"cancel"}) << TestMachine::Hears();
    TestMachine::Press("Tab");
  }
}

TEST_F(KeysContract, EscapeDoesNothingWithoutACancelButton) {
  ContractTool tool("Tool");
  Platform::StartProgram(tool);
  TestMachine::Press("Escape");
  EXPECT_EQ(Visible(), Lines{"Tool"});
  EXPECT_FALSE(Platform::HasProgramEnded());
}

TEST_F(KeysContract, SpacePressesTheFocusedButton) {
  OpenWindow();
  window.Delete.Focus();
  TestMachine::Press("Space");
  EXPECT_EQ(Events(), Lines{"delete"});
}

TEST_F(KeysContract, AnAccessKeyReachesTheControlBehindItsLabel) {
  OpenWindow();
  TestMachine::Press("Alt+A");
  EXPECT_EQ(TestMachine::Hears(), "Address, edit, Alt+A");
  TestMachine::Press("Alt+N");
  EXPECT_EQ(TestMachine::Hears(), "Notes, edit, read only, Alt+N");
  TestMachine::Press("Alt+S");
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 3, Alt+S");
  EXPECT_EQ(Events(), Lines{});
}

TEST_F(KeysContract, AnAccessKeyPressesItsButton) {
  OpenWindow();
  TestMachine::Press("Alt+D");
  EXPECT_EQ(Events(), Lines{"delete"});
}

TEST_F(KeysContract, TheAccessKeyOfADisabledControlDoesNothing) {
  OpenWindow();
  window.Address.SetEnabled(false);
  window.Delete.SetEnabled(false);
  TestMachine::Press("Alt+D");
  TestMachine::Press("Alt+A");
  EXPECT_EQ(Events(), Lines{});
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 3, Alt+S");
}

TEST_F(KeysContract, AClickedButtonHasTheFocus) {
  OpenWindow();
  TestMachine::ClickButton("Delete");
  EXPECT_EQ(Events(), Lines{"delete"});
  EXPECT_EQ(TestMachine::Hears(), "Delete, button, Alt+D");
}

TEST_F(KeysContract, TheWindowSeesKeysBeforeTheControl) {
  std::vector<std::pair<int, int>> keys;
  window.OnKeyDown = [&](Platform::KeyEvent& key) { keys.emplace_back(key.code, key.shift); };
  OpenWindow();
  TestMachine::Press("Down");
  TestMachine::Press("Ctrl+N");
  TestMachine::Press("Ctrl+Shift+N");
  TestMachine::Press("Alt+C");
  TestMachine::Press("Escape");
  using Pair = std::pair<int, int>;
  EXPECT_THAT(keys, testing::IsSupersetOf({Pair{Platform::Key::Down, 0}, Pair{'N', 2}, Pair{'N', 3},
                                           Pair{'C', 4}, Pair{Platform::Key::Escape, 0}}));
  EXPECT_EQ(Events(), (Lines{"select 1", "cancel"})) << "keys that it does not use go on";
}

TEST_F(KeysContract, AKeyThatTheWindowUsedGoesNoFurther) {
  window.OnKeyDown = [](Platform::KeyEvent& key) { key.isHandled = true; };
  OpenWindow();
  for (const char* key : {"Down", "Enter", "Escape", "Tab", "Alt+D"}) TestMachine::Press(key);
  EXPECT_EQ(Events(), Lines{});
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 3, Alt+S");
}

TEST_F(KeysContract, AKeyThatShowsAnotherWindowMeansNothingToEither) {
  ContractTool tool("Tool");
  int submits = 0;
  tool.Submit.OnClick = [&] { ++submits; };
  window.OnKeyDown = [&](Platform::KeyEvent&) { tool.Show(); };
  OpenWindow();
  for (const char* key : {"Enter", "Escape", "Down", "Alt+D"}) {
    TestMachine::Press(key);
    EXPECT_EQ(Visible(), Lines{"Tool"}) << key;
    EXPECT_EQ(TestMachine::Hears(), "Name, edit, Alt+N") << key;
    tool.Unload();
  }
  EXPECT_EQ(Events(), Lines{});
  EXPECT_EQ(submits, 0);
  EXPECT_EQ(window.Servers.selected(), 0);
}

TEST_F(KeysContract, ArrowKeysLeadRoundAmongNeighbouringButtons) {
  OpenWindow();
  window.Delete.Focus();
  const std::vector<std::pair<const char*, const char*>> steps = {
      {"Right", "OK, button"},  {"Down", "Cancel, button"}, {"Down", "Delete, button, Alt+D"},
      {"Up", "Cancel, button"}, {"Left", "OK, button"},     {"Left", "Delete, button, Alt+D"},
  };
  for (const auto& [key, heard] : steps) {
    TestMachine::Press(key);
    EXPECT_EQ(TestMachine::Hears(), heard) << key;
  }
  window.Submit.SetEnabled(false);
  TestMachine::Press("Right");
  EXPECT_EQ(TestMachine::Hears(), "Cancel, button");
  TestMachine::Press("Enter");
  EXPECT_EQ(Events(), Lines{"cancel"});
}

TEST_F(KeysContract, KeysThatEditStayWithATextBox) {
  std::vector<int> keys;
  window.OnKeyDown = [&](Platform::KeyEvent& key) {
    keys.push_back(key.code);
    key.isHandled = true;
  };
  OpenWindow();
  window.Address.SetText("lake");
  window.Address.Focus();
  TestMachine::Press("End");
  TestMachine::Type("xy");
  for (const char* key : {"Home", "Delete", "End", "Backspace"}) TestMachine::Press(key);
  EXPECT_EQ(window.Address.text(), "akex");
  EXPECT_EQ(keys, std::vector<int>{});
  TestMachine::Press("Ctrl+N");
  EXPECT_THAT(keys, testing::Contains('N'));
}

TEST_F(KeysContract, ABoxThatAKeyOpenedIsAnsweredWhicheverKeyIsLetGoFirst) {
  auto answer = Platform::Answer::No;
  window.OnKeyDown = [&](Platform::KeyEvent& key) {
    if (key.code != 'C' || key.shift != Platform::Shift::Alt) return;
    key.isHandled = true;
    answer = Platform::MsgBox("Really?", "Question", Platform::Icon::Question,
                              Platform::Buttons::YesNoDefaultNo);
  };
  OpenWindow();
  TestMachine::WhenModalWindowOpens([] {
    TestMachine::LetGoOfKeys();
    TestMachine::Press("Y");
  });
  TestMachine::HoldDown("Alt+C");
  EXPECT_EQ(answer, Platform::Answer::Yes);
}
