// What every machine promises of saves that are cut off, refused or in the way of others: the first
// words of platform/Files.h. Included once by each machine's tests.
#pragma once

#include "platform/InterruptedSave.h"
#include "platform/Paths.h"
#include "platform/SideFile.h"
#include "tests/platform/FileContract.h"

class SavesContract : public FilesContract {
 protected:
  // A file as a rewriting in place has left it that was cut off.
  void PutInterrupted(const std::string& holds, const std::string& before,
                      const std::string& meant) const {
    TestMachine::PutFile(path, holds);
    TestMachine::PutFile(files.old, before);
    TestMachine::PutFile(files.contents, meant);
  }

  // What the user is told, and whether anything is left to be told of.
  static std::vector<std::string> Told() {
    std::vector<std::string> keys;
    for (const Platform::SaveNote& note : Platform::TakeSaveNotes()) keys.push_back(note.text.key);
    return keys;
  }

  std::vector<std::string> Rescued() const {
    std::vector<std::string> names = TestMachine::NamesIn(Platform::FolderOf(files.old));
    std::erase_if(names, [](const std::string& name) { return !name.starts_with("sk2pack-"); });
    return names;
  }

  const std::string path = In("highscore.cfg");
  const TestMachine::OwnTemporaryFolder temporary;
  const Platform::RescueFiles files{path};
};

// --- Side files ---

TEST_F(SavesContract, TheNextSaveRemovesWhatAnEndedOneLeft) {
  TestMachine::PutFile(path, "old");
  TestMachine::PutFile(In(Platform::SideFileName(1)), "half of a ne");
  TestMachine::PutFile(In(Platform::SideFileName(999)), "");
  WriteWholeFile(path, "new");
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"highscore.cfg"});
}

TEST_F(SavesContract, ASaveRemovesNothingThatIsNotOurs) {
  // Names that look alike, one of them but for a single letter, and a folder.
  std::string almost = Platform::SideFileName(7);
  almost[3] = almost[3] == 'a' ? 'b' : 'a';
  const std::vector<std::string> others = {"~000001.tmp", "~abcdef.sk2", "~sk2.tmp", almost};
  for (const std::string& name : others) TestMachine::PutFile(In(name), "a user's");
  TestMachine::PutFolder(In(Platform::SideFileName(8)));
  auto names = TestMachine::NamesIn(folder);
  WriteWholeFile(path, "new");
  names.push_back("highscore.cfg");
  std::sort(names.begin(), names.end());
  EXPECT_EQ(TestMachine::NamesIn(folder), names);
}

TEST_F(SavesContract, ASaveLeavesAnotherThatIsUnderWayAlone) {
  FileWriter slow(In("Race.trk"));
  slow.Write("a long ");
  WriteWholeFile(path, "new");
  slow.Write("track");
  slow.Finish();
  EXPECT_EQ(TestMachine::BytesOf(In("Race.trk")), "a long track");
  EXPECT_EQ(TestMachine::NamesIn(folder), (std::vector<std::string>{"Race.trk", "highscore.cfg"}));
}

// --- Files that the game holds ---

TEST_F(SavesContract, AFileThatIsHeldButMayBeWrittenIsRewrittenInPlace) {
  TestMachine::PutFile(path, "hill=1000\r\n");
  TestMachine::SetAttributes(path, TestMachine::Hidden);
  TestMachine::Hold(path, Sharing::ForReadingAndWriting);
  WriteWholeFile(path, "hill=1000\r\nlake=2000\r\n");
  EXPECT_EQ(TestMachine::BytesOf(path), "hill=1000\r\nlake=2000\r\n");
  WriteWholeFile(path, "");
  EXPECT_EQ(TestMachine::BytesOf(path), "");
  WriteInPieces(path, {"moor", "=3000\r\n"});
  EXPECT_EQ(TestMachine::BytesOf(path), "moor=3000\r\n");
  EXPECT_EQ(TestMachine::AttributesOf(path), TestMachine::Hidden);
  EXPECT_TRUE(FailsWith(RuntimeError::PermissionDenied, path, [&] { RemoveFile(path); }));
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"highscore.cfg"});
  EXPECT_TRUE(Rescued().empty());
}

TEST_F(SavesContract, AFileThatIsBeingReadIsRewrittenInPlace) {
  TestMachine::PutFile(path, "old");
  FileReader reader(path);
  WriteWholeFile(path, "newer");
  EXPECT_EQ(ReadToEnd(reader), "newer");
}

// --- Saves in place that were cut off ---

TEST_F(SavesContract, AFileThatWasCutOffHalfWayGetsItsOldContentsBack) {
  PutInterrupted("NEW Nld old", "old old old", "NEW NEW NEW");
  EXPECT_EQ(ReadWholeFile(path), "old old old");
  EXPECT_EQ(TestMachine::BytesOf(path), "old old old");
  EXPECT_EQ(Told(), std::vector<std::string>{RuntimeErrorTexts.PutBack.key});
  EXPECT_TRUE(Rescued().empty());
  EXPECT_EQ(ReadWholeFile(path), "old old old");
  EXPECT_TRUE(Told().empty());
}

TEST_F(SavesContract, EveryUseOfAFileMakesItGoodFirst) {
  const auto expectGood = [&](const char* use) {
    EXPECT_EQ(Told().size(), 1u) << use;
    EXPECT_TRUE(Rescued().empty()) << use;
  };
  PutInterrupted("newold", "oldold", "newnew");
  {
    FileReader reader(path);
    EXPECT_EQ(ReadToEnd(reader), "oldold");
  }
  expectGood("FileReader");
  PutInterrupted("newold", "oldold", "newnew");
  AppendToFile(path, "er");
  EXPECT_EQ(TestMachine::BytesOf(path), "oldolder");
  expectGood("AppendToFile");
  PutInterrupted("newold", "oldold", "newnew");
  { FileWriter unfinished(path); }
  EXPECT_EQ(TestMachine::BytesOf(path), "oldold");
  expectGood("FileWriter");
  PutInterrupted("newold", "oldold", "newnew");
  CopyFileTo(path, In("copy.cfg"));
  EXPECT_EQ(TestMachine::BytesOf(In("copy.cfg")), "oldold");
  expectGood("CopyFileTo");
  PutInterrupted("newold", "oldold", "newnew");
  RenameFile(path, In("renamed.cfg"));
  EXPECT_EQ(TestMachine::BytesOf(In("renamed.cfg")), "oldold");
  expectGood("RenameFile");
}

TEST_F(SavesContract, ALongerFileWhoseRoomWasTakenGetsItsLengthBack) {
  PutInterrupted(std::string("new\0\0\0\0\0\0", 9), "old", "newnewnew");
  EXPECT_EQ(ReadWholeFile(path), "old");
  EXPECT_EQ(Told().size(), 1u);
}

TEST_F(SavesContract, ASaveThatWasFinishedButForItsCopyStays) {
  PutInterrupted("newer", "old", "newer");
  EXPECT_EQ(ReadWholeFile(path), "newer");
  EXPECT_TRUE(Told().empty());
  EXPECT_TRUE(Rescued().empty());
}

TEST_F(SavesContract, ASaveThatHadNotBegunStaysUntold) {
  PutInterrupted("old", "old", "newer");
  EXPECT_EQ(ReadWholeFile(path), "old");
  EXPECT_TRUE(Told().empty());
  EXPECT_TRUE(Rescued().empty());
}

TEST_F(SavesContract, WhatAnotherProgramHasWrittenSinceIsLeftAlone) {
  PutInterrupted("newold, and more", "oldold", "newnew");
  EXPECT_EQ(ReadWholeFile(path), "newold, and more");
  const auto notes = Platform::TakeSaveNotes();
  ASSERT_EQ(notes.size(), 1u);
  EXPECT_STREQ(notes[0].text.key, RuntimeErrorTexts.NotPutBack.key);
  EXPECT_EQ(notes[0].file, path);
  EXPECT_EQ(TestMachine::BytesOf(notes[0].copy), "oldold") << "the copy is the user's now";
  EXPECT_EQ(ReadWholeFile(path), "newold, and more");
  EXPECT_TRUE(Told().empty()) << "told once";
  WriteWholeFile(path, "1");
  EXPECT_EQ(TestMachine::BytesOf(notes[0].copy), "oldold");
}

TEST_F(SavesContract, AFileOfTheSameLengthWithOtherBytesIsLeftAloneToo) {
  PutInterrupted("newxld", "oldold", "newnew");
  EXPECT_EQ(ReadWholeFile(path), "newxld");
  EXPECT_EQ(Told(), std::vector<std::string>{RuntimeErrorTexts.NotPutBack.key});
}

TEST_F(SavesContract, AFileThatCannotBeMadeGoodIsNotReadAndTheCopyIsNamed) {
  PutInterrupted("newold", "oldold", "newnew");
  TestMachine::Hold(path, Sharing::ForReading);
  try {
    ReadWholeFile(path);
    ADD_FAILURE() << "read what is half of this and half of that";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), RuntimeError::PermissionDenied);
    EXPECT_EQ(error.file(), path);
    EXPECT_EQ(error.copy(), files.old);
    EXPECT_STREQ(error.cause().key, RuntimeErrorTexts.SaveHalfDone.key);
    EXPECT_STREQ(error.system().step.key, RuntimeErrorTexts.RestoringFile.key);
    EXPECT_EQ(error.system().code, 32u);
  }
  TestMachine::LetGo(path);
  EXPECT_EQ(ReadWholeFile(path), "oldold");
}

TEST_F(SavesContract, WhatIsLeftOfAnEndedSaveInPlaceGoesWithTheNextSaveOrTheFile) {
  TestMachine::PutFile(path, "old");
  TestMachine::PutFile(files.contents, "ne");
  TestMachine::PutFile(files.part, "o");
  WriteWholeFile(path, "new");
  EXPECT_TRUE(Rescued().empty());
  PutInterrupted("newold", "oldold", "newnew");
  EXPECT_TRUE(RemoveFile(path));
  EXPECT_TRUE(Rescued().empty());
}

// --- What a failure carries ---

TEST_F(SavesContract, AFailureCarriesWhatWasDoneAndTheSystemsCode) {
  const auto systemOf = [](const std::function<void()>& action) {
    try {
      action();
    } catch (const RuntimeError& error) {
      return std::string(error.system().step.key) + " " + std::to_string(error.system().code);
    }
    return std::string("did not fail");
  };
  TestMachine::PutFile(path, "1");
  EXPECT_EQ(systemOf([&] { FileReader reader(In("lake.trk")); }), "RTEOpeningFile 2");
  EXPECT_EQ(systemOf([&] { WriteWholeFile(In("no\\a.trk"), "1"); }), "RTEWritingFile 3");
  EXPECT_EQ(systemOf([&] { RenameFile(In("lake.trk"), In("a.trk")); }), "RTERenamingFile 2");
  EXPECT_EQ(systemOf([&] { AttributesOf(In("lake.trk")); }), "RTEAskingAttributes 2");
  EXPECT_EQ(systemOf([&] { MakeFolder(In("no\\a")); }), "RTEMakingFolder 3");
  TestMachine::Hold(path, Sharing::ForReading);
  EXPECT_EQ(systemOf([&] { RemoveFile(path); }), "RTEDeletingFile 32");
  EXPECT_EQ(systemOf([&] { AppendToFile(path, "1"); }), "RTEWritingFile 32");
  EXPECT_EQ(systemOf([&] { WriteWholeFile(path, "1"); }), "RTEReplacingFile 5");
}
