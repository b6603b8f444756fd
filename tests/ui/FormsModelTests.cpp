// The rules of windows that are no machine's: what becomes of failures, who is on the stage, where
// the focus goes.
#include <new>

#include "base/PerRun.h"
#include "base/RuntimeError.h"
#include "platform/Executable.h"
#include "tests/ui/StageStory.h"

namespace {

using namespace Platform;
using testing::ElementsAre;
using testing::IsEmpty;

class FormsModel : public StageStory {
 protected:
  void PutTranslation(const std::string& lines) {
    machine.files.Put(PathBesideProgram(".lng"), lines);
  }

  StageTool tool{"Tool"};
  StageTool other{"Other"};
};

// --- Failures ---

TEST_F(FormsModel, AFailureIsToldWithItsCauseAndItsFile) {
  Dispatch([] { throw RuntimeError(RuntimeError::DiskFull, "C:\\hill.trk"); });
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Critical, "The disk is full.\r\nFile: C:\\hill.trk", "Error"));
}

TEST_F(FormsModel, AFailureWithoutAFileIsToldByItsCauseAlone) {
  Dispatch([] { throw RuntimeError(RuntimeError::Overflow); });
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "The number is too large."));
}

TEST_F(FormsModel, MemoryThatRunsOutIsTold) {
  Dispatch([] { throw std::bad_alloc(); });
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "There is not enough memory."));
}

TEST_F(FormsModel, AnyOtherFailureIsToldAsUnexpected) {
  Dispatch([] { throw std::out_of_range("row"); });
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "An unexpected error occurred."));
}

TEST_F(FormsModel, WhatIsNoExceptionOfTheLanguageIsToldToo) {
  Dispatch([] { throw 7; });
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "An unexpected error occurred."));
}

TEST_F(FormsModel, AFailureThatCannotBeToldAsUsualIsToldInEnglish) {
  machine.screen.boxesWithoutMemory = 1;
  Dispatch([] { throw RuntimeError(RuntimeError::DiskFull, "C:\\hill.trk"); });
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "The disk is full.", "Error"));
  EXPECT_EQ(user.LastBox().owner, "Main") << "the user cannot leave it unanswered";
}

TEST_F(FormsModel, AMainWindowThatCannotComeBackIsTold) {
  tool.Show();
  Dispatch([this] {
    tool.Leave();
    machine.screen.refusesWindows = true;
  });
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "There is not enough memory."));
  EXPECT_THAT(Screen(), ElementsAre("Tool")) << "the user can still work";
}

TEST_F(FormsModel, AFailureIsToldInTheUsersLanguage) {
  PutTranslation("RTEDiskFull=Voll.\r\nRTEFile=Datei:\r\nRTETitle=Fehler\r\n");
  Dispatch([] { throw RuntimeError(RuntimeError::DiskFull, "a.trk"); });
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "Voll.\r\nDatei: a.trk", "Fehler"));
}

TEST_F(FormsModel, AFailureWithinAnEventEndsOnlyTheInnerOne) {
  bool isReached = false;
  Dispatch([&] {
    Dispatch([] { throw RuntimeError(RuntimeError::Overflow); });
    isReached = true;
  });
  EXPECT_TRUE(isReached);
  EXPECT_EQ(user.Boxes().size(), 1u);
}

TEST_F(FormsModel, AFailedHandlerLeavesItsWindowOnTheStage) {
  tool.Submit.OnClick = [] { throw RuntimeError(RuntimeError::DiskFull); };
  tool.Show();
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "The disk is full."));
  EXPECT_EQ(user.LastBox().owner, "Tool");
  EXPECT_THAT(Screen(), ElementsAre("Tool"));
}

TEST_F(FormsModel, AHandlerThatFailsAfterLeavingBringsBackTheMainWindow) {
  tool.Submit.OnClick = [this] {
    tool.Leave();
    throw RuntimeError(RuntimeError::DiskFull);
  };
  tool.Show();
  user.Presses("Enter");
  EXPECT_EQ(user.LastBox().owner, "Tool") << "the box has a window behind it";
  EXPECT_THAT(Screen(), ElementsAre("Main"));
}

// --- The stage ---

TEST_F(FormsModel, AWindowThatFailsToLoadIsNotLoadedAndTheStageStays) {
  tool.OnLoad = [] { throw RuntimeError(RuntimeError::FileNotFound, "a.dat"); };
  Dispatch([this] { tool.Show(); });
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "The file was not found.\r\nFile: a.dat"));
  EXPECT_FALSE(tool.IsLoaded());
  EXPECT_THAT(Screen(), ElementsAre("Main"));
  tool.OnLoad = nullptr;
  tool.Show();
  EXPECT_THAT(Screen(), ElementsAre("Tool"));
}

TEST_F(FormsModel, AToolThatFailsToTakeOverGivesTheStageToTheMainWindow) {
  other.OnLoad = [] { throw RuntimeError(RuntimeError::FileNotFound); };
  tool.Submit.OnClick = [this] {
    tool.Leave();
    other.Show();
  };
  tool.Show();
  user.Presses("Enter");
  EXPECT_THAT(Screen(), ElementsAre("Main"));
}

TEST_F(FormsModel, AMainWindowThatFailsToLoadEndsTheProgram) {
  Form broken(FixedText("Broken"));
  broken.OnLoad = [] { throw RuntimeError(RuntimeError::FileNotFound); };
  main.Unload();
  RunObjects::End();
  StartProgram(broken);
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "The file was not found."));
  EXPECT_TRUE(HasProgramEnded());
}

TEST_F(FormsModel, LeavingOutsideOfAnEventGivesTheStageBackAtOnce) {
  tool.Show();
  tool.Leave();
  EXPECT_THAT(Screen(), ElementsAre("Main"));
  tool.Leave();
  main.Leave();
  EXPECT_THAT(Screen(), ElementsAre("Main"));
}

TEST_F(FormsModel, LeavingAndStayingIsStaying) {
  Dispatch([this] {
    tool.Show();
    tool.Leave();
    tool.Show();
  });
  EXPECT_THAT(Screen(), ElementsAre("Tool"));
}

TEST_F(FormsModel, AWindowThatLeftOwnsTheBoxesUntilAnotherCame) {
  tool.Submit.OnClick = [this] {
    tool.Leave();
    MsgBox("Done.", "Tool", Icon::Information);
  };
  tool.Show();
  user.Presses("Enter");
  EXPECT_EQ(user.LastBox().owner, "Tool");
  EXPECT_THAT(Screen(), ElementsAre("Main"));
}

TEST_F(FormsModel, UnloadingGivesTheStageToTheWindowThatItsHandlerShows) {
  tool.OnUnload = [this] { other.Show(); };
  tool.Show();
  user.ClosesWindow();
  EXPECT_THAT(Screen(), ElementsAre("Other"));
  EXPECT_FALSE(tool.IsLoaded());
}

TEST_F(FormsModel, UnloadingAWindowThatIsNotOnTheStageChangesNothingElse) {
  tool.Show();
  other.Show();
  tool.Unload();
  EXPECT_THAT(Screen(), ElementsAre("Other"));
  tool.Unload();
  EXPECT_THAT(Screen(), ElementsAre("Other"));
}

TEST_F(FormsModel, ShowingTheMainWindowHidesTheTool) {
  tool.Show();
  MainForm().Show();
  EXPECT_THAT(Screen(), ElementsAre("Main"));
  EXPECT_TRUE(tool.IsLoaded());
  EXPECT_FALSE(tool.IsVisible());
}

TEST_F(FormsModel, OneWindowIsOnTheScreenAtEachMomentOfAHandOver) {
  main.OnLoad = nullptr;
  tool.OnLoad = [this] { EXPECT_THAT(Screen(), ElementsAre("Main")); };
  tool.OnUnload = [this] { EXPECT_THAT(Screen(), ElementsAre("Tool")); };
  tool.Show();
  tool.Unload();
  EXPECT_THAT(Screen(), ElementsAre("Main"));
}

TEST_F(FormsModel, EndingTheProgramEndsAModalWindow) {
  user.WhenWindowOpens("Tool", [] { EndProgram(); });
  tool.ShowModal();
  EXPECT_TRUE(HasProgramEnded());
  EXPECT_THAT(Screen(), IsEmpty());
  EXPECT_EQ(ActiveForm(), nullptr) << "no box is owned by a window that has gone";
}

TEST_F(FormsModel, AModalWindowIsLoadedAnewEachTime) {
  int loads = 0;
  tool.OnLoad = [&] { ++loads; };
  tool.Ccl.OnClick = [this] { tool.EndModal(); };
  for (int i = 0; i < 2; ++i) {
    user.WhenWindowOpens("Tool", [this] { user.Presses("Escape"); });
    tool.ShowModal();
  }
  EXPECT_EQ(loads, 2);
  EXPECT_EQ(ActiveForm(), &main);
}

TEST_F(FormsModel, AModalWindowThatFailsToLoadIsNotShown) {
  tool.OnLoad = [] { throw RuntimeError(RuntimeError::FileNotFound); };
  EXPECT_THROW(tool.ShowModal(), RuntimeError);
  EXPECT_EQ(ActiveForm(), &main);
}

TEST_F(FormsModel, AModalWindowThatFailsWhileItIsOpenIsTakenDown) {
  user.WhenWindowOpens("Tool", [] { throw std::bad_alloc(); });
  EXPECT_THROW(tool.ShowModal(), std::bad_alloc);
  EXPECT_EQ(ActiveForm(), &main);
  EXPECT_FALSE(tool.IsLoaded());
  EXPECT_THAT(Screen(), ElementsAre("Main"));
}

TEST_F(FormsModel, AWindowThatCannotBeShownLeavesTheStageAsItWas) {
  machine.screen.refusesWindows = true;
  EXPECT_THROW(tool.Show(), std::bad_alloc);
  EXPECT_THROW(other.ShowModal(), std::bad_alloc);
  EXPECT_EQ(ActiveForm(), &main);
  EXPECT_FALSE(tool.IsVisible());
  EXPECT_THAT(Screen(), ElementsAre("Main"));
  machine.screen.refusesWindows = false;
  tool.Show();
  EXPECT_THAT(Screen(), ElementsAre("Tool"));
}

TEST_F(FormsModel, ADestroyedWindowLeavesTheStage) {
  {
    StageTool brief("Brief");
    brief.Show();
    EXPECT_EQ(ActiveForm(), &brief);
    MainForm().Show();
  }
  EXPECT_EQ(ActiveForm(), &main);
}

// --- Translation ---

TEST_F(FormsModel, TextsAreLookedUpAtEachLoad) {
  class Translated final : public Form {
   public:
    Translated() : Form({"Title", "Title"}) {}
    TextBox Name{*this, {.label = {"Name", "&Name"}}};
  } form;
  form.Show();
  EXPECT_EQ(user.SeesWindow(), "Title");
  PutTranslation("Title=Titel\r\nName=&Wie\r\n");
  MainForm().Show();
  form.Show();
  EXPECT_EQ(user.Hears(), "Name, edit, Alt+N") << "it is still loaded";
  form.Unload();
  form.Show();
  EXPECT_EQ(user.SeesWindow(), "Titel");
  EXPECT_EQ(user.Hears(), "Wie, edit, Alt+W");
}

// --- Focus ---

TEST_F(FormsModel, AWindowWhoseControlsAreAllDisabledHasTheFocusItself) {
  tool.Show();
  for (Control* control : tool.controls()) control->SetEnabled(false);
  EXPECT_EQ(user.Hears(), "Tool, window");
}

TEST_F(FormsModel, TheFirstControlThatCanTakeTheFocusAgainGetsIt) {
  tool.Show();
  for (Control* control : tool.controls()) control->SetEnabled(false);
  tool.Submit.SetEnabled(true);
  EXPECT_EQ(user.Hears(), "OK, button");
  tool.Name.SetEnabled(true);
  EXPECT_EQ(user.Hears(), "OK, button") << "it stays where it is";
}

TEST_F(FormsModel, ADisabledControlDoesNotTakeTheFocus) {
  tool.Show();
  tool.Submit.SetEnabled(false);
  tool.Submit.Focus();
  EXPECT_EQ(user.Hears(), "Name, edit, Alt+N");
}

TEST_F(FormsModel, ADisabledButtonIsNotPressed) {
  int clicks = 0;
  tool.Submit.OnClick = [&] { ++clicks; };
  tool.Show();
  tool.Submit.SetEnabled(false);
  tool.Submit.Click();
  tool.Submit.SetEnabled(true);
  tool.Submit.SetVisible(false);
  tool.Submit.Click();
  EXPECT_EQ(clicks, 0);
}

// --- Keys ---

class KeysInATextBox : public FormsModel, public testing::WithParamInterface<const char*> {
 protected:
  KeysInATextBox() {
    tool.OnKeyDown = [this](KeyEvent&) { ++keys; };
    tool.Show();
  }
  int keys = 0;
};

class EditingKeys : public KeysInATextBox {};

TEST_P(EditingKeys, StayWithTheTextBox) {
  user.Presses(GetParam());
  EXPECT_EQ(keys, 0);
  tool.Submit.Focus();
  user.Presses(GetParam());
  EXPECT_EQ(keys, 1) << "elsewhere the window sees them";
}

INSTANTIATE_TEST_SUITE_P(All, EditingKeys,
                         testing::Values("Ctrl+A", "Ctrl+C", "Ctrl+V", "Ctrl+X", "Ctrl+Z", "Left",
                                         "Right", "Up", "Down", "Home", "End", "Shift+Home",
                                         "Ctrl+Left", "Ctrl+Shift+End", "Delete", "Ctrl+Delete",
                                         "Backspace", "A", "Shift+A", "7"));

class OtherKeys : public KeysInATextBox {};

TEST_P(OtherKeys, AreSeenByTheWindow) {
  user.Presses(GetParam());
  EXPECT_EQ(keys, 1);
}

INSTANTIATE_TEST_SUITE_P(All, OtherKeys,
                         testing::Values("Ctrl+N", "Ctrl+Shift+N", "Ctrl+P", "Alt+C", "Escape",
                                         "Enter", "Tab", "Shift+Tab", "F1", "F5", "Alt+F4"));

// --- Access keys ---

class AccessKeys : public Story {};

TEST_F(AccessKeys, TheLetterStandsBehindTheFirstSingleAmpersand) {
  EXPECT_EQ(AccessKey("&Open"), 'o');
  EXPECT_EQ(AccessKey("&\xD6l"), '\xF6');
  EXPECT_EQ(AccessKey("Save &As"), 'a');
  EXPECT_EQ(AccessKey("Tom && &Jane"), 'j');
  EXPECT_EQ(AccessKey("Tom && Jane"), 0);
  EXPECT_EQ(AccessKey("Open&"), 0);
  EXPECT_EQ(AccessKey(""), 0);
}

TEST_F(AccessKeys, ACaptionIsShownWithoutItsMark) {
  EXPECT_EQ(WithoutAccessKey("&Open"), "Open");
  EXPECT_EQ(WithoutAccessKey("Tom && &Jane"), "Tom & Jane");
  EXPECT_EQ(WithoutAccessKey("Open&"), "Open");
  for (const char* name : {"Tom & Jane", "A&B", "&&", "&", ""}) {
    EXPECT_EQ(WithoutAccessKey(AsCaption(name)), name);
    EXPECT_EQ(AccessKey(AsCaption(name)), 0);
  }
}

class SharedKeys : public Story {
 protected:
  Form form{FixedText("Keys")};
};

TEST_F(SharedKeys, AreFoundAmongButtonsAndLabels) {
  TextBox Name(form, {.label = FixedText("&Name")});
  Button New(form, {.text = FixedText("&New")});
  Button Old(form, {.text = FixedText("&Old")});
  Name.SetCaption("&Name");
  New.SetCaption("&new");
  Old.SetCaption("&Old");
  EXPECT_THAT(SharedAccessKeys(form), ElementsAre("&Name / &new"));
  New.SetEnabled(false);
  EXPECT_THAT(SharedAccessKeys(form), IsEmpty());
}

TEST_F(SharedKeys, AreFoundInOneMenuOnly) {
  MenuItem File(form, {.text = FixedText("&File")});
  MenuItem Find(File, {.text = FixedText("&Find")});
  MenuItem Close(File, {.text = FixedText("&Close")});
  MenuItem Copy(File, {.text = FixedText("&Copy")});
  form.TranslateMenu();
  EXPECT_THAT(SharedAccessKeys(form), ElementsAre("&Close / &Copy"));
}

TEST_F(SharedKeys, AreTheSameInCapitalAndSmallLettersOfAnyLanguage) {
  Button Open(form, {.text = FixedText("")});
  Button More(form, {.text = FixedText("")});
  Open.SetCaption("&\xD6l");
  More.SetCaption("H&\xF6he");
  EXPECT_THAT(SharedAccessKeys(form), ElementsAre("&\xD6l / H&\xF6he"));
}

}  // namespace
