// What every machine does with archives, good and hostile: the words of archive/Extraction.h and
// archive/Packing.h on its own disk. Included once by each machine's tests.
#pragma once

#include <gmock/gmock.h>

#include <string>

#include "archive/Extraction.h"
#include "archive/Packing.h"
#include "archive/Times.h"
#include "base/RuntimeError.h"
#include "platform/Files.h"
#include "tests/archive/ArchiveCorpus.h"
#include "tests/machine/TestMachine.h"

class ArchiveContract : public ContractTest {
 protected:
  using Tree = ArchiveCorpus::Tree;

  std::string In(const std::string& name) const { return folder + "\\" + name; }

  void PutTarget() const {
    for (const char* part : {"into", "into\\the", "into\\the\\game"}) {
      TestMachine::PutFolder(In(part));
    }
  }

  // All that stands in a folder, by the paths from there.
  static Tree TreeOf(const std::string& top, const std::string& start = "") {
    Tree tree;
    for (const auto& entry : Platform::ListFolder(top)) {
      const std::string path = start + entry.name;
      if (entry.isFolder) {
        tree[path + "\\"] = "";
        tree.merge(TreeOf(top + "\\" + entry.name, path + "\\"));
      } else {
        tree[path] = TestMachine::BytesOf(top + "\\" + entry.name).value_or("cannot be read");
      }
    }
    return tree;
  }

  // Why the archive is refused; empty if it is not.
  std::string Refusal() const {
    try {
      Archive::Extract(archive, target, "");
    } catch (const RuntimeError& error) {
      return error.cause().key;
    }
    return "";
  }

  const std::string folder = TestMachine::ScratchFolder();
  const std::string archive = In("temp.zip");
  const std::string target = In("into\\the\\game");
};

TEST_F(ArchiveContract, UnpacksEveryGoodArchive) {
  int number = 0;
  for (const auto& good : ArchiveCorpus::GoodArchives()) {
    SCOPED_TRACE(good.what);
    const std::string into = In("good" + std::to_string(++number));
    TestMachine::PutFile(archive, good.bytes);
    try {
      Archive::Extract(archive, into, "");
    } catch (const RuntimeError& error) {
      ADD_FAILURE() << error.what() << " " << error.file();
    }
    EXPECT_EQ(ArchiveCorpus::Short(TreeOf(into)), ArchiveCorpus::Short(good.tree));
  }
}

TEST_F(ArchiveContract, RefusesEveryHostileArchiveAndWritesNothing) {
  PutTarget();
  TestMachine::PutFile(target + "\\good.trk", "as it was");
  for (const auto& hostile : ArchiveCorpus::HostileArchives()) {
    TestMachine::PutFile(archive, hostile.bytes);
    EXPECT_EQ(Refusal(), hostile.cause.key) << hostile.what;
    const Tree wanted{{"into\\", ""},
                      {"into\\the\\", ""},
                      {"into\\the\\game\\", ""},
                      {"into\\the\\game\\good.trk", "as it was"},
                      {"temp.zip", hostile.bytes}};
    ASSERT_EQ(ArchiveCorpus::Short(TreeOf(folder)), ArchiveCorpus::Short(wanted)) << hostile.what;
  }
}

TEST_F(ArchiveContract, RestoresTheTimesOfFiles) {
  using namespace ZipBytes;
  std::string seconds("\1");
  Put(uint32_t{1'780'000'001}, seconds);
  const Member exact{.name = "exact.trk", .extras = Extra(0x5455, seconds)};
  TestMachine::PutFile(archive, Bytes({.members = {exact, {.name = "noon.trk"}}}));
  Archive::Extract(archive, target, "");
  EXPECT_EQ(Platform::StampOf(target + "\\exact.trk")->lastWrite, 134'244'736'010'000'000u);
  EXPECT_EQ(Platform::StampOf(target + "\\noon.trk")->lastWrite, Archive::FromDosTime(Noon));

  // Packed again, they have the same times, to the second.
  Archive::Pack(In("again.zip"), {target + "\\exact.trk", target + "\\noon.trk"});
  Archive::Extract(In("again.zip"), In("again"), "");
  for (const char* name : {"\\exact.trk", "\\noon.trk"}) {
    EXPECT_EQ(Platform::StampOf(In("again") + name), Platform::StampOf(target + name)) << name;
  }
}

TEST_F(ArchiveContract, ReplacesFilesAndKeepsTheirAttributes) {
  PutTarget();
  TestMachine::PutFile(target + "\\hill.trk", "old");
  TestMachine::SetAttributes(target + "\\hill.trk", TestMachine::Hidden);
  TestMachine::PutFile(archive, ZipBytes::Of({.name = "HILL.trk", .contents = "new"}));
  Archive::Extract(archive, target, "");
  EXPECT_EQ(TestMachine::BytesOf(target + "\\hill.trk"), "new");
  EXPECT_EQ(TestMachine::AttributesOf(target + "\\hill.trk"), TestMachine::Hidden);
}

TEST_F(ArchiveContract, ReplacesNoFileThatIsReadOnlyAndWritesNothing) {
  PutTarget();
  TestMachine::PutFile(target + "\\hill.trk", "old");
  TestMachine::SetAttributes(target + "\\hill.trk", TestMachine::ReadOnly);
  TestMachine::PutFile(archive,
                       ZipBytes::Bytes({.members = {{.name = "a.trk"}, {.name = "hill.trk"}}}));
  EXPECT_EQ(Refusal(), RuntimeErrorTexts.PathFileAccess.key);
  EXPECT_EQ(TreeOf(target), (Tree{{"hill.trk", "old"}}));
}

TEST_F(ArchiveContract, PutsNoFileInPlaceOfAFolderNorTheOtherWayRound) {
  PutTarget();
  TestMachine::PutFolder(target + "\\sounds");
  TestMachine::PutFile(target + "\\horn", "old");
  for (const char* name : {"sounds", "HORN\\a.wav", "horn\\"}) {
    TestMachine::PutFile(archive,
                         ZipBytes::Bytes({.members = {{.name = "a.trk"}, {.name = name}}}));
    EXPECT_EQ(Refusal(), RuntimeErrorTexts.PathFileAccess.key) << name;
  }
  EXPECT_EQ(TreeOf(target), (Tree{{"horn", "old"}, {"sounds\\", ""}}));
}

TEST_F(ArchiveContract, TakesAwayWhatIsNewIfAFileIsInUse) {
  PutTarget();
  TestMachine::PutFile(target + "\\held.trk", "old");
  TestMachine::Hold(target + "\\held.trk", TestMachine::Sharing::ForReading);
  TestMachine::PutFile(archive, ZipBytes::Bytes({.members = {{.name = "a.trk"},
                                                             {.name = "new/b.trk"},
                                                             {.name = "held.trk"},
                                                             {.name = "sub/z.trk"}}}));
  EXPECT_EQ(Refusal(), RuntimeErrorTexts.PermissionDenied.key);
  EXPECT_EQ(TreeOf(target), (Tree{{"held.trk", "old"}}));
}

TEST_F(ArchiveContract, PacksFilesAndUnpacksThem) {
  const std::string song = ArchiveCorpus::Song();
  TestMachine::PutFile(In("hill.trk"), song);
  TestMachine::PutFile(In("H\xFCgel.wav"), "");
  TestMachine::SetAttributes(In("hill.trk"), TestMachine::ReadOnly);
  Archive::Pack(archive, {In("H\xFCgel.wav"), In("hill.trk")});
  Archive::Extract(archive, target, "");
  EXPECT_EQ(TreeOf(target), (Tree{{"H\xFCgel.wav", ""}, {"hill.trk", song}}));
  EXPECT_EQ(TestMachine::BytesOf(In("hill.trk")), song);
  EXPECT_LT(TestMachine::BytesOf(archive)->size(), song.size() / 3);
}

TEST_F(ArchiveContract, ReplacesAnEntryOfAnArchive) {
  TestMachine::PutFile(archive,
                       ZipBytes::Bytes({.members = {{.name = "HILL.trk", .contents = "old"},
                                                    {.name = "lake.trk", .contents = "l"}},
                                        .comment = "mine"}));
  TestMachine::PutFile(In("hill.trk"), "new");
  Archive::Pack(archive, {In("hill.trk")});
  Archive::Extract(archive, target, "");
  EXPECT_EQ(TreeOf(target), (Tree{{"hill.trk", "new"}, {"lake.trk", "l"}}));
  EXPECT_THAT(*TestMachine::BytesOf(archive), testing::EndsWith("mine"));
}

TEST_F(ArchiveContract, LeavesADamagedArchiveAsItIs) {
  TestMachine::PutFile(In("hill.trk"), "new");
  for (const char* bytes : {"", "PK\3\4", "This is no archive."}) {
    TestMachine::PutFile(archive, bytes);
    EXPECT_THROW(Archive::Pack(archive, {In("hill.trk")}), RuntimeError);
    EXPECT_EQ(TreeOf(folder), (Tree{{"hill.trk", "new"}, {"temp.zip", bytes}}));
  }
}
