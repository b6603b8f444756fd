// Runs the contracts of the services that the console programs need on the machine that Linux has
// for them, without Wine and without a display, and what is to be said of that machine alone.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/Characters.h"
#include "platform/FileCalls.h"
#include "platform/SideFile.h"
#include "tests/archive/ArchiveContract.h"
#include "tests/platform/CharactersContract.h"
#include "tests/platform/FilesContract.h"
#include "tests/platform/FoldersContract.h"
#include "tests/platform/NumbersContract.h"
#include "tests/platform/ProgramContract.h"
#include "tests/platform/SavesContract.h"

namespace {

namespace fs = std::filesystem;

struct LeftOut {
  const char* tests;
  const char* why;
};
constexpr LeftOut NotHere[] = {
    // --- A file is held by nobody: it can be read, replaced and deleted whoever has it open, and
    // those go on with what they have opened.
    {"FilesContract.CannotReadAFileThatAnotherHasForItself", "nobody has a file for himself"},
    {"FilesContract.AHeldFileExists", "nobody holds a file"},
    {"FilesContract.ReadsAFileThatOthersRead", "nobody holds a file"},
    {"FilesContract.ReadsAFileThatAnotherIsWriting", "nobody holds a file"},
    {"FilesContract.TellsWhatKeepsAFileFromBeingRead", "nobody holds a file"},
    {"FilesContract.AFileThatIsBeingReadCannotBeDeletedOrRenamed", "it can"},
    {"FilesContract.AFileThatComesToBeHeldWhileItIsWrittenStaysAsItWas", "nobody holds a file"},
    {"Held/HeldFilesContract.*", "nobody holds a file"},
    {"ArchiveContract.TakesAwayWhatIsNewIfAFileIsInUse", "nobody holds a file"},
    {"SavesContract.AFailureCarriesWhatWasDoneAndTheSystemsCode", "nobody holds a file"},
    // --- So no file is ever rewritten in place, and none is cut off half way.
    {"SavesContract.AFileThatIsHeldButMayBeWrittenIsRewrittenInPlace", "it is replaced"},
    {"SavesContract.AFileThatIsBeingReadIsRewrittenInPlace", "it is replaced"},
    {"SavesContract.AFileThatWasCutOffHalfWayGetsItsOldContentsBack", "none is"},
    {"SavesContract.EveryUseOfAFileMakesItGoodFirst", "none is cut off"},
    {"SavesContract.ALongerFileWhoseRoomWasTakenGetsItsLengthBack", "none is cut off"},
    {"SavesContract.ASaveThatWasFinishedButForItsCopyStays", "none has a copy"},
    {"SavesContract.ASaveThatHadNotBegunStaysUntold", "none has a copy"},
    {"SavesContract.WhatAnotherProgramHasWrittenSinceIsLeftAlone", "none is cut off"},
    {"SavesContract.AFileOfTheSameLengthWithOtherBytesIsLeftAloneToo", "none is cut off"},
    {"SavesContract.AFileThatCannotBeMadeGoodIsNotReadAndTheCopyIsNamed", "none is cut off"},
    {"SavesContract.WhatIsLeftOfAnEndedSaveInPlaceGoesWithTheNextSaveOrTheFile", "nothing is"},
    {"FilesContract.RewritesAFileInPlaceWhereTheFolderRefusesNewOnes", "it is not written"},
    // --- The disk has no marks for hidden files and those of the system.
    {"FilesContract.KeepsTheAttributesOfAReplacedFile", "no such marks"},
    {"FilesContract.AppendingKeepsTheAttributes", "no such marks"},
    {"FilesContract.TheFinishedFileHasTheAttributesOfTheReplacedOne", "no such marks"},
    {"FoldersContract.TellsAndSetsAttributes", "no such marks"},
    {"FoldersContract.AReadOnlyHiddenFileIsRewrittenOnceItIsFreed", "no such marks"},
    {"FoldersContract.ACopyReplacesAnotherFileOnlyWhenItIsAskedTo", "no such marks"},
    {"ArchiveContract.ReplacesFilesAndKeepsTheirAttributes", "no such marks"},
    // --- Numbers have the neutral form, whatever the user's locale is.
    {"NumbersContract.FollowsADecimalComma", "the neutral form has none"},
    {"NumbersContract.FollowsABlankBetweenThousands", "the neutral form has none"},
    {"NumbersContract.ShortPlainIntegersGiveWhatTheSystemsParserGives", "in one form only"},
};

// --- What is to be said of this machine alone ---

class PosixFiles : public FilesContract {
 protected:
  fs::path Host(const std::string& name) const {
    std::string top = folder;
    std::replace(top.begin(), top.end(), '\\', '/');
    return fs::path(top) / name;
  }
  mode_t RightsOf(const std::string& name) const {
    struct stat info {};
    stat(Host(name).c_str(), &info);
    return info.st_mode & 0777;
  }
};

TEST_F(PosixFiles, BothSeparatorsLeadToAFolder) {
  TestMachine::PutFolder(In("Sounds"));
  TestMachine::PutFile(In("Sounds\\Horn.wav"), "1");
  EXPECT_EQ(ReadWholeFile(In("sounds/HORN.wav")), "1");
  EXPECT_EQ(ReadWholeFile(In("sounds\\..\\SOUNDS/horn.WAV")), "1");
}

TEST_F(PosixFiles, TheVeryNameIsFoundBeforeOneInAnotherLetterCase) {
  for (const char* name : {"Hill.trk", "hill.trk", "HILL.trk"}) {
    std::ofstream(Host(name)) << name;
  }
  for (const char* name : {"Hill.trk", "hill.trk", "HILL.trk"}) {
    EXPECT_EQ(ReadWholeFile(In(name)), name);
  }
  // Of several others the first by its bytes.
  EXPECT_EQ(ReadWholeFile(In("hiLL.trk")), "HILL.trk");
}

TEST_F(PosixFiles, ASaveGoesToTheFileThatIsThereInAnotherLetterCase) {
  TestMachine::PutFile(In("Cars.LST"), "old");
  WriteWholeFile(In("cars.lst"), "new");
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"Cars.LST"});
  EXPECT_EQ(TestMachine::BytesOf(In("Cars.LST")), "new");
}

TEST_F(PosixFiles, NamesThatAreNoUtf8StandForBytesOfTheCodePage) {
  std::ofstream(Host("H\xFCgel.trk")) << "bytes";
  EXPECT_EQ(ReadWholeFile(In("h\xDCGEL.trk")), "bytes");
  EXPECT_EQ(ListFolder(folder).at(0).name, "H\xFCgel.trk");
}

TEST_F(PosixFiles, NamesThatTheCodePageLacksAreListedAndCannotBeUsed) {
  std::ofstream(Host("\xE5\xB1\xB1.trk")) << "mountain";
  ASSERT_EQ(ListFolder(folder).size(), 1u);
  EXPECT_EQ(ListFolder(folder)[0].name, "?.trk");
  EXPECT_TRUE(FailsByName(In("?.trk"), [&] { ReadWholeFile(In("?.trk")); }));
}

TEST_F(PosixFiles, ALinkIsToldAsOne) {
  TestMachine::PutFolder(In("tracks"));
  fs::create_directory_symlink(".", Host("tracks/again"));
  fs::create_symlink("nowhere", Host("tracks/hill.trk"));
  auto entries = ListFolder(In("tracks"));
  std::sort(entries.begin(), entries.end(),
            [](const FolderEntry& a, const FolderEntry& b) { return a.name < b.name; });
  ASSERT_EQ(entries.size(), 2u);
  EXPECT_TRUE(entries[0].isFolder && entries[0].isLink);
  EXPECT_TRUE(!entries[1].isFolder && entries[1].isLink);
  EXPECT_FALSE(ListFolder(folder).at(0).isLink);
  // One that leads nowhere can be removed, and is not written through.
  EXPECT_FALSE(FileExists(In("tracks\\hill.trk")));
  EXPECT_TRUE(RemoveFile(In("tracks\\hill.trk")));
}

TEST_F(PosixFiles, WhatIsNoFileIsNotWaitedFor) {
  ASSERT_EQ(mkfifo(Host("pipe.trk").c_str(), 0600), 0);
  EXPECT_TRUE(FailsByName(In("pipe.trk"), [&] { ReadWholeFile(In("pipe.trk")); }));
  EXPECT_TRUE(FailsByName("\\dev\\zero", [] { FileReader reader("\\dev\\zero"); }));
}

TEST_F(PosixFiles, AReplacedFileKeepsItsRights) {
  TestMachine::PutFile(In("cars.lst"), "old");
  fs::permissions(Host("cars.lst"), fs::perms(0640));
  WriteWholeFile(In("cars.lst"), "new");
  EXPECT_EQ(RightsOf("cars.lst"), 0640u);
  EXPECT_EQ(TestMachine::BytesOf(In("cars.lst")), "new");
}

TEST_F(PosixFiles, WhoReadsAFileThatIsReplacedGoesOnReadingTheOldOne) {
  TestMachine::PutFile(In("cars.lst"), "old contents");
  FileReader reader(In("cars.lst"));
  WriteWholeFile(In("cars.lst"), "new");
  EXPECT_EQ(ReadToEnd(reader), "old contents");
  EXPECT_EQ(TestMachine::BytesOf(In("cars.lst")), "new");
}

// What another program of ours is writing, seen from here: locks belong to whoever has opened.
TEST_F(PosixFiles, AFileThatIsBeingMadeIsNotTakenForAnAbandonedOne) {
  FileWriter writer(In("cars.lst"));
  writer.Write("half");
  const auto names = TestMachine::NamesIn(folder);
  ASSERT_EQ(names.size(), 1u);
  EXPECT_TRUE(Platform::IsSideFileName(names[0]));
  EXPECT_EQ(Platform::FileCalls::Delete(In(names[0])), Platform::SystemError::SharingViolation);
  writer.Finish();
  EXPECT_EQ(TestMachine::NamesIn(folder), std::vector<std::string>{"cars.lst"});
  EXPECT_TRUE(RemoveFile(In("cars.lst")));
}

TEST_F(PosixFiles, ARelativePathStartsInTheWorkingFolder) {
  TestMachine::PutFolder(In("Site"));
  TestMachine::PutFile(In("Site\\Cars.lst"), "1");
  const fs::path before = fs::current_path();
  fs::current_path(Host("Site"));
  EXPECT_EQ(ReadWholeFile("cars.lst"), "1");
  EXPECT_EQ(ReadWholeFile(".\\cars.lst"), "1");
  EXPECT_EQ(ReadWholeFile("..\\site\\cars.lst"), "1");
  EXPECT_EQ(ListFolder(".").size(), 1u);
  fs::current_path(before);
}

// The five bytes to which the page gives no letter, and all others, there and back.
TEST(PosixCharacters, EveryByteComesBack) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    EXPECT_EQ(Platform::FromUtf8(Platform::ToUtf8(text)), text) << byte;
  }
  EXPECT_EQ(Platform::FromUtf8("\xC2\x80"), "?") << "that byte is the euro";
}

}  // namespace

int main(int argc, char** argv) {
  std::string leftOut = "-";
  for (const LeftOut& each : NotHere) leftOut.append(each.tests) += ":";
  testing::GTEST_FLAG(filter) = leftOut;
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
