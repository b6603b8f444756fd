// The scripted user works and hears windows as a screen reader's user does.
#include "base/SharedTexts.h"
#include "platform/Forms.h"
#include "platform/InputBox.h"
#include "tests/Story.h"

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

}  // namespace
