#include "text/StringTable.h"

#include <gmock/gmock.h>

#include "base/PerRun.h"
#include "tests/FailureSweep.h"
#include "tests/HostFile.h"
#include "tests/PeakMemory.h"
#include "tests/Story.h"

namespace {

const std::string LanguageFile = "C:\\Program Files\\SK2Pack\\sk2pack.lng";

class StringTableStory : public Story {
 protected:
  void FileHolds(const std::string& bytes) { machine.files.Put(LanguageFile, bytes); }
  std::string File() { return machine.files.Text(LanguageFile); }
  static std::string Look(const std::string& key, const std::string& english = "default") {
    return GetLangString(key, english, WithComments);
  }
};

TEST_F(StringTableStory, TheTextStandsBehindTheFirstEqualsSign) {
  FileHolds("XFile=&Fichier\r\nSum=1+1=2\r\n");
  EXPECT_EQ(Look("XFile"), "&Fichier");
  EXPECT_EQ(Look("Sum"), "1+1=2");
}

TEST_F(StringTableStory, ACommentIsCutOffAndTheRestIsTrimmed) {
  FileHolds("XFile=&Fichier ;menu\r\n  VNew=Neu  ; the first item\r\n");
  EXPECT_EQ(Look("XFile"), "&Fichier");
  EXPECT_EQ(Look("VNew"), "Neu");
}

TEST_F(StringTableStory, OnlyLinesWithACommentAreTrimmed) {
  FileHolds("XFile=  &Fichier  \r\n  VNew=Neu\r\n");
  EXPECT_EQ(Look("XFile"), "  &Fichier  ");
  EXPECT_EQ(Look("VNew"), "default");
}

TEST_F(StringTableStory, ALineThatIsAllCommentIsIgnoredAndTheDefaultIsAppended) {
  FileHolds(";XFile=Datei\r\n");
  EXPECT_EQ(Look("XFile", "&File"), "&File");
  EXPECT_EQ(File(), ";XFile=Datei\r\nXFile=&File\r\n");
}

TEST_F(StringTableStory, TheFourSpellingsOfTheEscapeBecomeASemicolon) {
  FileHolds("Msg=a{sc}b{SC}c\r\nEnd=a{SC}\r\nAll={sc}{Sc}{sC}{SC}\r\nCut=a{sc\r\nOther=a{s c}\r\n");
  EXPECT_EQ(Look("Msg"), "a;b;c");
  EXPECT_EQ(Look("End"), "a;");
  EXPECT_EQ(Look("All"), ";;;;");
  EXPECT_EQ(Look("Cut"), "a{sc");
  EXPECT_EQ(Look("Other"), "a{s c}");
}

TEST_F(StringTableStory, AnEscapeIsNotMadeOfTheRemainsOfAnother) {
  FileHolds("Msg={s{sc}c}\r\n");
  EXPECT_EQ(Look("Msg"), "{s;c}");
}

TEST_F(StringTableStory, AKeyIsNotFoundInALongerOne) {
  FileHolds("VNewX=Lang\r\nAVNew=Davor\r\n");
  EXPECT_EQ(Look("VNew"), "default");
}

TEST_F(StringTableStory, KeysAreComparedWithTheirLetterCase) {
  FileHolds("vnew=klein\r\n");
  EXPECT_EQ(Look("VNew"), "default");
}

TEST_F(StringTableStory, ABlankBeforeTheEqualsSignBelongsToTheKey) {
  FileHolds("Key = Text\r\n");
  EXPECT_EQ(Look("Key"), "default");
}

TEST_F(StringTableStory, AnEntryWithoutTextIsAnEmptyText) {
  FileHolds("Key=\r\n");
  EXPECT_EQ(Look("Key"), "");
  EXPECT_EQ(File(), "Key=\r\n");
}

TEST_F(StringTableStory, OfTwoLinesForAKeyTheLaterCounts) {
  FileHolds("Key=one\r\nOther=x\r\nKey=two\r\n");
  EXPECT_EQ(Look("Key"), "two");
}

TEST_F(StringTableStory, AnEscapeInADefaultStaysAsItIs) {
  EXPECT_EQ(Look("Key", "a{sc}b"), "a{sc}b");
  EXPECT_EQ(File(), "Key=a{sc}b\r\n");
  EXPECT_EQ(Look("Key", "a{sc}b"), "a;b");
}

TEST_F(StringTableStory, ADefaultWithASemicolonIsReturnedWholeAndCutOnceItIsInTheFile) {
  EXPECT_EQ(Look("Key", "a; b"), "a; b");
  EXPECT_EQ(File(), "Key=a; b\r\n");
  EXPECT_EQ(Look("Key", "a; b"), "a");
}

TEST_F(StringTableStory, WithAnotherFlagLinesAreTakenAsTheyStand) {
  FileHolds("Key= a ; b \r\n;Other=c\r\n");
  EXPECT_EQ(GetLangString("Key", "default", 0), " a ; b ");
  EXPECT_EQ(GetLangString("Key", "default", 1), " a ; b ");
  EXPECT_EQ(GetLangString(";Other", "default", 0), "c");
}

TEST_F(StringTableStory, AMissingFileIsMadeWithTheMissingEntries) {
  EXPECT_EQ(Look("XFile", "&File"), "&File");
  EXPECT_EQ(Look("FClose", "&Close"), "&Close");
  EXPECT_EQ(File(), "XFile=&File\r\nFClose=&Close\r\n");
}

TEST_F(StringTableStory, AKeyThatIsThereIsNotAppendedAgain) {
  FileHolds("XFile=Datei\r\n");
  Look("XFile");
  Look("XFile");
  EXPECT_EQ(File(), "XFile=Datei\r\n");
}

TEST_F(StringTableStory, AnEntryNeverJoinsALastLineWithoutItsEnd) {
  FileHolds("XFile=Datei");
  Look("FClose", "&Close");
  EXPECT_EQ(File(), "XFile=Datei\r\nFClose=&Close\r\n");
  EXPECT_EQ(Look("XFile"), "Datei");
}

TEST_F(StringTableStory, LinesMayEndInCrOrInLf) {
  FileHolds("One=1\rTwo=2\nThree=3\r\n\r\nFour=4");
  EXPECT_EQ(Look("One"), "1");
  EXPECT_EQ(Look("Two"), "2");
  EXPECT_EQ(Look("Three"), "3");
  EXPECT_EQ(Look("Four"), "4");
}

TEST_F(StringTableStory, AFileThatAnotherProgramEditsIsSeenAtTheNextLookup) {
  FileHolds("XFile=Datei\r\n");
  EXPECT_EQ(Look("XFile"), "Datei");
  FileHolds("XFile=Daten\r\n");  // as many bytes as before
  EXPECT_EQ(Look("XFile"), "Daten");
  machine.files.Delete(LanguageFile);
  EXPECT_EQ(Look("XFile", "&File"), "&File");
}

// Other bytes under the same size and time stand for a file that is not read again.
TEST_F(StringTableStory, AnUnchangedFileIsNotReadAgain) {
  FileHolds("XFile=Datei\r\n");
  EXPECT_EQ(Look("XFile"), "Datei");
  machine.files.Find(LanguageFile)->bytes = "XFile=Daten\r\n";
  EXPECT_EQ(Look("XFile"), "Datei");
}

TEST_F(StringTableStory, AFileThatCannotBeWrittenStopsNothing) {
  FileHolds("XFile=Datei\r\n");
  machine.files.SetAttributes(LanguageFile, Simulated::ReadOnly);
  EXPECT_EQ(Look("FClose", "&Close"), "&Close");
  EXPECT_EQ(Look("XFile"), "Datei");
  EXPECT_EQ(File(), "XFile=Datei\r\n");
}

TEST_F(StringTableStory, AFileThatCannotBeMadeStopsNothing) {
  machine.files.FailWrites(Simulated::After{0}, RuntimeError::DiskFull);
  EXPECT_EQ(Look("XFile", "&File"), "&File");
  EXPECT_FALSE(machine.files.Exists(LanguageFile));
}

TEST_F(StringTableStory, AProgramFolderThatTakesNoNewFilesStopsNothing) {
  machine.files.RefuseNewFiles("C:\\Program Files\\SK2Pack");
  EXPECT_EQ(Look("XFile", "&File"), "&File");
  EXPECT_EQ(Look("FClose", "&Close"), "&Close");
  EXPECT_FALSE(machine.files.Exists(LanguageFile));
}

TEST_F(StringTableStory, AnEntryThatWasRefusedIsTriedAgainAtTheNextLookup) {
  FileHolds("XFile=Datei\r\n");
  machine.files.Hold(LanguageFile);
  EXPECT_EQ(Look("FClose", "&Close"), "&Close");
  EXPECT_EQ(File(), "XFile=Datei\r\n");
  machine.files.Release(LanguageFile);
  EXPECT_EQ(Look("FClose", "&Close"), "&Close");
  EXPECT_EQ(File(), "XFile=Datei\r\nFClose=&Close\r\n");
}

TEST_F(StringTableStory, AFileThatIsTooLargeForALanguageFileIsNotReadAndNotAppendedTo) {
  constexpr size_t Limit = 8 << 20;
  HostFile large;
  large.Repeat("XFile=Datei\r\n", Limit + 1);
  machine.files.MountHostFile(LanguageFile, large.path());
  std::string text;
  const auto growth = PeakMemory::Of([&] { text = Look("XFile", "&File"); });
  EXPECT_EQ(text, "&File");
  if (growth) {
    EXPECT_LT(*growth, Limit);
  }
  EXPECT_EQ(machine.files.Find(LanguageFile)->hostPath, large.path()) << "it was not written";
  FileHolds("XFile=Datei\r\n");
  EXPECT_EQ(Look("XFile", "&File"), "Datei");
}

TEST_F(StringTableStory, TheLargestLanguageFileHasEightMebibytes) {
  constexpr size_t Limit = 8 << 20;
  const std::string entry = "\r\nXFile=Datei\r\n";
  FileHolds(std::string(Limit - entry.size(), ';') + entry);
  EXPECT_EQ(Look("XFile", "&File"), "Datei");
  FileHolds(std::string(Limit - entry.size() + 1, ';') + entry);
  EXPECT_EQ(Look("XFile", "&File"), "&File");
}

// An editor that puts a copy back gives it its old size and time.
TEST_F(StringTableStory, AFileThatComesBackAsItWasIsReadAgain) {
  const std::string bytes = "XFile=Datei\r\n";
  FileHolds(bytes);
  EXPECT_EQ(Look("XFile", "&File"), "Datei");
  const uint64_t time = machine.files.Find(LanguageFile)->lastWrite;
  const auto comesBack = [&] {
    FileHolds(bytes);
    machine.files.Find(LanguageFile)->lastWrite = time;
    EXPECT_EQ(Look("XFile", "&File"), "Datei");
    EXPECT_EQ(File(), bytes);
  };

  FileHolds(std::string((8 << 20) + 1, 'x'));
  EXPECT_EQ(Look("XFile", "&File"), "&File") << "too large";
  comesBack();

  FileHolds("XFile=Daten\r\n");
  machine.files.HoldAlone(LanguageFile);
  EXPECT_EQ(Look("XFile", "&File"), "&File") << "unreadable";
  machine.files.Release(LanguageFile);
  comesBack();

  machine.files.Delete(LanguageFile);
  machine.files.FailWrites(Simulated::After{0}, RuntimeError::DiskFull);
  EXPECT_EQ(Look("XFile", "&File"), "&File") << "gone";
  comesBack();
}

TEST_F(StringTableStory, AFailureThatNoServiceNamesYieldsTheDefaultToo) {
  machine.files.MountHostFile(LanguageFile, "no such file of the host");  // asking for it throws
  EXPECT_EQ(Look("FClose", "&Close"), "&Close");
}

// The last line of a key counts, so an appended default would take a translation's place.
TEST_F(StringTableStory, NothingIsAppendedToAFileThatCannotBeRead) {
  FileHolds("XFile=Datei\r\n");
  machine.faults.FailAnyCall(Simulated::After{2});  // its stamp can be taken, its bytes cannot
  EXPECT_EQ(Look("XFile", "&File"), "&File");
  EXPECT_THAT(machine.FailedCall(), testing::StartsWith("Open "));
  EXPECT_EQ(File(), "XFile=Datei\r\n");
  EXPECT_EQ(Look("XFile", "&File"), "Datei");
}

TEST(StringTableSweep, WhateverFailsTheLookupYieldsATextAndTheFileStaysWhole) {
  const std::string before = "XFile=Datei\r\n";
  const auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After after) {
    machine.files.Put(LanguageFile, before);
    machine.FailAnyCall(after);
    EXPECT_EQ(GetLangString("FClose", "&Close", WithComments), "&Close");
    // A file that only could not be asked for something is written all the same.
    const bool isWritten =
        machine.FailedCall().empty() || machine.FailedCall().starts_with("GetInfo");
    EXPECT_EQ(machine.files.Text(LanguageFile), before + (isWritten ? "FClose=&Close\r\n" : ""));
  });
  EXPECT_THAT(calls, testing::IsSupersetOf({"GetInfo " + LanguageFile, "Open " + LanguageFile,
                                            "Read " + LanguageFile, "OpenToWrite " + LanguageFile,
                                            "Write " + LanguageFile}));
}

}  // namespace
