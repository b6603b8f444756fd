// What every machine promises of windows: what they show and say, how they are worked by keyboard,
// and how they follow each other on the stage. Included once by each machine's tests.
#pragma once

#include <gmock/gmock.h>

#include <utility>

#include "base/RuntimeError.h"
#include "platform/Forms.h"
#include "tests/platform/TestMachine.h"

// A window with one control of each kind.
class ContractWindow final : public Platform::Form {
 public:
  explicit ContractWindow(const char* title = "Server manager") : Form(FixedText(title)) {
    Servers.OnSelect = [this] { events.push_back("select " + std::to_string(Servers.selected())); };
    Servers.OnDoubleClick = [this] { events.push_back("double click"); };
    Address.OnChange = [this] { events.push_back("change " + Address.text()); };
    Delete.OnClick = [this] { events.push_back("delete"); };
    Submit.OnClick = [this] { events.push_back("submit"); };
    Ccl.OnClick = [this] { events.push_back("cancel"); };
  }

  Platform::Label Explanation{*this, {.text = FixedText("Choose a server.")}};
  Platform::ListBox Servers{*this, {.label = FixedText("&Servers")}};
  Platform::TextBox Address{*this, {.label = FixedText("&Address")}};
  Platform::TextBox Notes{*this,
                          {.label = FixedText("&Notes"), .isReadOnly = true, .isMultiline = true}};
  Platform::Button Delete{*this, {.text = FixedText("&Delete")}};
  Platform::Button Submit{*this, {.text = FixedText("OK"), .isDefault = true}};
  Platform::Button Ccl{*this, {.text = FixedText("Cancel"), .isCancel = true}};

  std::vector<std::string> events;  // what the user did, in order
};

// A tool with a single text box.
class ContractTool final : public Platform::Form {
 public:
  explicit ContractTool(const char* title) : Form(FixedText(title)) {
    OnLoad = [this] { ++loads; };
    OnUnload = [this] { ++unloads; };
  }

  Platform::TextBox Name{*this, {.label = FixedText("&Name")}};
  Platform::Button Submit{*this, {.text = FixedText("OK"), .isDefault = true}};
  int loads = 0;
  int unloads = 0;
};

class FormsContract : public ContractTest {
 protected:
  using Lines = std::vector<std::string>;

  // The window with three servers, of which the first is selected.
  void OpenWindow() {
    for (const char* row : {"hill.example", "lake.example", "hollow.example"}) {
      window.Servers.Add(row);
    }
    window.Servers.Select(0);
    Platform::StartProgram(window);
  }

  // The events since the last call.
  Lines Events() { return std::exchange(window.events, {}); }

  static Lines Visible() { return TestMachine::VisibleWindows(); }

  ContractWindow window;
};

// --- What a window says ---

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

// --- Tab, Enter, Escape, Space, access keys ---

TEST_F(FormsContract, TabGoesRoundInTheOrderOfTheControls) {
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

TEST_F(FormsContract, TabPassesDisabledAndHiddenControls) {
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

TEST_F(FormsContract, EnterPressesTheDefaultButtonFromEveryOtherControl) {
  OpenWindow();
  for (Platform::Control* control :
       std::vector<Platform::Control*>{&window.Servers, &window.Address, &window.Notes}) {
    control->Focus();
    TestMachine::Press("Enter");
    EXPECT_EQ(Events(), Lines{"submit"});
  }
}

TEST_F(FormsContract, EnterPressesTheFocusedButton) {
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

TEST_F(FormsContract, EnterDoesNothingWhileTheDefaultButtonIsDisabled) {
  OpenWindow();
  window.Submit.SetEnabled(false);
  TestMachine::Press("Enter");
  EXPECT_EQ(Events(), Lines{});
  window.Submit.SetEnabled(true);
  TestMachine::Press("Enter");
  EXPECT_EQ(Events(), Lines{"submit"});
}

TEST_F(FormsContract, EscapePressesTheCancelButtonFromEveryControl) {
  OpenWindow();
  for (int i = 0; i < 6; ++i) {
    TestMachine::Press("Escape");
    EXPECT_EQ(Events(), Lines{"cancel"}) << TestMachine::Hears();
    TestMachine::Press("Tab");
  }
}

TEST_F(FormsContract, EscapeDoesNothingWithoutACancelButton) {
  ContractTool tool("Tool");
  Platform::StartProgram(tool);
  TestMachine::Press("Escape");
  EXPECT_EQ(Visible(), Lines{"Tool"});
  EXPECT_FALSE(Platform::HasProgramEnded());
}

TEST_F(FormsContract, SpacePressesTheFocusedButton) {
  OpenWindow();
  window.Delete.Focus();
  TestMachine::Press("Space");
  EXPECT_EQ(Events(), Lines{"delete"});
}

TEST_F(FormsContract, AnAccessKeyReachesTheControlBehindItsLabel) {
  OpenWindow();
  TestMachine::Press("Alt+A");
  EXPECT_EQ(TestMachine::Hears(), "Address, edit, Alt+A");
  TestMachine::Press("Alt+N");
  EXPECT_EQ(TestMachine::Hears(), "Notes, edit, read only, Alt+N");
  TestMachine::Press("Alt+S");
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 3, Alt+S");
  EXPECT_EQ(Events(), Lines{});
}

TEST_F(FormsContract, AnAccessKeyPressesItsButton) {
  OpenWindow();
  TestMachine::Press("Alt+D");
  EXPECT_EQ(Events(), Lines{"delete"});
}

TEST_F(FormsContract, TheAccessKeyOfADisabledControlDoesNothing) {
  OpenWindow();
  window.Address.SetEnabled(false);
  window.Delete.SetEnabled(false);
  TestMachine::Press("Alt+D");
  TestMachine::Press("Alt+A");
  EXPECT_EQ(Events(), Lines{});
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 3, Alt+S");
}

TEST_F(FormsContract, AClickedButtonHasTheFocus) {
  OpenWindow();
  TestMachine::ClickButton("Delete");
  EXPECT_EQ(Events(), Lines{"delete"});
  EXPECT_EQ(TestMachine::Hears(), "Delete, button, Alt+D");
}

// --- Text boxes ---

TEST_F(FormsContract, TypingChangesTheText) {
  OpenWindow();
  window.Address.Focus();
  TestMachine::Type("aB.");
  EXPECT_EQ(Events(), (Lines{"change a", "change aB", "change aB."}));
  TestMachine::Press("Backspace");
  EXPECT_EQ(Events(), Lines{"change aB"});
  EXPECT_EQ(TestMachine::Hears(), "Address, edit, aB, Alt+A");
}

TEST_F(FormsContract, TheCaretMovesByKeys) {
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

TEST_F(FormsContract, EnteringATextBoxSelectsItsText) {
  window.Address.SetText("old.example");
  OpenWindow();
  TestMachine::Press("Tab");
  EXPECT_EQ(TestMachine::SelectedText(), "old.example");
  TestMachine::Type("n");
  EXPECT_EQ(window.Address.text(), "n");
}

TEST_F(FormsContract, TheProgramSelectsAllText) {
  OpenWindow();
  window.Address.Focus();
  TestMachine::Type("wrong");
  window.Address.SelectAll();
  EXPECT_EQ(TestMachine::SelectedText(), "wrong");
  TestMachine::Type("r");
  EXPECT_EQ(window.Address.text(), "r");
}

TEST_F(FormsContract, ControlAndASelectsAll) {
  OpenWindow();
  window.Address.Focus();
  TestMachine::Type("wrong");
  TestMachine::Press("Ctrl+A");
  EXPECT_EQ(TestMachine::SelectedText(), "wrong");
}

TEST_F(FormsContract, AReadOnlyTextIsNotChanged) {
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

TEST_F(FormsContract, WhatTheProgramWritesIsNoChangeOfTheUser) {
  OpenWindow();
  window.Address.SetText("a");
  window.Servers.Select(2);
  window.Servers.Remove(2);
  EXPECT_EQ(Events(), Lines{});
}

// --- Lists ---

TEST_F(FormsContract, ArrowKeysMoveThroughAList) {
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

TEST_F(FormsContract, TypingALetterMovesToTheNextRowThatBeginsWithIt) {
  OpenWindow();
  TestMachine::Type("h");
  EXPECT_EQ(window.Servers.selected(), 2);
  TestMachine::Type("l");
  EXPECT_EQ(window.Servers.selected(), 1);
  TestMachine::Type("x");
  EXPECT_EQ(window.Servers.selected(), 1);
}

TEST_F(FormsContract, ClicksOnRowsDoWhatTheArrowKeysDo) {
  OpenWindow();
  window.Address.Focus();
  TestMachine::ClickRow("lake.example");
  EXPECT_EQ(Events(), Lines{"select 1"});
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, lake.example, 2 of 3, Alt+S");
  TestMachine::DoubleClickRow("hollow.example");
  EXPECT_EQ(Events(), (Lines{"select 2", "double click"}));
}

// --- The window's own keys ---

TEST_F(FormsContract, TheWindowSeesKeysBeforeTheControl) {
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

TEST_F(FormsContract, AKeyThatTheWindowUsedGoesNoFurther) {
  window.OnKeyDown = [](Platform::KeyEvent& key) { key.isHandled = true; };
  OpenWindow();
  for (const char* key : {"Down", "Enter", "Escape", "Tab", "Alt+D"}) TestMachine::Press(key);
  EXPECT_EQ(Events(), Lines{});
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 3, Alt+S");
}

TEST_F(FormsContract, KeysThatEditStayWithATextBox) {
  std::vector<int> keys;
  window.OnKeyDown = [&](Platform::KeyEvent& key) {
    keys.push_back(key.code);
    key.isHandled = true;
  };
  OpenWindow();
  window.Address.Focus();
  TestMachine::Type("ab");
  for (const char* key : {"Home", "Delete", "End", "Backspace"}) TestMachine::Press(key);
  EXPECT_EQ(window.Address.text(), "");
  EXPECT_EQ(keys, std::vector<int>{});
  TestMachine::Press("Ctrl+N");
  EXPECT_THAT(keys, testing::Contains('N'));
}

// --- Focus ---

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
  Platform::Form main(FixedText("Utility Pack"));
  std::vector<int> keys;
  main.OnKeyDown = [&](Platform::KeyEvent& key) { keys.push_back(key.code); };
  Platform::StartProgram(main);
  EXPECT_EQ(TestMachine::Hears(), "Utility Pack, window");
  TestMachine::Press("Ctrl+P");
  EXPECT_THAT(keys, testing::Contains('P'));
}

// --- Menus ---

class MenusContract : public ContractTest {
 protected:
  MenusContract() {
    Close.OnClick = [this] { ++closes; };
    One.OnClick = [this] { ++ones; };
    main.OnLoad = [this] { main.TranslateMenu(); };
    Platform::StartProgram(main);
  }

  Platform::Form main{FixedText("Utility Pack")};
  Platform::MenuItem File{main, {.text = FixedText("&File")}};
  Platform::MenuItem Close{File, {.text = FixedText("&Close"), .suffix = " (Alt+F4)"}};
  Platform::MenuItem Help{main, {.text = FixedText("&Help")}};
  Platform::MenuItem Visit{Help, {.text = FixedText("&Visit")}};
  Platform::MenuItem One{Visit, {.text = FixedText("&One")}};
  Platform::MenuItem Two{Visit, {.text = FixedText("&Two")}};
  int closes = 0;
  int ones = 0;
};

TEST_F(MenusContract, AMenuShowsItsItemsInOrder) {
  EXPECT_EQ(TestMachine::Menus(), "&File(&Close (Alt+F4)) &Help(&Visit(&One,greyed:&Two))");
}

TEST_F(MenusContract, AnItemCanBeChecked) {
  One.SetChecked(true);
  EXPECT_EQ(TestMachine::Menus(), "&File(&Close (Alt+F4)) &Help(&Visit(checked:&One,greyed:&Two))");
  One.SetChecked(false);
  EXPECT_EQ(TestMachine::Menus(), "&File(&Close (Alt+F4)) &Help(&Visit(&One,greyed:&Two))");
}

TEST_F(MenusContract, ChoosingAnItemRunsIt) {
  TestMachine::ChooseMenu({"&File", "&Close (Alt+F4)"});
  EXPECT_EQ(closes, 1);
  TestMachine::ChooseMenu({"&Help", "&Visit", "&One"});
  EXPECT_EQ(ones, 1);
  EXPECT_EQ(closes, 1);
}

// --- The stage ---

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
