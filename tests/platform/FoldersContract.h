// What every machine promises of folders, names, attributes and copies. Included once by each
// machine's tests.
#pragma once

#include "tests/platform/FileContract.h"

class FoldersContract : public FilesContract {
 protected:
  static std::vector<std::string> Sorted(const std::vector<FolderEntry>& entries) {
    std::vector<std::string> names;
    for (const FolderEntry& entry : entries) {
      names.push_back(entry.name + (entry.isFolder ? "\\" : ""));
    }
    std::sort(names.begin(), names.end());
    return names;
  }
};

// --- Attributes ---

TEST_F(FoldersContract, TellsAndSetsAttributes) {
  const std::string path = In("Skidrun.cfg");
  TestMachine::PutFile(path, "1");
  EXPECT_EQ(AttributesOf(path), FileAttributes());
  Platform::SetAttributes(path, {.isReadOnly = true, .isHidden = true, .isSystem = true});
  EXPECT_EQ(TestMachine::AttributesOf(path),
            TestMachine::ReadOnly | TestMachine::Hidden | TestMachine::System);
  EXPECT_EQ(AttributesOf(path),
            (FileAttributes{.isReadOnly = true, .isHidden = true, .isSystem = true}));
  Platform::SetAttributes(path, {.isHidden = true});
  EXPECT_EQ(TestMachine::AttributesOf(path), TestMachine::Hidden);
  Platform::SetAttributes(path, {});
  EXPECT_EQ(TestMachine::AttributesOf(path), 0);
  EXPECT_EQ(TestMachine::BytesOf(path), "1");
}

TEST_F(FoldersContract, AttributesOfNothingAreNone) {
  const std::string path = In("lake.trk");
  EXPECT_TRUE(FailsWith(RuntimeError::FileNotFound, path, [&] { AttributesOf(path); }));
  EXPECT_TRUE(
      FailsWith(RuntimeError::FileNotFound, path, [&] { Platform::SetAttributes(path, {}); }));
  const std::string nowhere = In("nowhere\\lake.trk");
  EXPECT_TRUE(FailsWith(RuntimeError::PathNotFound, nowhere, [&] { AttributesOf(nowhere); }));
}

// As the game's configuration is rewritten: freed, written anew, and hidden again.
TEST_F(FoldersContract, AReadOnlyHiddenFileIsRewrittenOnceItIsFreed) {
  const std::string path = In("Skidrun.cfg");
  TestMachine::PutFile(path, "Language=english\r\n");
  TestMachine::SetAttributes(path, TestMachine::ReadOnly | TestMachine::Hidden);
  Platform::SetAttributes(path, {});
  WriteWholeFile(path, "Language=deutsch\r\n");
  Platform::SetAttributes(path, {.isHidden = true});
  EXPECT_EQ(TestMachine::BytesOf(path), "Language=deutsch\r\n");
  EXPECT_EQ(TestMachine::AttributesOf(path), TestMachine::Hidden);
}

// --- ListFolder, MakeFolder ---

TEST_F(FoldersContract, ListsWhatIsInAFolderHiddenOrNot) {
  TestMachine::PutFolder(In("sounds"));
  TestMachine::PutFile(In("sounds\\deep.wav"), "1");
  TestMachine::PutFile(In("Hill.trk"), "1");
  TestMachine::PutFile(In("hidden.trk"), "1");
  TestMachine::SetAttributes(In("hidden.trk"), TestMachine::Hidden | TestMachine::System);
  EXPECT_EQ(Sorted(ListFolder(folder)),
            (std::vector<std::string>{"Hill.trk", "hidden.trk", "sounds\\"}));
}

TEST_F(FoldersContract, AnEmptyOrMissingFolderListsNothing) {
  EXPECT_TRUE(ListFolder(folder).empty());
  EXPECT_TRUE(ListFolder(In("nowhere")).empty());
  EXPECT_TRUE(ListFolder(In("nowhere\\deeper")).empty());
}

TEST_F(FoldersContract, AFileIsNoFolder) {
  const std::string path = In("hill.trk");
  TestMachine::PutFile(path, "1");
  EXPECT_TRUE(FailsWith(RuntimeError::PathFileAccess, path, [&] { ListFolder(path); }));
  EXPECT_TRUE(FailsWith(RuntimeError::PathFileAccess, path, [&] { MakeFolder(path); }));
}

TEST_F(FoldersContract, MakesAFolderOnce) {
  EXPECT_TRUE(MakeFolder(In("Deutsch")));
  EXPECT_FALSE(MakeFolder(In("deutsch")));
  EXPECT_EQ(Sorted(ListFolder(folder)), std::vector<std::string>{"Deutsch\\"});
  const std::string deep = In("nowhere\\deep");
  EXPECT_TRUE(FailsWith(RuntimeError::PathNotFound, deep, [&] { MakeFolder(deep); }));
}

// --- RenameFile ---

TEST_F(FoldersContract, RenamesAFileOrAFolder) {
  TestMachine::PutFile(In("hill.trk"), "1");
  TestMachine::PutFolder(In("old"));
  TestMachine::PutFile(In("old\\a.wav"), "2");
  RenameFile(In("hill.trk"), In("lake.trk"));
  RenameFile(In("lake.trk"), In("LAKE.trk"));
  RenameFile(In("old"), In("new"));
  // Not every machine changes the letter case alone, but none fails.
  EXPECT_THAT(Sorted(ListFolder(folder)),
              testing::ElementsAre(testing::AnyOf("LAKE.trk", "lake.trk"), "new\\"));
  EXPECT_EQ(TestMachine::BytesOf(In("new\\a.wav")), "2");
}

TEST_F(FoldersContract, ARenamedFileTakesTheNameOfNoOther) {
  TestMachine::PutFile(In("hill.trk"), "1");
  TestMachine::PutFile(In("lake.trk"), "2");
  EXPECT_TRUE(FailsWith(RuntimeError::FileAlreadyExists, In("LAKE.trk"),
                        [&] { RenameFile(In("hill.trk"), In("LAKE.trk")); }));
  EXPECT_TRUE(FailsWith(RuntimeError::FileNotFound, In("moor.trk"),
                        [&] { RenameFile(In("moor.trk"), In("a.trk")); }));
  EXPECT_EQ(TestMachine::BytesOf(In("hill.trk")), "1");
  EXPECT_EQ(TestMachine::BytesOf(In("lake.trk")), "2");
}

// --- CopyFileTo ---

TEST_F(FoldersContract, CopiesBytesAndTime) {
  const std::string bytes = std::string("\0\r\n\x1A", 4) + std::string(1 << 20, 'x') + "end";
  TestMachine::PutFile(In("hill.wav"), bytes);
  const auto stamp = StampOf(In("hill.wav"));
  TestMachine::PutFile(In("later.wav"), "1");
  CopyFileTo(In("hill.wav"), In("copy.wav"));
  EXPECT_TRUE(TestMachine::BytesOf(In("copy.wav")) == bytes);
  EXPECT_EQ(StampOf(In("copy.wav")), stamp);
  EXPECT_EQ(StampOf(In("hill.wav")), stamp);
  EXPECT_EQ(TestMachine::NamesIn(folder),
            (std::vector<std::string>{"copy.wav", "hill.wav", "later.wav"}));
}

TEST_F(FoldersContract, ACopyReplacesAnotherFileOnlyWhenItIsAskedTo) {
  TestMachine::PutFile(In("hill.wav"), "new");
  TestMachine::PutFile(In("copy.wav"), "old");
  TestMachine::SetAttributes(In("copy.wav"), TestMachine::Hidden);
  EXPECT_TRUE(FailsWith(RuntimeError::FileAlreadyExists, In("copy.wav"),
                        [&] { CopyFileTo(In("hill.wav"), In("copy.wav")); }));
  EXPECT_EQ(TestMachine::BytesOf(In("copy.wav")), "old");
  CopyFileTo(In("hill.wav"), In("copy.wav"), IfThere::Replace);
  EXPECT_EQ(TestMachine::BytesOf(In("copy.wav")), "new");
  EXPECT_EQ(TestMachine::AttributesOf(In("copy.wav")), TestMachine::Hidden);
  CopyFileTo(In("hill.wav"), In("HILL.wav"), IfThere::Replace);
  EXPECT_EQ(TestMachine::BytesOf(In("hill.wav")), "new") << "a copy of itself";
}

TEST_F(FoldersContract, ACopyOfAReadOnlyHiddenFileIsAnOrdinaryOne) {
  TestMachine::PutFile(In("hill.wav"), "1");
  TestMachine::SetAttributes(In("hill.wav"), TestMachine::ReadOnly | TestMachine::Hidden);
  CopyFileTo(In("hill.wav"), In("copy.wav"));
  EXPECT_EQ(TestMachine::AttributesOf(In("copy.wav")), 0);
  WriteWholeFile(In("copy.wav"), "2");
}

TEST_F(FoldersContract, ACopyThatCannotBeMadeLeavesNothing) {
  TestMachine::PutFile(In("hill.wav"), "1");
  TestMachine::PutFolder(In("sounds"));
  TestMachine::PutFile(In("fixed.wav"), "fixed");
  TestMachine::SetAttributes(In("fixed.wav"), TestMachine::ReadOnly);
  const auto copy = [&](const char* from, const char* to) {
    return [=, this] { CopyFileTo(In(from), In(to), IfThere::Replace); };
  };
  EXPECT_TRUE(FailsWith(RuntimeError::FileNotFound, In("lake.wav"), copy("lake.wav", "a.wav")));
  EXPECT_TRUE(
      FailsWith(RuntimeError::PathNotFound, In("no\\a.wav"), copy("hill.wav", "no\\a.wav")));
  EXPECT_TRUE(FailsWith(RuntimeError::PathFileAccess, In("sounds"), copy("sounds", "a.wav")));
  EXPECT_TRUE(FailsWith(RuntimeError::PathFileAccess, In("sounds"), copy("hill.wav", "sounds")));
  EXPECT_TRUE(
      FailsWith(RuntimeError::PathFileAccess, In("fixed.wav"), copy("hill.wav", "fixed.wav")));
  EXPECT_EQ(TestMachine::NamesIn(folder),
            (std::vector<std::string>{"fixed.wav", "hill.wav", "sounds"}));
  EXPECT_EQ(TestMachine::BytesOf(In("fixed.wav")), "fixed");
}

// --- FileWriter, beyond a save ---

TEST_F(FoldersContract, AFileCanBeComparedBeforeItIsFinished) {
  FileWriter writer(In("hill.zip"));
  writer.Write("12345");
  char bytes[8] = "";
  EXPECT_EQ(writer.ReadBack(1, bytes, 3), 3u);
  EXPECT_EQ(std::string(bytes, 3), "234");
  EXPECT_EQ(writer.ReadBack(5, bytes, 3), 0u);
  EXPECT_EQ(writer.ReadBack(900, bytes, 3), 0u);
  writer.Write("678");
  writer.Finish();
  EXPECT_EQ(TestMachine::BytesOf(In("hill.zip")), "12345678");
}

TEST_F(FoldersContract, AWriterThatMayNotReplaceFindsANameThatWasTakenMeanwhile) {
  const std::string path = In("hill.zip");
  {
    FileWriter writer(path, IfThere::Fail);
    writer.Write("1");
    TestMachine::PutFile(path, "of another program");
    EXPECT_TRUE(FailsWith(RuntimeError::FileAlreadyExists, path, [&] { writer.Finish(); }));
  }
  EXPECT_TRUE(FailsWith(RuntimeError::FileAlreadyExists, path,
                        [&] { FileWriter writer(path, IfThere::Fail); }));
  EXPECT_EQ(TestMachine::BytesOf(path), "of another program");
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"hill.zip"});
}

// --- RemoveFolder, FreeSpaceIn ---

TEST_F(FoldersContract, RemovesAFolderThatIsEmpty) {
  TestMachine::PutFolder(In("Deutsch"));
  EXPECT_TRUE(RemoveFolder(In("deutsch")));
  EXPECT_FALSE(RemoveFolder(In("deutsch")));
  EXPECT_FALSE(RemoveFolder(In("nowhere\\deutsch")));
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{});
}

TEST_F(FoldersContract, RemovesNoFolderWithSomethingInIt) {
  TestMachine::PutFolder(In("sounds"));
  TestMachine::PutFile(In("sounds\\horn.wav"), "1");
  EXPECT_TRUE(
      FailsWith(RuntimeError::PathFileAccess, In("sounds"), [&] { RemoveFolder(In("sounds")); }));
  EXPECT_EQ(TestMachine::BytesOf(In("sounds\\horn.wav")), "1");
}

TEST_F(FoldersContract, RemovesNoFileAsAFolder) {
  TestMachine::PutFile(In("sounds"), "1");
  EXPECT_TRUE(
      FailsWith(RuntimeError::PathFileAccess, In("sounds"), [&] { RemoveFolder(In("sounds")); }));
  EXPECT_EQ(TestMachine::BytesOf(In("sounds")), "1");
}

TEST_F(FoldersContract, TellsTheFreeSpaceOfTheDisk) {
  EXPECT_GT(FreeSpaceIn(folder), uint64_t{1} << 20);
  EXPECT_LT(FreeSpaceIn(folder), uint64_t{1} << 60);
  EXPECT_TRUE(
      FailsWith(RuntimeError::PathNotFound, In("nowhere"), [&] { FreeSpaceIn(In("nowhere")); }));
}

// --- Names of devices ---

TEST_F(FoldersContract, ADeviceIsNoFile) {
  for (const char* name : {"nul", "NUL.txt", "con.trk", "aux .wav", "Com1", "lpt9.vhc", "conin$",
                           "com\xB9", "LPT\xB2.txt", "com\xB3"}) {
    const std::string path = In(name);
    EXPECT_FALSE(FileExists(path)) << name;
    EXPECT_TRUE(FailsByName(path, [&] { FileReader reader(path); }));
    EXPECT_TRUE(FailsByName(path, [&] { ReadWholeFile(path); }));
    EXPECT_TRUE(FailsByName(path, [&] { AppendToFile(path, "1"); }));
    EXPECT_TRUE(FailsByName(path, [&] { WriteWholeFile(path, "1"); }));
  }
  for (const char* name : {"null", "com", "com0", "console.trk", "lpt10", "com\xB4"}) {
    WriteWholeFile(In(name), "1");
    EXPECT_EQ(TestMachine::BytesOf(In(name)), "1") << name;
  }
}
