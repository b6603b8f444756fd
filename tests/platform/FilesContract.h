// What every machine promises of reading and writing files: the words of platform/Files.h, and
// those of Windows where they leave something open. Included once by each machine's tests.
#pragma once

#include "platform/FileGuard.h"
#include "tests/platform/FileContract.h"

// --- FileExists, StampOf ---

TEST_F(FilesContract, AFileAndAFolderExist) {
  TestMachine::PutFile(In("hill.trk"), "");
  EXPECT_TRUE(FileExists(In("hill.trk")));
  EXPECT_TRUE(FileExists(folder));
  EXPECT_FALSE(FileExists(In("lake.trk")));
  EXPECT_FALSE(FileExists(In("nowhere\\hill.trk")));
  EXPECT_FALSE(FileExists(""));
}

TEST_F(FilesContract, APathIsFollowedWhereverItsWordsLead) {
  TestMachine::PutFile(In("hill.trk"), "");
  EXPECT_TRUE(FileExists(folder + "\\"));
  EXPECT_FALSE(FileExists(In("hill.trk\\")));
  EXPECT_TRUE(FileExists(In(".")));
  EXPECT_TRUE(FileExists(In("..")));
  EXPECT_TRUE(FileExists(In("nowhere\\..\\hill.trk")));
  EXPECT_TRUE(FileExists(In("\\hill.trk")));
  EXPECT_TRUE(FileExists(In("hill.trk ")));
  EXPECT_TRUE(FileExists(In("hill.trk . ")));
  EXPECT_FALSE(FileExists(In(" hill.trk")));
}

TEST_F(FilesContract, AHeldFileExists) {
  TestMachine::PutFile(In("hill.trk"), "1");
  TestMachine::Hold(In("hill.trk"), Sharing::WithNobody);
  EXPECT_TRUE(FileExists(In("hill.trk")));
}

TEST_F(FilesContract, WhatNoNameCanHoldDoesNotExist) {
  EXPECT_FALSE(FileExists(In("hill?.trk")));
  EXPECT_FALSE(FileExists(In("*")));
  EXPECT_FALSE(FileExists(In(std::string(300, 'a'))));
  EXPECT_FALSE(FileExists(folder + '\0'));
  EXPECT_FALSE(StampOf(In("*")));
}

TEST_F(FilesContract, LetterCaseIsIgnoredToFindAFile) {
  TestMachine::PutFile(In("Hill.trk"), "1");
  EXPECT_TRUE(FileExists(In("hILL.TRK")));
  EXPECT_EQ(ReadWholeFile(In("HILL.TRK")), "1");
  EXPECT_TRUE(RemoveFile(In("hill.trk")));
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{});
}

TEST_F(FilesContract, LetterCaseIsKeptToMakeAFile) {
  WriteWholeFile(In("Hill.Trk"), "1");
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"Hill.Trk"});
}

TEST_F(FilesContract, AStampTellsTheSize) {
  TestMachine::PutFile(In("hill.trk"), "12345");
  ASSERT_TRUE(StampOf(In("hill.trk")));
  EXPECT_EQ(StampOf(In("HILL.trk"))->size, 5u);
  EXPECT_EQ(StampOf(In("hill.trk")), StampOf(In("hill.trk")));
}

TEST_F(FilesContract, NothingHasNoStamp) {
  EXPECT_FALSE(StampOf(In("hill.trk")));
  EXPECT_FALSE(StampOf(In("nowhere\\hill.trk")));
  EXPECT_FALSE(StampOf(folder));
}

TEST_F(FilesContract, AnotherSizeIsAnotherStamp) {
  TestMachine::PutFile(In("hill.trk"), "1");
  const auto before = StampOf(In("hill.trk"));
  TestMachine::PutFile(In("hill.trk"), "12");
  EXPECT_NE(StampOf(In("hill.trk")), before);
}

// --- ReadWholeFile ---

TEST_F(FilesContract, ReadsAllBytesAsTheyAre) {
  const std::string bytes("\0\r\n\x1A\xFF\n\r", 7);
  TestMachine::PutFile(In("bytes.dat"), bytes);
  EXPECT_EQ(ReadWholeFile(In("bytes.dat")), bytes);
}

TEST_F(FilesContract, ReadsAnEmptyFile) {
  TestMachine::PutFile(In("empty.dat"), "");
  EXPECT_EQ(ReadWholeFile(In("empty.dat")), "");
}

TEST_F(FilesContract, ReadsNothingWhereNothingIs) {
  EXPECT_EQ(ReadWholeFile(In("hill.trk")), std::nullopt);
  EXPECT_EQ(ReadWholeFile(In("nowhere\\hill.trk")), std::nullopt);
}

TEST_F(FilesContract, CannotReadAFolder) {
  TestMachine::PutFolder(In("tracks"));
  EXPECT_TRUE(
      FailsWith(RuntimeError::PathFileAccess, In("tracks"), [&] { ReadWholeFile(In("tracks")); }));
}

TEST_F(FilesContract, ReadsAFileThatOthersRead) {
  TestMachine::PutFile(In("hill.trk"), "1");
  TestMachine::Hold(In("hill.trk"), Sharing::ForReading);
  EXPECT_EQ(ReadWholeFile(In("hill.trk")), "1");
}

TEST_F(FilesContract, ReadsAFileThatAnotherIsWriting) {
  TestMachine::PutFile(In("hill.trk"), "1");
  TestMachine::Hold(In("hill.trk"), Sharing::ForWriting);
  EXPECT_EQ(ReadWholeFile(In("hill.trk")), "1");
  FileReader reader(In("hill.trk"));
  EXPECT_EQ(ReadToEnd(reader), "1");
}

TEST_F(FilesContract, CannotReadAFileThatAnotherHasForItself) {
  TestMachine::PutFile(In("hill.trk"), "1");
  TestMachine::Hold(In("hill.trk"), Sharing::WithNobody);
  EXPECT_TRUE(FailsWith(RuntimeError::PermissionDenied, In("hill.trk"),
                        [&] { ReadWholeFile(In("hill.trk")); }));
}

TEST_F(FilesContract, ReadsReadOnlyAndHiddenFiles) {
  TestMachine::PutFile(In("hill.trk"), "1");
  TestMachine::SetAttributes(In("hill.trk"), TestMachine::ReadOnly | TestMachine::Hidden);
  EXPECT_EQ(ReadWholeFile(In("hill.trk")), "1");
}

TEST_F(FilesContract, ReadsFromAnyPlace) {
  TestMachine::PutFile(In("hill.trk"), "0123456789");
  FileReader reader(In("hill.trk"));
  EXPECT_EQ(reader.Size(), 10u);
  reader.Seek(8);
  EXPECT_EQ(ReadToEnd(reader), "89");
  reader.Seek(0);
  EXPECT_EQ(ReadToEnd(reader), "0123456789");
  reader.Seek(uint64_t{1} << 40);
  EXPECT_EQ(ReadToEnd(reader), "");
}

TEST_F(FilesContract, WritesOverWhatItHasWritten) {
  {
    FileWriter writer(In("hill.trk"));
    writer.Write("0123456789");
    writer.WriteOver(2, "ab");
    writer.Write("x");
    writer.WriteOver(0, "c");
    writer.Finish();
  }
  EXPECT_EQ(TestMachine::BytesOf(In("hill.trk")), "c1ab456789x");
}

// --- Names that cannot be used ---

TEST_F(FilesContract, APathOf259CharactersCanBeUsed) {
  const std::string path = In(std::string(259 - folder.size() - 1, 'n'));
  ASSERT_EQ(path.size(), 259u);
  WriteWholeFile(path, "1");
  EXPECT_TRUE(FileExists(path));
  EXPECT_EQ(ReadWholeFile(path), "1");
  AppendToFile(path, "2");
  WriteInPieces(path, {"3"});
  EXPECT_EQ(ReadWholeFile(path), "3");
  EXPECT_TRUE(RemoveFile(path));
}

TEST_F(FilesContract, ALongerPathFailsWithACauseOfItsOwn) {
  const std::string path = In(std::string(260 - folder.size() - 1, 'n'));
  EXPECT_TRUE(FailsByName(path, [&] { ReadWholeFile(path); }));
  EXPECT_TRUE(FailsByName(path, [&] { WriteWholeFile(path, ""); }));
  EXPECT_TRUE(FailsByName(path, [&] { AppendToFile(path, ""); }));
  EXPECT_TRUE(FailsByName(path, [&] { RemoveFile(path); }));
  EXPECT_TRUE(FailsByName(path, [&] { FileReader reader(path); }));
  EXPECT_TRUE(FailsByName(path, [&] { FileWriter writer(path); }));
  EXPECT_TRUE(FailsWith(RuntimeError::PathFileAccess, path, [&] { WriteWholeFile(path, ""); }));
}

TEST_F(FilesContract, ACharacterThatNoNameCanHoldFailsWithACauseOfItsOwn) {
  for (const char* name : {"a?b", "a*b", "a<b", "a>b", "a|b", "a\"b", "a\nb", "a:b"}) {
    const std::string path = In(name);
    EXPECT_TRUE(FailsByName(path, [&] { ReadWholeFile(path); }));
    EXPECT_TRUE(FailsByName(path, [&] { WriteWholeFile(path, ""); }));
    EXPECT_TRUE(FailsByName(path, [&] { RemoveFile(path); }));
  }
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{});
}

TEST_F(FilesContract, ANulInAPathFailsWithACauseOfItsOwn) {
  const std::string path = In("hill.trk") + '\0' + ".bak";
  TestMachine::PutFile(In("hill.trk"), "1");
  EXPECT_TRUE(FailsByName(path, [&] { RemoveFile(path); }));
  EXPECT_TRUE(FailsByName(path, [&] { WriteWholeFile(path, "2"); }));
  EXPECT_FALSE(FileExists(path));
  EXPECT_EQ(TestMachine::BytesOf(In("hill.trk")), "1");
}

TEST_F(FilesContract, NamesMayHoldBlanksAmpersandsAndLettersOfTheCodePage) {
  const std::string path = In("Tom & J\xFCrgen's hill.trk");
  WriteWholeFile(path, "1");
  EXPECT_EQ(ReadWholeFile(In("TOM & J\xDCRGEN'S HILL.TRK")), "1");
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"Tom & J\xFCrgen's hill.trk"});
}

// --- WriteWholeFile ---

TEST_F(FilesContract, WritesAllBytesAsTheyAre) {
  const std::string bytes("\0\r\n\x1A\xFF\n\r", 7);
  WriteWholeFile(In("bytes.dat"), bytes);
  EXPECT_EQ(TestMachine::BytesOf(In("bytes.dat")), bytes);
}

TEST_F(FilesContract, ReplacesTheWholeContents) {
  TestMachine::PutFile(In("hill.trk"), "a long text");
  WriteWholeFile(In("hill.trk"), "short");
  EXPECT_EQ(TestMachine::BytesOf(In("hill.trk")), "short");
  WriteWholeFile(In("hill.trk"), "");
  EXPECT_EQ(TestMachine::BytesOf(In("hill.trk")), "");
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"hill.trk"});
}

TEST_F(FilesContract, WritingMovesTheStamp) {
  WriteWholeFile(In("hill.trk"), "1");
  const auto before = StampOf(In("hill.trk"));
  ASSERT_TRUE(before);
  WriteWholeFile(In("hill.trk"), "22");
  EXPECT_NE(StampOf(In("hill.trk")), before);
}

TEST_F(FilesContract, KeepsTheAttributesOfAReplacedFile) {
  TestMachine::PutFile(In("hill.trk"), "old");
  TestMachine::SetAttributes(In("hill.trk"), TestMachine::Hidden | TestMachine::System);
  WriteWholeFile(In("hill.trk"), "new");
  EXPECT_EQ(TestMachine::BytesOf(In("hill.trk")), "new");
  EXPECT_EQ(TestMachine::AttributesOf(In("hill.trk")), TestMachine::Hidden | TestMachine::System);
}

TEST_F(FilesContract, ANewFileHasNoAttributes) {
  WriteWholeFile(In("hill.trk"), "new");
  EXPECT_EQ(TestMachine::AttributesOf(In("hill.trk")), 0);
}

TEST_F(FilesContract, CannotWriteIntoAFolderThatIsNotThere) {
  const std::string path = In("nowhere\\hill.trk");
  EXPECT_TRUE(FailsWith(RuntimeError::PathNotFound, path, [&] { WriteWholeFile(path, "1"); }));
  EXPECT_TRUE(FailsWith(RuntimeError::PathNotFound, path, [&] { AppendToFile(path, "1"); }));
  EXPECT_TRUE(FailsWith(RuntimeError::PathNotFound, path, [&] { WriteInPieces(path, {"1"}); }));
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{});
}

TEST_F(FilesContract, CannotWriteOverAFolder) {
  TestMachine::PutFolder(In("tracks"));
  const std::string path = In("tracks");
  EXPECT_TRUE(FailsWith(RuntimeError::PathFileAccess, path, [&] { WriteWholeFile(path, "1"); }));
  EXPECT_TRUE(FailsWith(RuntimeError::PathFileAccess, path, [&] { AppendToFile(path, "1"); }));
  EXPECT_TRUE(FailsWith(RuntimeError::PathFileAccess, path, [&] { WriteInPieces(path, {"1"}); }));
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"tracks"});
}

TEST_F(FilesContract, CannotWriteAReadOnlyFile) {
  const std::string path = In("hill.trk");
  TestMachine::PutFile(path, "old");
  TestMachine::SetAttributes(path, TestMachine::ReadOnly);
  EXPECT_TRUE(FailsWith(RuntimeError::PathFileAccess, path, [&] { WriteWholeFile(path, "1"); }));
  EXPECT_TRUE(FailsWith(RuntimeError::PathFileAccess, path, [&] { AppendToFile(path, "1"); }));
  EXPECT_TRUE(FailsWith(RuntimeError::PathFileAccess, path, [&] { WriteInPieces(path, {"1"}); }));
  EXPECT_EQ(TestMachine::BytesOf(path), "old");
  EXPECT_EQ(TestMachine::AttributesOf(path), TestMachine::ReadOnly);
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"hill.trk"});
}

class HeldFilesContract : public FilesContract,
                          public testing::WithParamInterface<TestMachine::Sharing> {};

TEST_P(HeldFilesContract, CannotWriteOrDeleteAFileThatAnotherProgramHolds) {
  const std::string path = In("hill.trk");
  TestMachine::PutFile(path, "old");
  TestMachine::Hold(path, GetParam());
  EXPECT_TRUE(FailsWith(RuntimeError::PermissionDenied, path, [&] { WriteWholeFile(path, "1"); }));
  EXPECT_TRUE(FailsWith(RuntimeError::PermissionDenied, path, [&] { AppendToFile(path, "1"); }));
  EXPECT_TRUE(FailsWith(RuntimeError::PermissionDenied, path, [&] { WriteInPieces(path, {"1"}); }));
  EXPECT_TRUE(FailsWith(RuntimeError::PermissionDenied, path, [&] { RemoveFile(path); }));
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"hill.trk"});
  TestMachine::LetGo(path);
  EXPECT_EQ(TestMachine::BytesOf(path), "old");
  WriteWholeFile(path, "new");
  EXPECT_TRUE(RemoveFile(path));
}

INSTANTIATE_TEST_SUITE_P(Held, HeldFilesContract,
                         testing::Values(Sharing::ForReading, Sharing::ForWriting,
                                         Sharing::WithNobody));

TEST_F(FilesContract, RewritesAFileInPlaceWhereTheFolderRefusesNewOnes) {
  TestMachine::PutFile(In("hill.trk"), "a long old text");
  if (!TestMachine::RefuseNewFiles(folder)) GTEST_SKIP() << "not to be had on this machine";
  WriteWholeFile(In("hill.trk"), "new");
  EXPECT_EQ(TestMachine::BytesOf(In("hill.trk")), "new");
  AppendToFile(In("hill.trk"), "er");
  EXPECT_EQ(TestMachine::BytesOf(In("hill.trk")), "newer");
  WriteInPieces(In("hill.trk"), {"new", "est"});
  EXPECT_EQ(TestMachine::BytesOf(In("hill.trk")), "newest");
  EXPECT_TRUE(FailsWith(RuntimeError::PermissionDenied, In("lake.trk"),
                        [&] { WriteWholeFile(In("lake.trk"), "1"); }));
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"hill.trk"});
}

// --- AppendToFile ---

TEST_F(FilesContract, AppendsToTheEnd) {
  TestMachine::PutFile(In("pack.lng"), "one\r\n");
  AppendToFile(In("PACK.lng"), "two\r\n");
  EXPECT_EQ(TestMachine::BytesOf(In("pack.lng")), "one\r\ntwo\r\n");
}

TEST_F(FilesContract, AppendingMakesAFile) {
  AppendToFile(In("pack.lng"), "one");
  EXPECT_EQ(TestMachine::BytesOf(In("pack.lng")), "one");
}

TEST_F(FilesContract, AppendingKeepsTheAttributes) {
  TestMachine::PutFile(In("pack.lng"), "one");
  TestMachine::SetAttributes(In("pack.lng"), TestMachine::Hidden);
  AppendToFile(In("pack.lng"), "two");
  EXPECT_EQ(TestMachine::BytesOf(In("pack.lng")), "onetwo");
  EXPECT_EQ(TestMachine::AttributesOf(In("pack.lng")), TestMachine::Hidden);
}

// --- RemoveFile ---

TEST_F(FilesContract, RemovesAFileOnce) {
  TestMachine::PutFile(In("hill.trk"), "1");
  TestMachine::PutFile(In("lake.trk"), "1");
  EXPECT_TRUE(RemoveFile(In("hill.trk")));
  EXPECT_FALSE(RemoveFile(In("hill.trk")));
  EXPECT_FALSE(RemoveFile(In("nowhere\\hill.trk")));
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"lake.trk"});
}

TEST_F(FilesContract, CannotRemoveAReadOnlyFileOrAFolder) {
  TestMachine::PutFile(In("hill.trk"), "1");
  TestMachine::SetAttributes(In("hill.trk"), TestMachine::ReadOnly);
  TestMachine::PutFolder(In("tracks"));
  EXPECT_TRUE(
      FailsWith(RuntimeError::PathFileAccess, In("hill.trk"), [&] { RemoveFile(In("hill.trk")); }));
  EXPECT_TRUE(
      FailsWith(RuntimeError::PathFileAccess, In("tracks"), [&] { RemoveFile(In("tracks")); }));
  EXPECT_EQ(TestMachine::NamesIn(folder), (std::vector<std::string>{"hill.trk", "tracks"}));
}

TEST_F(FilesContract, RemovesAHiddenFile) {
  TestMachine::PutFile(In("hill.trk"), "1");
  TestMachine::SetAttributes(In("hill.trk"), TestMachine::Hidden);
  EXPECT_TRUE(RemoveFile(In("hill.trk")));
}

TEST_F(FilesContract, RemovesTheFileOfAProgramThatHasEnded) {
  TestMachine::PutFile(In("updater.exe"), "1");
  EXPECT_TRUE(RemoveFileOfEndingProgram(In("updater.exe")));
  EXPECT_FALSE(RemoveFileOfEndingProgram(In("updater.exe")));
  EXPECT_TRUE(TestMachine::NamesIn(folder).empty());
}

// --- FileReader ---

TEST_F(FilesContract, ReadsPieceByPiece) {
  TestMachine::PutFile(In("hill.trk"), std::string("twelve\r\n\0byte", 13));
  FileReader reader(In("HILL.trk"));
  EXPECT_EQ(ReadToEnd(reader), std::string("twelve\r\n\0byte", 13));
  char byte;
  EXPECT_EQ(reader.Read(&byte, 1), 0u) << "the end stays the end";
}

TEST_F(FilesContract, ReadsAnEmptyFilePieceByPiece) {
  TestMachine::PutFile(In("hill.trk"), "");
  FileReader reader(In("hill.trk"));
  EXPECT_EQ(ReadToEnd(reader), "");
}

TEST_F(FilesContract, ReadsOnAfterTheReaderWasMoved) {
  TestMachine::PutFile(In("hill.trk"), "123456");
  FileReader first(In("hill.trk"));
  char bytes[2];
  ASSERT_EQ(first.Read(bytes, 2), 2u);
  FileReader second(std::move(first));
  EXPECT_EQ(ReadToEnd(second), "3456");
}

TEST_F(FilesContract, TellsWhatKeepsAFileFromBeingRead) {
  TestMachine::PutFolder(In("tracks"));
  TestMachine::PutFile(In("hill.trk"), "1");
  TestMachine::Hold(In("hill.trk"), Sharing::WithNobody);
  const auto open = [this](const char* name) {
    return [this, name] { FileReader reader(In(name)); };
  };
  EXPECT_TRUE(FailsWith(RuntimeError::FileNotFound, In("lake.trk"), open("lake.trk")));
  EXPECT_TRUE(FailsWith(RuntimeError::PathNotFound, In("no\\a.trk"), open("no\\a.trk")));
  EXPECT_TRUE(FailsWith(RuntimeError::PathFileAccess, In("tracks"), open("tracks")));
  EXPECT_TRUE(FailsWith(RuntimeError::PermissionDenied, In("hill.trk"), open("hill.trk")));
}

TEST_F(FilesContract, AFileThatIsBeingReadCannotBeDeletedOrRenamed) {
  const std::string path = In("hill.trk");
  TestMachine::PutFile(path, "old");
  {
    FileReader reader(path);
    EXPECT_TRUE(FailsWith(RuntimeError::PermissionDenied, path, [&] { RemoveFile(path); }));
    EXPECT_TRUE(
        FailsWith(RuntimeError::PermissionDenied, path, [&] { RenameFile(path, In("lake.trk")); }));
    EXPECT_EQ(ReadWholeFile(path), "old") << "but it can be read twice";
    AppendToFile(path, "er");
    EXPECT_EQ(ReadToEnd(reader), "older") << "and what is added is read too";
  }
  EXPECT_TRUE(RemoveFile(path));
}

TEST_F(FilesContract, AFileThatIsGuardedStaysAsItIs) {
  const std::string path = In("setup.exe");
  TestMachine::PutFile(path, "old");
  {
    const Platform::FileGuard guard(path);
    const auto refuses = [&](const auto& action) {
      return FailsWith(RuntimeError::PermissionDenied, path, action);
    };
    EXPECT_TRUE(refuses([&] { AppendToFile(path, "er"); }));
    EXPECT_TRUE(refuses([&] { WriteWholeFile(path, "new"); }));
    EXPECT_TRUE(refuses([&] { RemoveFile(path); }));
    EXPECT_TRUE(refuses([&] { RenameFile(path, In("old.exe")); }));
    EXPECT_EQ(ReadWholeFile(path), "old");
    FileReader reader(path);
    EXPECT_EQ(ReadToEnd(reader), "old");
  }
  WriteWholeFile(path, "new");
  const auto guarding = [](const std::string& file) {
    return [file] { const Platform::FileGuard guard(file); };
  };
  EXPECT_TRUE(FailsWith(RuntimeError::FileNotFound, In("none.exe"), guarding(In("none.exe"))));
  TestMachine::Hold(path, Sharing::ForWriting);
  EXPECT_TRUE(FailsWith(RuntimeError::PermissionDenied, path, guarding(path)));
}

// --- FileWriter ---

TEST_F(FilesContract, WritesPieceByPiece) {
  WriteInPieces(In("hill.trk"), {"one\r\n", "", "two\n", std::string("\0", 1)});
  EXPECT_EQ(TestMachine::BytesOf(In("hill.trk")), std::string("one\r\ntwo\n\0", 10));
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"hill.trk"});
}

TEST_F(FilesContract, WritesAnEmptyFileByPieces) {
  WriteInPieces(In("hill.trk"), {});
  EXPECT_EQ(TestMachine::BytesOf(In("hill.trk")), "");
}

TEST_F(FilesContract, AFileTakesItsNameOnlyWhenItIsWhole) {
  TestMachine::PutFile(In("hill.trk"), "old");
  FileWriter writer(In("hill.trk"));
  writer.Write("new");
  EXPECT_EQ(TestMachine::BytesOf(In("hill.trk")), "old");
  EXPECT_EQ(ReadWholeFile(In("hill.trk")), "old");
  writer.Finish();
  EXPECT_EQ(TestMachine::BytesOf(In("hill.trk")), "new");
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"hill.trk"});
}

TEST_F(FilesContract, AFileThatIsNotFinishedLeavesNothing) {
  TestMachine::PutFile(In("hill.trk"), "old");
  {
    FileWriter replacing(In("hill.trk"));
    replacing.Write("new");
    FileWriter making(In("lake.trk"));
    making.Write("new");
  }
  EXPECT_EQ(TestMachine::BytesOf(In("hill.trk")), "old");
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"hill.trk"});
}

TEST_F(FilesContract, TheFinishedFileHasTheAttributesOfTheReplacedOne) {
  TestMachine::PutFile(In("hill.trk"), "old");
  TestMachine::SetAttributes(In("hill.trk"), TestMachine::Hidden);
  WriteInPieces(In("hill.trk"), {"new"});
  EXPECT_EQ(TestMachine::AttributesOf(In("hill.trk")), TestMachine::Hidden);
  WriteInPieces(In("lake.trk"), {"new"});
  EXPECT_EQ(TestMachine::AttributesOf(In("lake.trk")), 0);
}

TEST_F(FilesContract, AFileThatComesToBeHeldWhileItIsWrittenStaysAsItWas) {
  const std::string path = In("hill.trk");
  TestMachine::PutFile(path, "old");
  {
    FileWriter writer(path);
    writer.Write("new");
    TestMachine::Hold(path, Sharing::ForReading);
    EXPECT_TRUE(FailsWith(RuntimeError::PermissionDenied, path, [&] { writer.Finish(); }));
  }
  EXPECT_EQ(TestMachine::BytesOf(path), "old");
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"hill.trk"});
}
