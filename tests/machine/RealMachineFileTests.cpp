// What only the real machine can get wrong with files and their dialogs.
#include <gmock/gmock.h>

#include "base/RuntimeError.h"
#include "machine/win32/CodePage.h"
#include "machine/win32/System.h"
#include "platform/Files.h"
#include "tests/machine/RealMachine.h"
#include "tests/machine/TestMachine.h"
#include "ui/FileDialog.h"
#include "ui/Forms.h"

namespace {

class RealFiles : public ContractTest {
 protected:
  std::string In(const std::string& name) const { return folder + "\\" + name; }

  const std::string folder = TestMachine::ScratchFolder();
};

// Gives an environment variable another value while it lives.
class Environment {
 public:
  Environment(const char* name, const std::string& value) : name_(name), before_(Value(name)) {
    SetEnvironmentVariableA(name, value.c_str());
  }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;
  ~Environment() { SetEnvironmentVariableA(name_, before_.c_str()); }

 private:
  static std::string Value(const char* name) {
    char value[MAX_PATH + 1] = "";
    return {value, GetEnvironmentVariableA(name, value, sizeof value)};
  }

  const char* name_;
  std::string before_;
};

class RewritingInPlace : public RealFiles {
 protected:
  // A folder that takes no new files, with a file in it and a place for temporary ones elsewhere.
  bool Prepare(const std::string& bytes) {
    TestMachine::PutFolder(temporary);
    TestMachine::PutFolder(In("game"));
    TestMachine::PutFile(path, bytes);
    return TestMachine::RefuseNewFiles(In("game"));
  }

  const std::string temporary = In("temp");
  const std::string path = In("game\\hill.trk");
};

TEST_F(RewritingInPlace, LeavesNothingInTheTemporaryFolder) {
  if (!Prepare("old")) GTEST_SKIP() << "not to be had on this machine";
  const Environment tmp("TMP", temporary);
  Platform::WriteWholeFile(path, "new");
  EXPECT_EQ(TestMachine::BytesOf(path), "new");
  EXPECT_EQ(TestMachine::NamesIn(temporary), std::vector<std::string>{});
}

TEST_F(RewritingInPlace, PutsTheOldContentsBackIfItFailsHalfWay) {
  const std::string old(3 << 20, 'a');
  if (!Prepare(old)) GTEST_SKIP() << "not to be had on this machine";
  const Environment tmp("TMP", temporary);
  {
    Platform::FileWriter writer(path);
    writer.Write("short");
    if (!RealMachine::RefuseShortening(path)) GTEST_SKIP() << "not to be had on this machine";
    try {
      writer.Finish();
      ADD_FAILURE() << "did not fail";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), RuntimeError::PermissionDenied);
      EXPECT_EQ(error.file(), path);
    }
  }
  EXPECT_TRUE(TestMachine::BytesOf(path) == old);
  EXPECT_EQ(TestMachine::NamesIn(temporary), std::vector<std::string>{});
}

TEST_F(RewritingInPlace, FailsWhereThereIsNoTemporaryFolder) {
  if (!Prepare("old")) GTEST_SKIP() << "not to be had on this machine";
  const Environment tmp("TMP", std::string(300, 'x'));
  try {
    Platform::WriteWholeFile(path, "new");
    ADD_FAILURE() << "did not fail";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), RuntimeError::PermissionDenied);
    EXPECT_EQ(error.file(), path);
  }
  EXPECT_EQ(TestMachine::BytesOf(path), "old");
}

TEST_F(RealFiles, ANameThatTheCodePageCannotHoldIsNeverThatOfAnotherFile) {
  EXPECT_EQ(Platform::Narrow(L"a\u00E9"), "a\xE9");
  EXPECT_EQ(Platform::Narrow(L"\u0100.trk"), "?.trk");
  EXPECT_EQ(Platform::Narrow(L"\uFF21\u2212\u5C71"), "???");
}

// The folder is passed with the pattern behind it: the box must show nothing odd for that, and
// typing must replace it.
TEST_F(RealFiles, ADialogBeginsWithThePatternSelected) {
  Platform::Form main(FixedText("Main"));
  Platform::StartProgram(main);
  for (const auto kind : {Platform::FileDialog::Kind::Open, Platform::FileDialog::Kind::Save}) {
    Platform::FileDialog dialog(kind);
    dialog.title = "Track file";
    dialog.fileType = "SK2 Track files (*.trk)";
    dialog.pattern = "*.trk";
    dialog.initialFolder = folder;
    TestMachine::WhenModalWindowOpens([] {
      char text[300] = "";
      GetWindowTextA(GetFocus(), text, sizeof text);
      EXPECT_STREQ(text, "*.trk");
      TestMachine::Press("Enter");  // lists the files of that pattern, and chooses none
      EXPECT_EQ(TestMachine::ActiveWindow(), "Track file");
      TestMachine::Press("Ctrl+A");
      TestMachine::Type("lake.trk");
      TestMachine::Press("Enter");
    });
    EXPECT_EQ(dialog.Show(), In("lake.trk"));
    TestMachine::WhenModalWindowOpens([] {
      EXPECT_EQ(TestMachine::SelectedText(), "*.trk");
      TestMachine::Type("hill.trk");
      TestMachine::Press("Enter");
    });
    EXPECT_EQ(dialog.Show(), In("hill.trk"));
  }
}

TEST_F(RealFiles, CharactersOfOtherCodePagesAreKnown) {
  using Platform::WholeCharacterLengthIn;
  EXPECT_EQ(WholeCharacterLengthIn(932, "\x95\x5C"), 2u);
  EXPECT_EQ(WholeCharacterLengthIn(932, "\x95"), 0u);
  EXPECT_EQ(WholeCharacterLengthIn(932, "\x95\r\n"), 0u);
  EXPECT_EQ(WholeCharacterLengthIn(936, "\x95\x5C"), 2u);
  EXPECT_EQ(WholeCharacterLengthIn(1252, "\x95\x5C"), 1u);
  EXPECT_EQ(WholeCharacterLengthIn(CP_UTF8, "\xF0\x9F\x98\x80"), 4u);
  EXPECT_EQ(WholeCharacterLengthIn(CP_UTF8, "\xF0\x9F\x98"), 0u);
  EXPECT_EQ(Platform::NarrowTo(932, L"\u8868"), "\x95\x5C");
  EXPECT_EQ(Platform::WidenFrom(CP_UTF8, "\xF0\x9F\x98\x80"), L"\xD83D\xDE00");
}

TEST_F(RealFiles, ADialogLeavesTheCurrentFolderAndTheChosenNameAsTheyAre) {
  const auto currentFolder = [] {
    char path[MAX_PATH + 1] = "";
    return std::string(path, GetCurrentDirectoryA(sizeof path, path));
  };
  Platform::Form main(FixedText("Main"));
  Platform::StartProgram(main);
  TestMachine::PutFolder(In("tracks"));
  TestMachine::PutFile(In("tracks\\A.trk"), "1");
  const std::string before = currentFolder();
  for (const auto kind : {Platform::FileDialog::Kind::Open, Platform::FileDialog::Kind::Save}) {
    Platform::FileDialog dialog(kind);
    dialog.title = "Track file";
    dialog.initialFolder = folder;
    TestMachine::WhenModalWindowOpens(
        [&] { TestMachine::ChooseInFileDialog(In("tracks\\lake.trk")); });
    EXPECT_EQ(dialog.Show(), In("tracks\\lake.trk"));
    EXPECT_EQ(currentFolder(), before);
    TestMachine::WhenModalWindowOpens([] {
      SetWindowTextW(GetFocus(), L"tracks\\\u0100.trk");
      TestMachine::Press("Enter");
    });
    try {
      ADD_FAILURE() << "not the A that looks like it, but " << dialog.Show();
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), RuntimeError::PathFileAccess);
      EXPECT_EQ(error.file(), In("tracks\\?.trk"));
    }
    TestMachine::WhenModalWindowOpens([] { TestMachine::LeaveFileDialog(); });
    dialog.Show();
    EXPECT_EQ(currentFolder(), before);
  }
}

}  // namespace
