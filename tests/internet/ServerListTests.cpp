// The server list, worked by keyboard and heard.
#include "tests/internet/ServerStory.h"

namespace {

using Platform::Buttons;
using Platform::Icon;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string NameTitle = "Name:";
const std::string Added = "IP address added to list.";

class ServerListStory : public ServerStory {
 protected:
  void ExpectAdded() const {
    EXPECT_THAT(user.LastBox(), Shows(Icon::Information, Added, "Success"));
    EXPECT_EQ(user.LastBox().owner, Title);
  }
  void ExpectDeletionError(const std::string& text) const {
    ASSERT_GE(user.Boxes().size(), 2U);
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, text, "Error deleting IP"));
    EXPECT_EQ(user.LastBox().owner, Title);
  }
};

// --- Opening ---

TEST_F(ServerListStory, PlayerHearsThatNothingIsChosenYetAndTabsThroughTheWindow) {
  OpenListOn("home=10.0.0.7\r\naway=10.0.0.8\r\n");
  EXPECT_FALSE(Platform::MainForm().IsVisible());
  EXPECT_THAT(user.HearsOnOpening(), ElementsAre(Title, "IP List:, list, not selected"));
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "IP:, edit");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Add to IP List, button, Alt+A");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Delete IP, button, Alt+D");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Clear List, button, Alt+C");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Select, button, Alt+S");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Cancel, button");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "IP List:, list, not selected");
  EXPECT_THAT(Platform::SharedAccessKeys(*Platform::ActiveForm()), IsEmpty());
  EXPECT_THAT(user.Boxes(), IsEmpty());
}

TEST_F(ServerListStory, TheAddressFollowsTheSelectionByKeyboard) {
  OpenListOn("home=10.0.0.7\r\naway=10.0.0.8\r\n");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "IP List:, list, home (10.0.0.7), 1 of 2");
  EXPECT_EQ(HearsAddress(), "IP:, edit, 10.0.0.7");
  user.Presses("Shift+Tab");
  user.Presses("Down");
  EXPECT_EQ(HearsAddress(), "IP:, edit, 10.0.0.8");
  EXPECT_EQ(HearsList(), "IP List:, list, away (10.0.0.8), 2 of 2");
  user.Types("h");
  EXPECT_EQ(HearsAddress(), "IP:, edit, 10.0.0.7");
}

TEST_F(ServerListStory, AClickOnTheSelectedRowPutsItsAddressBack) {
  OpenListOn("home=10.0.0.7\r\n");
  user.Clicks("home (10.0.0.7)");
  TypesAddress("other");
  user.Clicks("home (10.0.0.7)");
  EXPECT_EQ(HearsAddress(), "IP:, edit, 10.0.0.7");
}

TEST_F(ServerListStory, EntriesStandInTheOrderOfTheFileAndLinesThatAreNoneAreLeftOut) {
  const std::string bytes = "\r\nzoo=1\r\nnonsense\r\n\r\nant=2\rbee=3";
  OpenListOn(bytes);
  EXPECT_THAT(Rows(), ElementsAre("zoo (1)", "ant (2)", "bee (3)"));
  EXPECT_EQ(Servers(), bytes) << "looking changes nothing";
}

TEST_F(ServerListStory, AnAddressMayHoldEqualsSigns) {
  OpenListOn("a=b=c\r\nd=4\r\n");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "IP List:, list, a (b=c), 1 of 2");
  EXPECT_EQ(HearsAddress(), "IP:, edit, b=c");
  user.Presses("Alt+A");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, testing::HasSubstr("already exists")));
  Deletes();
  EXPECT_EQ(Servers(), "d=4\r\n");
}

TEST_F(ServerListStory, ABracketInANameGivesAWrongAddress) {
  OpenListOn("home (old)=10.0.0.7\r\n");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "IP List:, list, home (old) (10.0.0.7), 1 of 1");
  EXPECT_EQ(HearsAddress(), "IP:, edit, old) (10.0.0.7");
  Deletes();
  ExpectDeletionError("There was an error deleting the IP address because it doesn't exist.");
}

TEST_F(ServerListStory, WithoutAFileTheListIsEmptyAndNothingIsTold) {
  OpenList();
  EXPECT_THAT(user.HearsOnOpening(), ElementsAre(Title, "IP List:, list, empty"));
  EXPECT_THAT(user.Boxes(), IsEmpty());
  EXPECT_FALSE(machine.files.Exists(ListPath));
  ExpectNothingChosen();
}

TEST_F(ServerListStory, TheListIsReadAnewAtEachOpening) {
  OpenListOn("home=10.0.0.7\r\n");
  user.Presses("Down");
  TypesAddress("typed");
  user.Presses("Escape");
  OpenListOn("away=10.0.0.8\r\n");
  EXPECT_THAT(Rows(), ElementsAre("away (10.0.0.8)"));
  ExpectNothingChosen();
}

TEST_F(ServerListStory, TheGameNeedNotBeInstalledToKeepAList) {
  machine.registry = {};
  OpenListOn("home=10.0.0.7\r\n");
  EXPECT_THAT(user.Boxes(), IsEmpty());
}

TEST_F(ServerListStory, TextsAreInTheUsersLanguage) {
  machine.files.Put(machine.executable.folder + "\\sk2pack.lng",
                    "SelectServerTitle=Server\r\nSelectIPPrompt=&Liste:\r\nIPTextPrompt=A&dresse:"
                    "\r\nDeleteEntryButton=&Entfernen\r\nConfirmDeleteIPText=Wirklich\r\n");
  PutServers("home=10.0.0.7\r\n");
  OpenList();
  EXPECT_EQ(user.SeesWindow(), "Server");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "Liste:, list, home (10.0.0.7), 1 of 1, Alt+L");
  user.Presses("Alt+D");
  EXPECT_EQ(user.Hears(), "Adresse:, edit, 10.0.0.7, Alt+D");
  user.AnswersNo();
  user.Presses("Alt+E");
  EXPECT_EQ(user.LastBox().text, "Wirklich 10.0.0.7?");
}

// --- Adding ---

TEST_F(ServerListStory, TheFirstServerMakesTheFile) {
  OpenList();
  TypesAddress("10.0.0.7");
  user.TypesInBox("home");
  user.Presses("Alt+A");
  EXPECT_EQ(user.LastModalWindow().title, NameTitle);
  EXPECT_EQ(user.LastModalWindow().prompt, "Please enter a name for this IP address.");
  ASSERT_EQ(user.Boxes().size(), 1U);
  ExpectAdded();
  EXPECT_EQ(Servers(), "home=10.0.0.7\r\n");
  EXPECT_THAT(Rows(), ElementsAre("home (10.0.0.7)"));
  ExpectNothingChosen();
}

TEST_F(ServerListStory, ANewServerStandsBehindTheOthers) {
  OpenListOn("home=10.0.0.7\r\nnonsense\r\n");
  TypesAddress("10.0.0.8");
  user.TypesInBox("away");
  user.Presses("Alt+A");
  EXPECT_EQ(Servers(), "home=10.0.0.7\r\nnonsense\r\naway=10.0.0.8\r\n");
  EXPECT_THAT(Rows(), ElementsAre("home (10.0.0.7)", "away (10.0.0.8)"));
  ExpectNothingChosen();
}

TEST_F(ServerListStory, AnAddressThatIsInTheListAlreadyIsRefused) {
  OpenListOn("home=10.0.0.7\r\naway=10.0.0.8\r\n");
  TypesAddress("10.0.0.8");
  user.Presses("Alt+A");
  ASSERT_EQ(user.Boxes().size(), 1U);
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Critical,
                    "The IP address you wish to save already exists in your IP list.", "Error"));
  EXPECT_THAT(user.ModalWindows(), IsEmpty()) << "no name is asked for";
  EXPECT_EQ(HearsAddress(), "IP:, edit, 10.0.0.8");
  EXPECT_EQ(Servers(), "home=10.0.0.7\r\naway=10.0.0.8\r\n");
}

TEST_F(ServerListStory, TheSameNameWithAnotherAddressIsAccepted) {
  OpenListOn("home=10.0.0.7\r\n");
  TypesAddress("10.0.0.9");
  user.TypesInBox("home");
  user.Presses("Alt+A");
  ExpectAdded();
  EXPECT_EQ(Servers(), "home=10.0.0.7\r\nhome=10.0.0.9\r\n");
}

TEST_F(ServerListStory, AnAddressInOtherLettersIsAnotherOne) {
  OpenListOn("home=play.example\r\n");
  TypesAddress("Play.example");
  user.TypesInBox("Home");
  user.Presses("Alt+A");
  ExpectAdded();
  EXPECT_EQ(Servers(), "home=play.example\r\nHome=Play.example\r\n");
}

TEST_F(ServerListStory, ANameLeftEmptyOrCancelledBecomesTheAddress) {
  for (const bool isCancelled : {false, true}) {
    SCOPED_TRACE(isCancelled);
    const size_t boxes = user.Boxes().size();
    OpenListOn("");
    TypesAddress("10.0.0.7");
    if (isCancelled) {
      user.CancelsBox();
    } else {
      user.TypesInBox("");
    }
    user.Presses("Alt+A");
    ASSERT_EQ(user.Boxes().size(), boxes + 2);
    EXPECT_THAT(user.Boxes()[boxes], Shows(Icon::Information,
                                           "No name was associated with this IP address. The IP "
                                           "address will be used as the associated name.",
                                           "Warning"));
    ExpectAdded();
    EXPECT_EQ(Servers(), "10.0.0.7=10.0.0.7\r\n");
    EXPECT_THAT(Rows(), ElementsAre("10.0.0.7 (10.0.0.7)"));
    user.Presses("Escape");
  }
}

TEST_F(ServerListStory, ANameOfBlanksIsKeptAsItIs) {
  OpenList();
  TypesAddress("1");
  user.TypesInBox("  ");
  user.Presses("Alt+A");
  ASSERT_EQ(user.Boxes().size(), 1U);
  EXPECT_EQ(Servers(), "  =1\r\n");
  EXPECT_THAT(Rows(), ElementsAre("   (1)"));
}

TEST_F(ServerListStory, AnEmptyAddressIsAcceptedOnce) {
  OpenListOn("home=10.0.0.7\r\n");
  user.TypesInBox("nowhere");
  user.Presses("Alt+A");
  ExpectAdded();
  EXPECT_EQ(Servers(), "home=10.0.0.7\r\nnowhere=\r\n");
  EXPECT_THAT(Rows(), ElementsAre("home (10.0.0.7)", "nowhere ()"));
  user.Presses("Alt+A");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, testing::HasSubstr("already exists")));
}

TEST_F(ServerListStory, ANameMayHoldAnEqualsSignWhichThenEndsIt) {
  OpenList();
  TypesAddress("1");
  user.TypesInBox("a=b");
  user.Presses("Alt+A");
  EXPECT_EQ(Servers(), "a=b=1\r\n");
  EXPECT_THAT(Rows(), ElementsAre("a (b=1)"));
}

TEST_F(ServerListStory, ALastLineWithoutItsEndKeepsItsAddress) {
  OpenListOn("home=10.0.0.7");
  TypesAddress("10.0.0.8");
  user.TypesInBox("away");
  user.Presses("Alt+A");
  EXPECT_EQ(Servers(), "home=10.0.0.7\r\naway=10.0.0.8\r\n");
}

// --- Deleting ---

TEST_F(ServerListStory, DeletingAsksForTheAddressAndNoChangesNothing) {
  OpenListOn("home=10.0.0.7\r\naway=10.0.0.8\r\n");
  user.Presses("Down");
  user.AnswersNo();
  user.Presses("Alt+D");
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Question, "Are you sure you wish to delete the IP address 10.0.0.7?",
                    "Confirm delete"));
  EXPECT_EQ(user.LastBox().buttons, Buttons::YesNoDefaultNo);
  EXPECT_EQ(HearsAddress(), "IP:, edit, 10.0.0.7");
  EXPECT_EQ(HearsList(), "IP List:, list, home (10.0.0.7), 1 of 2");
  EXPECT_EQ(Servers(), "home=10.0.0.7\r\naway=10.0.0.8\r\n");
}

TEST_F(ServerListStory, ADeletedServerIsGoneFromFileAndListAndNothingIsChosenThen) {
  OpenListOn("home=10.0.0.7\r\naway=10.0.0.8\r\nzoo=10.0.0.9\r\n");
  user.Presses("Down");
  user.Presses("Down");
  Deletes();
  EXPECT_EQ(user.Boxes().size(), 1U) << "a deletion that went well is not told";
  EXPECT_EQ(Servers(), "home=10.0.0.7\r\nzoo=10.0.0.9\r\n");
  EXPECT_THAT(Rows(), ElementsAre("home (10.0.0.7)", "zoo (10.0.0.9)"));
  ExpectNothingChosen();
}

TEST_F(ServerListStory, WhatIsHeardAfterADeletionIsWhatIsDeletedNext) {
  OpenListOn("home=10.0.0.7\r\naway=10.0.0.8\r\nzoo=10.0.0.9\r\n");
  user.Presses("Down");
  Deletes();
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "IP List:, list, away (10.0.0.8), 1 of 2");
  Deletes();
  EXPECT_EQ(user.LastBox().text, "Are you sure you wish to delete the IP address 10.0.0.8?");
  EXPECT_EQ(Servers(), "zoo=10.0.0.9\r\n");
}

TEST_F(ServerListStory, AnAddressOnTwoLinesLosesBothButOnlyTheSelectedRow) {
  OpenListOn("home=1\r\nzoo=2\r\naway=1\r\n");
  user.Presses("End");
  user.Presses("End");
  EXPECT_EQ(user.Hears(), "IP List:, list, away (1), 3 of 3");
  Deletes();
  EXPECT_EQ(Servers(), "zoo=2\r\n");
  EXPECT_THAT(Rows(), ElementsAre("home (1)", "zoo (2)"));
  ExpectNothingChosen();
}

TEST_F(ServerListStory, ATypedAddressIsDeletedFromTheFileAndTheSelectedRowFromTheList) {
  OpenListOn("home=1\r\naway=2\r\nzoo=3\r\n");
  user.Presses("Down");
  TypesAddress("3");
  Deletes();
  EXPECT_EQ(Servers(), "home=1\r\naway=2\r\n");
  EXPECT_THAT(Rows(), ElementsAre("away (2)", "zoo (3)"));
  ExpectNothingChosen();
}

TEST_F(ServerListStory, WithoutASelectedRowATypedAddressIsDeletedFromTheFileAlone) {
  OpenListOn("home=1\r\naway=2\r\n");
  TypesAddress("1");
  Deletes();
  EXPECT_EQ(user.Boxes().size(), 1U);
  EXPECT_EQ(Servers(), "away=2\r\n");
  EXPECT_THAT(Rows(), ElementsAre("home (1)", "away (2)"));
  ExpectNothingChosen();
}

TEST_F(ServerListStory, LinesThatAreNoneOfTheListAreDroppedByADeletion) {
  OpenListOn("\r\nnonsense\r\nhome=1\r\n\r\naway=2");
  user.Presses("Down");
  Deletes();
  EXPECT_EQ(Servers(), "away=2\r\n");
}

TEST_F(ServerListStory, AnAddressThatIsNotInTheListIsToldAndTheAddressEmptied) {
  OpenListOn("home=1\r\n");
  user.Presses("Down");
  TypesAddress("2");
  Deletes();
  ExpectDeletionError("There was an error deleting the IP address because it doesn't exist.");
  EXPECT_EQ(Servers(), "home=1\r\n");
  EXPECT_THAT(Rows(), ElementsAre("home (1)"));
  ExpectNothingChosen();
}

TEST_F(ServerListStory, TheOnlyServerCannotBeDeleted) {
  for (const char* bytes : {"home=1\r\n", "home=1", "home=1\r\naway=1\r\n", "x\r\nhome=1\r\n"}) {
    SCOPED_TRACE(bytes);
    OpenListOn(bytes);
    const auto rows = Rows();
    user.Presses("Down");
    Deletes();
    ExpectDeletionError(
        "There was an error deleting the IP address. The cause of this error is unknown.");
    EXPECT_EQ(Servers(), bytes);
    EXPECT_EQ(Rows(), rows);
    ExpectNothingChosen();
    user.Presses("Escape");
  }
}

// --- Clearing ---

TEST_F(ServerListStory, ClearingAsksFirst) {
  OpenListOn("home=1\r\n");
  user.Presses("Down");
  user.AnswersNo();
  user.Presses("Alt+C");
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Question, "Are you sure you wish to completely clear the IP list?",
                    "Confirm List Removal"));
  EXPECT_EQ(user.LastBox().buttons, Buttons::YesNoDefaultNo);
  EXPECT_EQ(Servers(), "home=1\r\n");
}

TEST_F(ServerListStory, ClearingEmptiesTheFileAndTheRowsStayUntilTheNextOpening) {
  OpenListOn("home=1\r\naway=2\r\n");
  user.Presses("Down");
  user.AnswersYes();
  user.Presses("Alt+C");
  EXPECT_EQ(user.Boxes().size(), 1U);
  EXPECT_TRUE(machine.files.Exists(ListPath));
  EXPECT_EQ(Servers(), "");
  EXPECT_EQ(user.SeesWindow(), Title);
  EXPECT_EQ(HearsList(), "IP List:, list, home (1), 1 of 2");
  EXPECT_EQ(HearsAddress(), "IP:, edit, 1");
  Deletes();
  ExpectDeletionError("There was an error deleting the IP address because it doesn't exist.");
  EXPECT_THAT(Rows(), ElementsAre("home (1)", "away (2)"));
  user.Presses("Escape");
  OpenList();
  EXPECT_EQ(user.Hears(), "IP List:, list, empty");
}

TEST_F(ServerListStory, ClearingWithoutAFileMakesAnEmptyOne) {
  OpenList();
  user.AnswersYes();
  user.Presses("Alt+C");
  EXPECT_EQ(Servers(), "");
}

TEST_F(ServerListStory, AServerThatIsAddedAfterClearingIsTheOnlyOne) {
  OpenListOn("home=1\r\naway=2\r\n");
  user.AnswersYes();
  user.Presses("Alt+C");
  TypesAddress("2");
  user.TypesInBox("away");
  user.Presses("Alt+A");
  EXPECT_EQ(Servers(), "away=2\r\n");
  EXPECT_THAT(Rows(), ElementsAre("away (2)"));
}

// --- Selecting ---

TEST_F(ServerListStory, TheChosenServerIsTheOneThatTheGameUses) {
  machine.files.Put(Configuration, "Language=English\r\n\r\nMultiplayer=1.2.3.4\r\n");
  OpenListOn("home=5.6.7.8\r\n");
  user.Presses("Down");
  user.Presses("Enter");
  ASSERT_EQ(user.Boxes().size(), 1U);
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Information, "IP address 5.6.7.8 will now be used when playing Skidrun2.",
                    "Success"));
  EXPECT_EQ(user.LastBox().owner, Title);
  EXPECT_EQ(machine.files.Text(Configuration), "Language=English\r\nMultiplayer=5.6.7.8\r\n");
  EXPECT_EQ(machine.files.Attributes(Configuration), Simulated::Hidden);
  ExpectMainWindow();
}

TEST_F(ServerListStory, ATypedServerNeedNotBeInTheList) {
  machine.files.Put(Configuration, "Multiplayer=1\r\nVolume=5\r\nMultiplayer=2\r\n");
  OpenList();
  TypesAddress("play.example=1 ");
  user.Presses("Enter");
  EXPECT_EQ(machine.files.Text(Configuration),
            "Multiplayer=play.example=1 \r\nVolume=5\r\nMultiplayer=play.example=1 \r\n");
  EXPECT_FALSE(machine.files.Exists(ListPath));
  ExpectMainWindow();
}

TEST_F(ServerListStory, AConfigurationWithoutAServerGetsItAsItsLastLine) {
  machine.files.Put(Configuration, "Language=English\r\nmultiplayer=x\r\n");
  OpenListOn("home=5.6.7.8\r\n");
  user.Presses("Down");
  user.Presses("Alt+S");
  EXPECT_EQ(machine.files.Text(Configuration),
            "Language=English\r\nmultiplayer=x\r\nMultiplayer=5.6.7.8\r\n");
}

TEST_F(ServerListStory, WithoutAChoiceTheGameGetsAnEmptyServer) {
  machine.files.Put(Configuration, "Multiplayer=1.2.3.4\r\n");
  OpenListOn("home=5.6.7.8\r\n");
  user.Presses("Enter");
  EXPECT_EQ(user.LastBox().text, "IP address  will now be used when playing Skidrun2.");
  EXPECT_EQ(machine.files.Text(Configuration), "Multiplayer=\r\n");
}

// --- Leaving ---

TEST_F(ServerListStory, EveryWayOutLeadsToTheMainWindowAndWritesNothing) {
  PutServers("home=1\r\n");
  machine.files.Put(Configuration, "Multiplayer=1.2.3.4\r\n");
  const std::vector<std::pair<std::string, std::function<void()>>> ways = {
      {"Escape", [this] { user.Presses("Escape"); }},
      {"Alt+F4", [this] { user.Presses("Alt+F4"); }},
      {"the close box", [this] { user.ClosesWindow(); }},
      {"the Cancel button",
       [this] {
         user.Presses("Shift+Tab");
         user.Presses("Space");
       }},
  };
  for (const auto& [name, leave] : ways) {
    SCOPED_TRACE(name);
    OpenList();
    EXPECT_EQ(user.SeesWindow(), Title);
    leave();
    ExpectMainWindow();
  }
  EXPECT_EQ(Servers(), "home=1\r\n");
  EXPECT_EQ(machine.files.Text(Configuration), "Multiplayer=1.2.3.4\r\n");
}

}  // namespace
