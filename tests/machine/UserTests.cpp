// The scripted user works and hears windows as a screen reader's user does.
#include "base/SharedTexts.h"
#include "tests/Story.h"
#include "ui/Forms.h"
#include "ui/InputBox.h"

using namespace Platform;

namespace {

class Servers final : public Form {
 public:
  Servers() : Form(FixedText("Server manager")) {
    Submit.OnClick = [this] { ++submits; };
    Ccl.OnClick = [this] { ++cancels; };
  }

  ListBox List{*this, {.label = FixedText("&Servers")}};
  TextBox Address{*this, {.label = FixedText("&Address")}};
  Button Submit{*this, {.text = FixedText("OK"), .isDefault = true}};
  Button Ccl{*this, {.text = FixedText("Cancel"), .isCancel = true}};
  int submits = 0;
  int cancels = 0;
};

class UserStory : public Story {
 protected:
  UserStory() { StartProgram(servers); }
  Servers servers;
};

TEST_F(UserStory, HearsNameRoleStateAndAccessKey) {
  EXPECT_EQ(user.SeesWindow(), "Server manager");
  EXPECT_EQ(user.Hears(), "Servers, list, empty, Alt+S");
  servers.List.Add("hill.example");
  servers.List.Add("lake.example");
  EXPECT_EQ(user.Hears(), "Servers, list, not selected, Alt+S");
  servers.List.Select(1);
  EXPECT_EQ(user.Hears(), "Servers, list, lake.example, 2 of 2, Alt+S");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Address, edit, Alt+A");
  user.Types("play.Example");
  EXPECT_EQ(user.Hears(), "Address, edit, play.Example, Alt+A");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "OK, button");
}

TEST_F(UserStory, WalksAroundWithTabAndAccessKeys) {
  user.Presses("Shift+Tab");
  EXPECT_EQ(user.Hears(), "Cancel, button");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Servers, list, empty, Alt+S");
  user.Presses("Alt+A");
  EXPECT_EQ(user.Hears(), "Address, edit, Alt+A");
}

TEST_F(UserStory, PressesKeysThatTypeCharacters) {
  servers.Address.Focus();
  for (const char* key : {"A", "Shift+B", "7", "Space", "Ctrl+N"}) user.Presses(key);
  EXPECT_EQ(servers.Address.text(), "aB7 ");
}

TEST_F(UserStory, CopiesAndPastes) {
  servers.Address.SetText("hill");
  user.Presses("Tab");
  user.Presses("Ctrl+X");
  EXPECT_EQ(machine.clipboard.text(), "hill");
  EXPECT_EQ(user.Hears(), "Address, edit, Alt+A");
  user.Presses("Ctrl+V");
  user.Presses("Ctrl+V");
  EXPECT_EQ(user.Hears(), "Address, edit, hillhill, Alt+A");
  user.Presses("Shift+Home");
  EXPECT_EQ(user.SelectedText(), "hillhill");
}

TEST_F(UserStory, WorksABoxByKeyboard) {
  user.WhenWindowOpens("Delete", [this] {
    EXPECT_EQ(user.SeesWindow(), "Delete");
    user.Presses("Tab");
    user.Presses("Enter");
  });
  EXPECT_EQ(MsgBox("Really?", "Delete", Icon::Question, Buttons::YesNoDefaultNo), Answer::Yes);
}

TEST_F(UserStory, HearsTheWholeWindowWhenItOpens) {
  class Explained final : public Form {
   public:
    Explained() : Form(FixedText("Servers")) {}
    Label Why{*this, {.text = FixedText("Choose where to play.")}};
    Button Submit{*this, {.text = FixedText("OK"), .isDefault = true}};
  } explained;
  explained.Show();
  EXPECT_THAT(user.HearsOnOpening(),
              testing::ElementsAre("Servers", "Choose where to play.", "OK, button"));
}

TEST_F(UserStory, PressesTheDefaultAndTheCancelButton) {
  user.Presses("Enter");
  user.Presses("Escape");
  EXPECT_EQ(servers.submits, 1);
  EXPECT_EQ(servers.cancels, 1);
}

TEST_F(UserStory, AnswersAnInputBox) {
  user.TypesInBox("3");
  EXPECT_EQ(InputBox("How many?", "Random track"), "3");
  EXPECT_EQ(user.LastModalWindow().prompt, "How many?");
  user.CancelsBox();
  EXPECT_EQ(InputBox("How many?", "Random track"), "");
}

TEST_F(UserStory, ReadsAnErrorInABox) {
  Dispatch([] { throw RuntimeError(RuntimeError::DiskFull, "C:\\hill.trk"); });
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, testing::HasSubstr("C:\\hill.trk"), "Error"));
}

class MenuStory : public Story {
 protected:
  MenuStory() {
    Close.OnClick = [this] { chosen = "close"; };
    One.OnClick = [this] { chosen = "one"; };
    Update.OnClick = [this] { chosen = "update"; };
    main.OnLoad = [this] { main.TranslateMenu(); };
    StartProgram(main);
  }

  Form main{FixedText("Utility Pack")};
  MenuItem File{main, {.text = FixedText("&File")}};
  MenuItem Close{File, {.text = FixedText("&Close"), .suffix = " (Alt+F4)"}};
  MenuItem Help{main, {.text = FixedText("&Help")}};
  MenuItem Visit{Help, {.text = FixedText("&Visit")}};
  MenuItem One{Visit, {.text = FixedText("&One")}};
  MenuItem Two{Visit, {.text = FixedText("&Two")}};
  MenuItem Update{Help, {.text = FixedText("Update on startup")}};
  std::string chosen;
};

TEST_F(MenuStory, WalksThroughMenusWithTheArrowKeys) {
  user.Presses("Alt+F");
  EXPECT_EQ(user.Hears(), "Close (Alt+F4), menu item, C");
  user.Presses("Right");
  EXPECT_EQ(user.Hears(), "Visit, submenu, V");
  user.Presses("Right");
  EXPECT_EQ(user.Hears(), "One, menu item, O");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "Two, menu item, unavailable, T");
  user.Presses("Enter");
  EXPECT_EQ(chosen, "") << "it is greyed";
  user.Presses("Down");
  user.Presses("Enter");
  EXPECT_EQ(chosen, "one");
  EXPECT_EQ(user.Hears(), "Utility Pack, window");
}

TEST_F(MenuStory, ChoosesByLetters) {
  user.Presses("Alt+H");
  user.Types("vo");
  EXPECT_EQ(chosen, "one");
  user.Presses("Alt+H");
  user.Types("u");
  EXPECT_EQ(chosen, "update");
}

TEST_F(MenuStory, LeavesMenusByEscape) {
  Update.SetChecked(true);
  user.Presses("Alt+H");
  user.Presses("V");
  user.Presses("Escape");
  EXPECT_EQ(user.Hears(), "Visit, submenu, V");
  user.Presses("Up");
  EXPECT_EQ(user.Hears(), "Update on startup, menu item, checked");
  user.Presses("Escape");
  EXPECT_EQ(user.Hears(), "Utility Pack, window");
  EXPECT_EQ(chosen, "");
}

TEST_F(MenuStory, ChoosesByCaptions) {
  user.ChoosesMenu({"File", "Close"});
  EXPECT_EQ(chosen, "close");
  user.ChoosesMenu({"Help", "Visit", "One"});
  EXPECT_EQ(chosen, "one");
}

}  // namespace
