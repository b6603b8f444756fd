// What every machine promises of what comes over a window and waits for the user: message boxes,
// input boxes, modal windows, file dialogs. Included once by each machine's tests.
#pragma once

#include <gmock/gmock.h>

#include "base/RuntimeError.h"
#include "tests/machine/TestMachine.h"
#include "ui/BoxText.h"
#include "ui/FileDialog.h"
#include "ui/Forms.h"
#include "ui/InputBox.h"
#include "ui/MsgBox.h"

class DialogsContract : public ContractTest {
 protected:
  using Lines = std::vector<std::string>;

  DialogsContract() {
    Platform::StartProgram(main);
    Second.Focus();
  }

  // What the user answers to a box by pressing a key.
  Platform::Answer AnswerBy(const char* key, Platform::Icon icon, Platform::Buttons buttons) {
    TestMachine::WhenModalWindowOpens([key] { TestMachine::Press(key); });
    return Platform::MsgBox("Really?", "Question", icon, buttons);
  }

  Platform::Form main{FixedText("Main")};
  Platform::TextBox First{main, {.label = FixedText("&First")}};
  Platform::TextBox Second{main, {.label = FixedText("&Second")}};
};

TEST_F(DialogsContract, ABoxShowsItsTextOverTheWindow) {
  TestMachine::WhenModalWindowOpens([] {
    EXPECT_EQ(TestMachine::MessageBoxOnScreen().title, "File OK");
    EXPECT_EQ(TestMachine::MessageBoxOnScreen().text, "Tom & Jane's track\r\nis fine.");
    EXPECT_EQ(TestMachine::VisibleWindows(), (Lines{"File OK", "Main"}));
    EXPECT_EQ(TestMachine::ActiveWindow(), "File OK");
    TestMachine::Press("Enter");
  });
  EXPECT_EQ(
      Platform::MsgBox("Tom & Jane's track\r\nis fine.", "File OK", Platform::Icon::Information),
      Platform::Answer::Ok);
  EXPECT_EQ(TestMachine::VisibleWindows(), Lines{"Main"});
  EXPECT_EQ(TestMachine::Hears(), "Second, edit, Alt+S") << "where the user was before";
}

TEST_F(DialogsContract, ABoxShowsATextWithControlCharactersToItsEnd) {
  TestMachine::WhenModalWindowOpens([] {
    EXPECT_EQ(TestMachine::MessageBoxOnScreen().text, "M?o?t?o?r? is\r\nun\nknown.");
    TestMachine::Press("Enter");
  });
  const char text[] = "M\0o\0t\0o\0r\0 is\r\nun\nknown.";
  Platform::MsgBox({text, sizeof text - 1}, "File Error", Platform::Icon::Critical);
}

TEST_F(DialogsContract, ABoxShowsTheBeginningAndTheEndOfAVeryLongText) {
  TestMachine::WhenModalWindowOpens([] {
    const std::string text = TestMachine::MessageBoxOnScreen().text;
    EXPECT_LE(text.size(), Platform::LongestBoxText);
    EXPECT_THAT(text, testing::StartsWith("Line 1: xxx"));
    EXPECT_THAT(text, testing::EndsWith("xxx is unknown."));
    TestMachine::Press("Enter");
  });
  Platform::MsgBox("Line 1: " + std::string(1 << 20, 'x') + " is unknown.", "File Error",
                   Platform::Icon::Critical);
}

TEST_F(DialogsContract, EscapeIsOkInABoxWithOkAlone) {
  EXPECT_EQ(AnswerBy("Escape", Platform::Icon::Critical, Platform::Buttons::Ok),
            Platform::Answer::Ok);
}

TEST_F(DialogsContract, AQuestionHasItsDefaultAnswer) {
  using enum Platform::Buttons;
  EXPECT_EQ(AnswerBy("Enter", Platform::Icon::Question, YesNo), Platform::Answer::Yes);
  EXPECT_EQ(AnswerBy("Enter", Platform::Icon::Question, YesNoDefaultNo), Platform::Answer::No);
}

TEST_F(DialogsContract, AQuestionIsAnsweredByItsAccessKeys) {
  using enum Platform::Buttons;
  EXPECT_EQ(AnswerBy("Alt+N", Platform::Icon::Question, YesNo), Platform::Answer::No);
  EXPECT_EQ(AnswerBy("Alt+Y", Platform::Icon::Question, YesNoDefaultNo), Platform::Answer::Yes);
}

TEST_F(DialogsContract, AFailedHandlerIsToldAndTheWindowStays) {
  std::string text;
  TestMachine::WhenModalWindowOpens([&] {
    text = TestMachine::MessageBoxOnScreen().text;
    EXPECT_EQ(TestMachine::MessageBoxOnScreen().title, "Error");
    TestMachine::Press("Enter");
  });
  First.OnChange = [] { throw RuntimeError(RuntimeError::DiskFull, "C:\\hill.trk"); };
  First.Focus();
  TestMachine::Type("x");
  EXPECT_EQ(text, "The disk is full.\r\nFile: C:\\hill.trk");
  EXPECT_EQ(TestMachine::VisibleWindows(), Lines{"Main"});
  EXPECT_EQ(TestMachine::Hears(), "First, edit, x, Alt+F");
}

TEST_F(DialogsContract, AnInputBoxAsksForALine) {
  TestMachine::WhenModalWindowOpens([] {
    EXPECT_EQ(TestMachine::ActiveWindow(), "Random track");
    EXPECT_EQ(TestMachine::Hears(), "How many parts & curves?, edit");
    TestMachine::Type("30");
    TestMachine::Press("Enter");
  });
  EXPECT_EQ(Platform::InputBox("How many parts & curves?", "Random track"), "30");
  EXPECT_EQ(TestMachine::VisibleWindows(), Lines{"Main"});
  EXPECT_EQ(TestMachine::Hears(), "Second, edit, Alt+S");
}

TEST_F(DialogsContract, AnInputBoxIsCancelledByEscapeAndByItsCloseBox) {
  TestMachine::WhenModalWindowOpens([] {
    TestMachine::Type("30");
    TestMachine::Press("Escape");
  });
  EXPECT_EQ(Platform::InputBox("How many?", "Random track"), "");
  TestMachine::WhenModalWindowOpens([] {
    TestMachine::Type("30");
    TestMachine::CloseWindow();
  });
  EXPECT_EQ(Platform::InputBox("How many?", "Random track"), "");
  EXPECT_EQ(TestMachine::Hears(), "Second, edit, Alt+S");
}

TEST_F(DialogsContract, AnInputBoxIsWorkedByTabAndSpace) {
  TestMachine::WhenModalWindowOpens([] {
    TestMachine::Type("30");
    TestMachine::Press("Tab");
    EXPECT_EQ(TestMachine::Hears(), "OK, button");
    TestMachine::Press("Tab");
    EXPECT_EQ(TestMachine::Hears(), "Cancel, button");
    TestMachine::Press("Tab");
    EXPECT_EQ(TestMachine::Hears(), "How many?, edit, 30");
    TestMachine::Press("Shift+Tab");
    TestMachine::Press("Shift+Tab");
    TestMachine::Press("Space");
  });
  EXPECT_EQ(Platform::InputBox("How many?", "Random track"), "30");
}

TEST_F(DialogsContract, ABoxMayComeOverAModalWindow) {
  Platform::Form question(FixedText("Length"));
  Platform::TextBox Length(question, {.label = FixedText("&Length")});
  Platform::Button Submit(question, {.text = FixedText("OK"), .isDefault = true});
  Submit.OnClick = [&] {
    if (Length.text().empty()) throw RuntimeError(RuntimeError::TypeMismatch);
    question.EndModal();
  };
  TestMachine::WhenModalWindowOpens([&] {
    TestMachine::WhenModalWindowOpens([] { TestMachine::Press("Enter"); });
    TestMachine::Press("Enter");
    EXPECT_TRUE(question.IsVisible());
    EXPECT_EQ(TestMachine::Hears(), "Length, edit, Alt+L");
    TestMachine::Type("7");
    TestMachine::Press("Enter");
  });
  question.ShowModal();
  EXPECT_EQ(Length.text(), "7");
  EXPECT_FALSE(question.IsVisible());
  EXPECT_EQ(TestMachine::VisibleWindows(), Lines{"Main"});
}

TEST_F(DialogsContract, AWindowUnderABoxIsNotClosedByOtherPrograms) {
  int closes = 0;
  main.OnClose = [&] { ++closes; };
  TestMachine::WhenModalWindowOpens([] {
    TestMachine::CloseFromTaskbar("Main");
    EXPECT_EQ(TestMachine::VisibleWindows(), (Lines{"Main", "Question"}));
    TestMachine::Press("Alt+Y");
  });
  EXPECT_EQ(Platform::MsgBox("Really?", "Question", Platform::Icon::Question,
                             Platform::Buttons::YesNoDefaultNo),
            Platform::Answer::Yes);
  EXPECT_EQ(closes, 0);
  TestMachine::CloseFromTaskbar("Main");
  EXPECT_EQ(closes, 1) << "now it is in use";
}

TEST_F(DialogsContract, AWindowThatIsHiddenIsNotClosedWhileABoxIsOpen) {
  Platform::Form tool(FixedText("Tool"));
  Platform::Button Submit(tool, {.text = FixedText("OK"), .isDefault = true});
  tool.Show();
  TestMachine::WhenModalWindowOpens([] {
    TestMachine::CloseFromTaskbar("Main");
    TestMachine::CloseFromTaskbar("Tool");
    TestMachine::Press("Alt+Y");
  });
  EXPECT_EQ(Platform::MsgBox("Really?", "Question", Platform::Icon::Question,
                             Platform::Buttons::YesNoDefaultNo),
            Platform::Answer::Yes);
  EXPECT_FALSE(Platform::HasProgramEnded());
  EXPECT_EQ(TestMachine::VisibleWindows(), Lines{"Tool"});
}

TEST_F(DialogsContract, AWindowUnderAnInputBoxIsNotClosed) {
  int closes = 0;
  main.OnClose = [&] { ++closes; };
  TestMachine::WhenModalWindowOpens([] {
    TestMachine::CloseFromTaskbar("Main");
    TestMachine::Type("30");
    TestMachine::Press("Enter");
  });
  EXPECT_EQ(Platform::InputBox("How many?", "Random track"), "30");
  EXPECT_EQ(closes, 0);
}

// --- File dialogs ---

class FileDialogContract : public DialogsContract {
 protected:
  FileDialogContract() {
    for (Platform::FileDialog* each : {&open, &save}) {
      each->title = "Track file";
      each->fileType = "SK2 Track files (*.trk)";
      each->pattern = "*.trk";
      each->initialFolder = folder;
    }
  }

  // What the dialog returns when the user types a text in it.
  static std::string Typing(const std::string& text, Platform::FileDialog& dialog,
                            std::optional<bool> replaces = std::nullopt) {
    TestMachine::WhenModalWindowOpens([&] {
      EXPECT_EQ(TestMachine::ActiveWindow(), "Track file");
      TestMachine::ChooseInFileDialog(text, replaces);
    });
    return dialog.Show();
  }

  const std::string folder = TestMachine::ScratchFolder();
  Platform::FileDialog open{Platform::FileDialog::Kind::Open};
  Platform::FileDialog save{Platform::FileDialog::Kind::Save};
};

TEST_F(FileDialogContract, GivesTheFullPathThatWasChosen) {
  TestMachine::PutFile(folder + "\\hill.trk", "1");
  EXPECT_EQ(Typing(folder + "\\hill.trk", open), folder + "\\hill.trk");
  EXPECT_EQ(Typing(folder + "\\lake.trk", save), folder + "\\lake.trk");
  EXPECT_EQ(TestMachine::Hears(), "Second, edit, Alt+S");
}

TEST_F(FileDialogContract, ABareNameIsInTheInitialFolder) {
  TestMachine::PutFile(folder + "\\hill.trk", "1");
  EXPECT_EQ(Typing("hill.trk", open), folder + "\\hill.trk");
  EXPECT_EQ(Typing("lake.trk", save), folder + "\\lake.trk");
}

TEST_F(FileDialogContract, AnInitialFolderThatIsNoneIsDoneWithout) {
  TestMachine::PutFile(folder + "\\hill.trk", "1");
  const std::string none = "C:\\" + std::string(300, 'x');
  for (const std::string& wrong : {folder + "\\nowhere", std::string("<:?*>"), none}) {
    open.initialFolder = wrong;
    EXPECT_EQ(Typing(folder + "\\hill.trk", open), folder + "\\hill.trk") << wrong;
  }
}

// The user goes elsewhere in one dialog; the next opens in its own folder all the same, even in the
// one where the first dialog began.
TEST_F(FileDialogContract, OpensInItsOwnFolderWhereverTheUserWasLast) {
  const std::string other = folder + "\\other";
  TestMachine::PutFolder(other);
  for (const std::string& each : {folder, other}) TestMachine::PutFile(each + "\\hill.trk", "1");
  EXPECT_EQ(Typing("hill.trk", open), folder + "\\hill.trk");
  EXPECT_EQ(Typing(other + "\\hill.trk", open), other + "\\hill.trk");
  EXPECT_EQ(Typing("hill.trk", open), folder + "\\hill.trk");
  EXPECT_EQ(Typing("lake.trk", save), folder + "\\lake.trk");
  EXPECT_EQ(Typing(other + "\\lake.trk", save), other + "\\lake.trk");
  EXPECT_EQ(Typing("lake.trk", save), folder + "\\lake.trk");
  open.initialFolder = other;
  EXPECT_EQ(Typing("hill.trk", open), other + "\\hill.trk");
}

TEST_F(FileDialogContract, AnInitialFolderMayBeARootOrEndInABackslash) {
  TestMachine::PutFile(folder + "\\hill.trk", "1");
  open.initialFolder = folder + "\\";
  EXPECT_EQ(Typing(folder + "\\hill.trk", open), folder + "\\hill.trk");
  open.initialFolder = "C:\\";
  EXPECT_EQ(Typing("sk2-nothing.trk", open), "C:\\sk2-nothing.trk");
}

TEST_F(FileDialogContract, ShowingADialogChangesNothingInIt) {
  const Platform::FileDialog& shown = save;
  EXPECT_EQ(Typing(folder + "\\other.trk", save), folder + "\\other.trk");
  EXPECT_EQ(shown.title, "Track file");
  EXPECT_EQ(shown.initialFolder, folder);
  EXPECT_EQ(shown.pattern, "*.trk");
}

TEST_F(FileDialogContract, AFileToOpenNeedNotExist) {
  EXPECT_EQ(Typing(folder + "\\nothing.trk", open), folder + "\\nothing.trk");
}

TEST_F(FileDialogContract, ANameWithoutExtensionGetsTheDefaultOne) {
  // The same as in the filter: where they differ, the system takes that of the filter.
  save.fileType = "SK2 Vehicle files (*.vhc)";
  save.pattern = "*.vhc";
  save.defaultExtension = "vhc";
  EXPECT_EQ(Typing("car", save), folder + "\\car.vhc");
  EXPECT_EQ(Typing("truck.vhc", save), folder + "\\truck.vhc");
}

TEST_F(FileDialogContract, WithoutADefaultExtensionANameStaysAsTyped) {
  EXPECT_EQ(Typing("hill", save), folder + "\\hill");
}

TEST_F(FileDialogContract, SavingOverAFileIsConfirmedInTheDialog) {
  TestMachine::PutFile(folder + "\\hill.trk", "1");
  EXPECT_EQ(Typing("hill.trk", save, true), folder + "\\hill.trk");
  EXPECT_EQ(Typing("HILL.TRK", save, true), folder + "\\HILL.TRK");
  EXPECT_EQ(TestMachine::BytesOf(folder + "\\hill.trk"), "1") << "it only asks";
}

TEST_F(FileDialogContract, TheDialogStaysIfAFileShallNotBeReplaced) {
  TestMachine::PutFile(folder + "\\hill.trk", "1");
  TestMachine::WhenModalWindowOpens([&] {
    TestMachine::ChooseInFileDialog("hill.trk", false);
    EXPECT_EQ(TestMachine::ActiveWindow(), "Track file");
    TestMachine::ChooseInFileDialog("lake.trk");
  });
  EXPECT_EQ(save.Show(), folder + "\\lake.trk");
  TestMachine::WhenModalWindowOpens([&] {
    TestMachine::ChooseInFileDialog("hill.trk", false);
    TestMachine::LeaveFileDialog();
  });
  EXPECT_EQ(save.Show(), "");
}

TEST_F(FileDialogContract, AFolderThatIsNotThereIsToldAndTheDialogStays) {
  for (Platform::FileDialog* each : {&open, &save}) {
    TestMachine::WhenModalWindowOpens([&] {
      TestMachine::ChooseInMissingFolder(folder + "\\nowhere\\hill.trk");
      EXPECT_EQ(TestMachine::ActiveWindow(), "Track file");
      TestMachine::ChooseInFileDialog(folder + "\\lake.trk");
    });
    EXPECT_EQ(each->Show(), folder + "\\lake.trk");
  }
}

TEST_F(FileDialogContract, OpeningAFileAsksNothing) {
  TestMachine::PutFile(folder + "\\hill.trk", "1");
  EXPECT_EQ(Typing("hill.trk", open), folder + "\\hill.trk");
}

TEST_F(FileDialogContract, NoCharacterOfTheFileTypeHasAMeaning) {
  for (const std::string& type : {std::string("A|B"), std::string("A||"), std::string("A\0B", 3)}) {
    open.fileType = type;
    EXPECT_EQ(Typing(folder + "\\hill.trk", open), folder + "\\hill.trk");
  }
}

TEST_F(FileDialogContract, ACancelledDialogGivesNothing) {
  for (Platform::FileDialog* each : {&open, &save}) {
    TestMachine::WhenModalWindowOpens([] { TestMachine::LeaveFileDialog(); });
    EXPECT_EQ(each->Show(), "");
  }
  EXPECT_EQ(TestMachine::Hears(), "Second, edit, Alt+S");
}
