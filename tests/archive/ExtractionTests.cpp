// Unpacking: what only the simulated machine can show.
#include <vector>

#include "archive/ArchiveTexts.h"
#include "platform/LongStep.h"
#include "tests/FailureSweep.h"
#include "tests/HostFile.h"
#include "tests/PeakMemory.h"
#include "tests/RandomText.h"
#include "tests/archive/ArchiveCorpus.h"
#include "tests/archive/ArchiveStory.h"

namespace {

using testing::HasSubstr;
using ZipBytes::Member;

class ExtractionStory : public ArchiveStory {};

TEST_F(ExtractionStory, AnArchiveIsRefusedWhereverItIsCut) {
  machine.files.PutFolder(game);
  const std::string whole =
      ZipBytes::Bytes({.members = {{.name = "a/", .extras = "1234"},
                                   {.name = "a/hill.trk", .contents = "uphill, downhill"},
                                   {.name = "lake.trk",
                                    .contents = "round",
                                    .method = ZipBytes::Stored,
                                    .descriptor = ZipBytes::Descriptor::WideSigned,
                                    .isWide = true,
                                    .comment = "flat"}},
                       .comment = "two tracks",
                       .isWide = true});
  for (size_t size = 0; size < whole.size(); ++size) {
    machine.files.Put(zip, whole.substr(0, size));
    const std::string cause = CauseKeyOf([&] { Extract(); });
    ASSERT_THAT(cause, testing::AnyOf("ArchiveDamaged", "ArchiveNotAZip")) << size;
    ASSERT_EQ(Game(), Tree{}) << size;
  }
  machine.files.Put(zip, whole);
  Extract();
  EXPECT_EQ(Game().size(), 3u);
}

TEST_F(ExtractionStory, TheEntryIsToldBehindTheArchive) {
  Put({.members = {{.name = "a/../../b.trk"}}});
  const auto failure = FailureOf([&] { Extract(); });
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->number(), RuntimeError::InvalidCall);
  EXPECT_EQ(failure->file(), zip + ": a/../../b.trk");
}

TEST_F(ExtractionStory, AnArchiveThatIsNotThereCannotBeUnpacked) {
  const auto failure = FailureOf([&] { Extract(); });
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->file(), zip);
  EXPECT_FALSE(machine.files.Exists(game));
}

TEST_F(ExtractionStory, APasswordUnpacksNothing) {
  Put({.members = {{.name = "a.trk", .flags = 1}}});
  EXPECT_EQ(CauseKeyOf([&] { Archive::Extract(zip, game, "secret"); }), "ArchiveEncrypted");
  EXPECT_FALSE(machine.files.Exists(game));
}

TEST_F(ExtractionStory, ADestinationMayEndInABackslash) {
  Put({.members = {{.name = "a.trk", .contents = "1"}}});
  Archive::Extract(zip, game + "\\", "");
  EXPECT_EQ(Game(), (Tree{{"a.trk", "1"}}));
}

TEST_F(ExtractionStory, NoFileReplacesTheArchiveThatIsUnpacked) {
  machine.files.Put("C:\\Pack\\old.trk", "");
  Put({.members = {{.name = "TEMP.zip"}, {.name = "a.trk"}}});
  EXPECT_EQ(CauseKeyOf([&] { Archive::Extract(zip, "c:\\pack", ""); }), "RTEPathFileAccess");
  EXPECT_FALSE(machine.files.Exists("C:\\Pack\\a.trk"));
}

TEST_F(ExtractionStory, AFileInPlaceOfTheDestinationStays) {
  machine.files.Put(game, "file");
  Put({.members = {{.name = "a.trk"}}});
  EXPECT_EQ(CauseKeyOf([&] { Extract(); }), "RTEPathFileAccess");
  EXPECT_EQ(machine.files.Text(game), "file");
}

TEST_F(ExtractionStory, WhatDoesNotFitOnTheDiskIsNotBegun) {
  const std::string thousand(1000, 'x');
  Put({.members = {{.name = "a.trk", .contents = thousand},
                   {.name = "b.trk", .contents = thousand}}});
  machine.files.SetFreeSpace(1999);
  const auto failure = FailureOf([&] { Extract(); });
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->number(), RuntimeError::DiskFull);
  EXPECT_FALSE(machine.files.Exists(game));
  machine.files.SetFreeSpace(2000);
  Extract();
  EXPECT_EQ(Game().size(), 2u);
}

TEST_F(ExtractionStory, FilesThatAreReplacedMakeRoom) {
  const std::string thousand(1000, 'x');
  machine.files.Put(game + "\\a.trk", thousand);
  Put({.members = {{.name = "a.trk", .contents = thousand},
                   {.name = "b.trk", .contents = thousand}}});
  machine.files.SetFreeSpace(999);
  EXPECT_EQ(CauseKeyOf([&] { Extract(); }), "RTEDiskFull");
  machine.files.SetFreeSpace(1000);
  Extract();
  EXPECT_EQ(Game().size(), 2u);
}

// The disk fills up while it is written, whatever was said of it before.
TEST_F(ExtractionStory, WhatIsNewGoesAgainIfTheDiskGetsFull) {
  machine.files.Put(game + "\\car.vhc", "old");
  Put({.members = {{.name = "a/b/one.wav", .contents = "1"},
                   {.name = "car.vhc", .contents = "new"},
                   {.name = "z.wav", .contents = "26"}}});
  // A write and a flush for each file.
  machine.files.FailWrites(Simulated::After{5}, RuntimeError::DiskFull);
  EXPECT_EQ(CauseKeyOf([&] { Extract(); }), "RTEDiskFull");
  EXPECT_EQ(Game(), (Tree{{"car.vhc", "new"}}));
}

TEST_F(ExtractionStory, AFolderIsTakenAwayOnlyIfItIsNewAndEmpty) {
  machine.files.PutFolder(game + "\\old");
  Put({.members = {{.name = "new/one.wav", .contents = "1"},
                   {.name = "old/two.wav", .contents = "2"},
                   {.name = "z.wav", .contents = "26"}}});
  machine.files.FailWrites(Simulated::After{5}, RuntimeError::DiskFull);
  EXPECT_EQ(CauseKeyOf([&] { Extract(); }), "RTEDiskFull");
  EXPECT_EQ(Game(), (Tree{{"old\\", ""}}));
}

TEST_F(ExtractionStory, TheUserBeginsNothingMeanwhileAndWindowsAnswer) {
  Put({.members = {{.name = "a.trk", .contents = std::string(4 << 20, 'x')}}});
  bool wasRunning = false;
  user.DuringLongStep([&] { wasRunning = Platform::LongStep::IsRunning(); });
  Extract();
  EXPECT_TRUE(wasRunning);
  EXPECT_FALSE(Platform::LongStep::IsRunning());
  EXPECT_GT(machine.screen.answers, 60) << "once for each block of two passes";
}

// In the code pages of East Asia a backslash may be half of a character.
TEST_F(ExtractionStory, CharactersOfTwoBytesAreTakenWhole) {
  machine.locale.codePage = 932;
  Put({.members = {{.name = "\x83\x5C\x83\x7C/\x95\x5C.trk", .contents = "1"}}});
  Extract();
  EXPECT_EQ(Game(), (Tree{{"\x83\x5C\x83\x7C\\", ""}, {"\x83\x5C\x83\x7C\\\x95\x5C.trk", "1"}}));
  for (const char* name : {"..\x5C\x83.trk", "a\x83", "a\x83\n.trk", "\x83"}) {
    Put({.members = {{.name = name}}});
    EXPECT_NE(CauseKeyOf([&] { Extract(); }), "") << name;
  }
}

TEST_F(ExtractionStory, NamesMayBeInUtf8Throughout) {
  machine.locale.codePage = 65001;
  const std::string name = "\xE5\xB1\xB1/H\xC3\xBCgel.trk";
  Put({.members = {{.name = name, .contents = "1", .flags = ZipBytes::Utf8}}});
  Extract();
  EXPECT_EQ(machine.files.Text(game + "\\\xE5\xB1\xB1\\h\xC3\xBCgel.trk"), "1");
  for (const char* hostile : {"com\xC2\xB9", "a\xC0\xAF", "a\xE5\xB1", "a\xEF\xBF"}) {
    for (const uint16_t flags : {ZipBytes::Utf8, uint16_t{0}}) {
      Put({.members = {{.name = hostile, .flags = flags}}});
      EXPECT_EQ(CauseKeyOf([&] { Extract(); }), "ArchiveNameNotUsable") << hostile;
    }
  }
}

// Such a name would be taken for a file that an ended save has left.
TEST_F(ExtractionStory, ASideFileIsNotUnpacked) {
  for (char first = 'a'; first <= 'z'; ++first) {
    Put({.members = {{.name = std::string("~") + first + "2222.sk2"}}});
    CauseKeyOf([&] { Extract(); });
  }
  const Tree before = Game();
  Put({.members = {{.name = "other.trk"}}});
  Extract();
  EXPECT_EQ(Game().size(), before.size() + 1);
}

TEST_F(ExtractionStory, APathMayBeAsLongAsTheSystemAllows) {
  const std::string longest(259 - game.size() - 1, 'n');
  Put({.members = {{.name = longest, .contents = "1"}}});
  Extract();
  EXPECT_EQ(Game(), (Tree{{longest, "1"}}));
  Put({.members = {{.name = longest + "n"}}});
  EXPECT_EQ(CauseKeyOf([&] { Extract(); }), "RTENameNotUsable");
  Put({.members = {{.name = std::string(247 - game.size(), 'f') + "/"}}});
  EXPECT_EQ(CauseKeyOf([&] { Extract(); }), "RTENameNotUsable");
}

TEST(ExtractionSweep, AnyFailureLeavesWholeFilesOnly) {
  using Tree = std::map<std::string, std::string>;
  const std::string zip = "C:\\temp.zip";
  const std::string game = "C:\\Game\\vehicles";
  const ZipBytes::Archive archive{
      .members = {{.name = "horn/"},
                  {.name = "horn/toot.wav", .contents = std::string(300'000, 't')},
                  {.name = "car.vhc", .contents = "new"},
                  {.name = "deep/er/z.wav",
                   .contents = "26",
                   .method = ZipBytes::Stored,
                   .descriptor = ZipBytes::Descriptor::Unsigned}}};
  const std::string bytes = ZipBytes::Bytes(archive);
  const Tree old{{"car.vhc", "old"}};
  const Tree oldWithNewCar{{"car.vhc", "new"}};
  const Tree all{{"car.vhc", "new"}, {"deep\\", ""},
                 {"deep\\er\\", ""}, {"deep\\er\\z.wav", "26"},
                 {"horn\\", ""},     {"horn\\toot.wav", std::string(300'000, 't')}};
  int unpacked = 0;
  int refused = 0;
  const auto calls = ForEachCallThatFails([&](Simulated::Machine& sweep, Simulated::After after) {
    sweep.files.Put(game + "\\car.vhc", "old");
    sweep.files.Put(zip, bytes);
    sweep.FailAnyCall(after);
    const auto failure = FailureOf([&] { Archive::Extract(zip, game, ""); });
    const Tree found = TreeOf(sweep, game);
    if (failure) {
      ++refused;
      EXPECT_NE(failure->file(), "");
      EXPECT_THAT(found, testing::AnyOf(old, oldWithNewCar));
    } else {
      ++unpacked;
      EXPECT_EQ(found, all);
    }
    EXPECT_EQ(sweep.files.Text(zip), bytes);
  });
  EXPECT_GT(refused, 30);
  EXPECT_GT(unpacked, 3) << "what is tried again";
  EXPECT_THAT(calls, testing::Contains(HasSubstr("FreeSpace")));
  EXPECT_THAT(calls, testing::Contains(HasSubstr("Seek")));
}

// Wherever the power goes, every file is the old one or the new one.
TEST(ExtractionEnded, LeavesWholeFilesWhereverTheProgramEnds) {
  const std::string game = "C:\\Game";
  const std::string bytes = ZipBytes::Bytes(
      {.members = {{.name = "a.trk", .contents = "new"}, {.name = "b/c.trk", .contents = "new"}}});
  bool hasEnded = true;
  for (int calls = 0; hasEnded; ++calls) {
    Simulated::Machine machine;
    machine.files.Put(game + "\\a.trk", "old");
    machine.files.Put("C:\\temp.zip", bytes);
    machine.faults.EndProgramAtFileCall(Simulated::After{calls});
    try {
      Archive::Extract("C:\\temp.zip", game, "");
    } catch (const RuntimeError&) {
    }
    hasEnded = !machine.faults.EndedAt().empty();
    machine.StartAnew();
    for (const auto& [path, contents] : TreeOf(machine, game)) {
      if (!path.ends_with(".trk")) continue;
      EXPECT_TRUE(contents == "new" || (path == "a.trk" && contents == "old")) << path;
    }
  }
}

// Another program changes the archive between the passes; or the disk gives other bytes.
TEST_F(ExtractionStory, AnArchiveThatChangesMeanwhileLeavesNothing) {
  const std::string good = ZipBytes::Of(
      {.name = "a.trk", .contents = std::string(500'000, 'g'), .method = ZipBytes::Stored});
  std::string bad = good;
  bad[400'000] = 'b';
  int refused = 0;
  AtEachMoment(
      machine, [&] { machine.files.Put(zip, good); }, [&] { machine.files.Find(zip)->bytes = bad; },
      [&] {
        const std::string cause = CauseKeyOf([&] { Extract(); });
        if (cause.empty()) {
          EXPECT_EQ(Game(), (Tree{{"a.trk", std::string(500'000, 'g')}}));
          machine.files.Delete(game + "\\a.trk");
        } else {
          EXPECT_EQ(cause, "ArchiveDamaged");
          EXPECT_EQ(Game(), Tree{});
          ++refused;
        }
      });
  EXPECT_GT(refused, 3);
}

// A sound of 100 MB in an archive of 100 KB.
TEST(ExtractionMemory, StaysTheSameHoweverLargeTheFilesAre) {
  const std::string archive = "C:\\large.zip";
  const auto peakOf = [&](size_t bytes) {
    Simulated::Machine machine;
    // The checksum is wrong, so that all of it is unpacked, and nothing is written: this disk is in
    // memory.
    machine.files.Put(
        archive,
        ZipBytes::Of({.name = "a.wav", .contents = std::string(bytes, '\0'), .checksum = 1}));
    return PeakMemory::Of([&] {
      try {
        Archive::Extract(archive, "C:\\Game", "");
        ADD_FAILURE() << "was not refused";
      } catch (const RuntimeError&) {
      }
    });
  };
  const auto peak = peakOf(size_t{100} << 20);
  if (!peak) GTEST_SKIP() << "the kernel does not tell";
  EXPECT_LT(*peak, size_t{4} << 20);
}

TEST_F(ExtractionStory, HundredsOfEntriesAreUnpacked) {
  ZipBytes::Archive archive;
  for (int i = 0; i < 300; ++i) {
    archive.members.push_back(
        {.name = std::to_string(i % 50) + "/" + std::to_string(i), .contents = std::to_string(i)});
  }
  Put(archive);
  Extract();
  EXPECT_EQ(Game().size(), 350u);
  EXPECT_EQ(machine.files.Text(game + "\\49\\299"), "299");
}

}  // namespace
