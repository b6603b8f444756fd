// Packing: what the packagers rely on before they delete what they have packed.
#include <set>

#include "platform/Files.h"
#include "platform/LongStep.h"
#include "tests/FailureSweep.h"
#include "tests/PeakMemory.h"
#include "tests/archive/ArchiveCorpus.h"
#include "tests/archive/ArchiveStory.h"

namespace {

using testing::HasSubstr;

class PackingStory : public ArchiveStory {
 protected:
  const std::string hill = "C:\\Game\\tracks\\hill.trk";
  const std::string spoken = "C:\\Game\\tracks\\hill.wav";
  const std::string packed = "C:\\Game\\tracks\\hill.zip";

  void SetUp() override {
    machine.files.Put(hill, ArchiveCorpus::Song());
    machine.files.Put(spoken, "a hill");
  }

  // What an archive unpacks to.
  Tree Contents() {
    Archive::Extract(packed, "C:\\Unpacked", "");
    return TreeOf(machine, "C:\\Unpacked");
  }
};

TEST_F(PackingStory, AnArchiveIsMadeAndNothingIsDeleted) {
  Archive::Pack(packed, {spoken, hill});
  EXPECT_EQ(machine.files.Names("C:\\Game\\tracks"),
            (std::vector<std::string>{"hill.trk", "hill.wav", "hill.zip"}));
  EXPECT_EQ(Contents(), (Tree{{"hill.trk", ArchiveCorpus::Song()}, {"hill.wav", "a hill"}}));
}

// As plain as can be: no entry needs more than the oldest programs know.
TEST_F(PackingStory, AnArchiveIsByteForByteWhatItShouldBe) {
  machine.files.Find(spoken)->lastWrite = 134'244'736'010'000'000u;  // 28 May 2026, 20:26:41 UTC
  machine.locale.minutesAheadOfUtc = 120;
  Archive::Pack(packed, {spoken});
  std::string seconds("\1");
  ZipBytes::Put(uint32_t{1'780'000'001}, seconds);
  ZipBytes::Member member{.name = "hill.wav", .contents = "a hill", .attributes = 0x20};
  member.dosTime = (46u << 9 | 5u << 5 | 28u) << 16 | 22u << 11 | 26u << 5 | 20u;
  member.extras = member.localExtras = ZipBytes::Extra(0x5455, seconds);
  EXPECT_EQ(machine.files.Text(packed), ZipBytes::Of(member));
}

TEST_F(PackingStory, TheSameFilesGiveTheSameBytes) {
  Archive::Pack(packed, {spoken, hill});
  const std::string first = machine.files.Text(packed);
  machine.files.Delete(packed);
  machine.clock.Pass(5000);
  Archive::Pack(packed, {spoken, hill});
  EXPECT_EQ(machine.files.Text(packed), first);
}

TEST_F(PackingStory, TimesBeyondWhatArchivesHoldBecomeTheNearest) {
  for (const uint64_t time : {uint64_t{0}, uint64_t{1}, ~uint64_t{0} >> 2}) {
    machine.files.Find(spoken)->lastWrite = time;
    Archive::Pack(packed, {spoken});
    EXPECT_EQ(Contents(), (Tree{{"hill.wav", "a hill"}})) << time;
  }
}

TEST_F(PackingStory, NamesBeyondAsciiAreSaidToBeUtf8) {
  machine.files.Put("C:\\H\xFCgel.wav", "1");
  Archive::Pack(packed, {"C:\\H\xFCgel.wav", hill});
  const std::string bytes = machine.files.Text(packed);
  EXPECT_EQ(bytes.substr(6, 2), std::string("\0\x08", 2));
  EXPECT_EQ(bytes.substr(30, 10), "H\xC3\xBCgel.wav");
  const size_t second = bytes.find("PK\3\4", 4);
  EXPECT_EQ(bytes.substr(second + 6, 2), std::string("\0\0", 2));
  EXPECT_EQ(Contents().count("H\xFCgel.wav"), 1u);
}

TEST_F(PackingStory, ANameOfTwoByteCharactersComesBack) {
  machine.locale.codePage = 932;
  machine.files.Put("C:\\a\\\x95\x5C.wav", "1");
  Archive::Pack(packed, {"C:\\a\\\x95\x5C.wav"});
  EXPECT_EQ(Contents(), (Tree{{"\x95\x5C.wav", "1"}}));
}

TEST_F(PackingStory, FilesAreAddedBehindWhatIsThere) {
  Archive::Pack(packed, {spoken});
  Archive::Pack(packed, {hill});
  const std::string oneByOne = machine.files.Text(packed);
  machine.files.Delete(packed);
  Archive::Pack(packed, {spoken, hill});
  EXPECT_EQ(machine.files.Text(packed), oneByOne);
}

TEST_F(PackingStory, AnEntryOfTheSameNameIsReplaced) {
  Archive::Pack(packed, {spoken, hill});
  machine.files.Put("C:\\new\\HILL.WAV", "another");
  Archive::Pack(packed, {"C:\\new\\HILL.WAV"});
  EXPECT_EQ(Contents(), (Tree{{"HILL.WAV", "another"}, {"hill.trk", ArchiveCorpus::Song()}}));
}

TEST_F(PackingStory, AFileThatIsListedTwiceIsPackedOnce) {
  Archive::Pack(packed, {spoken, "c:\\game\\TRACKS\\HILL.wav", spoken});
  EXPECT_EQ(Contents(), (Tree{{"hill.wav", "a hill"}}));
}

// Their sources are about to be deleted, and an archive can hold one of them only.
TEST_F(PackingStory, TwoFilesOfOneNameAreRefused) {
  machine.files.Put("C:\\other\\Hill.wav", "1");
  EXPECT_EQ(CauseKeyOf([&] {
              Archive::Pack(packed, {spoken, "C:\\other\\Hill.wav"});
            }),
            "ArchiveNameTwice");
  EXPECT_FALSE(machine.files.Exists(packed));
}

TEST_F(PackingStory, AFileThatIsNotThereIsRefused) {
  const auto failure = FailureOf([&] { Archive::Pack(packed, {spoken, "C:\\none.wav"}); });
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->number(), RuntimeError::FileNotFound);
  EXPECT_EQ(failure->file(), "C:\\none.wav");
  EXPECT_FALSE(machine.files.Exists(packed));
}

TEST_F(PackingStory, WhatOthersHavePutIntoTheArchiveStays) {
  // With all that an archive of another program may have.
  for (const auto& good : ArchiveCorpus::GoodArchives()) {
    SCOPED_TRACE(good.what);
    machine.files.Put(packed, good.bytes);
    Archive::Pack(packed, {spoken});
    Archive::Extract(packed, "C:\\Good", "");
    Tree wanted = good.tree;
    wanted["hill.wav"] = "a hill";
    EXPECT_EQ(TreeOf(machine, "C:\\Good"), wanted);
    Clear(machine, "C:\\Good");
  }
}

TEST_F(PackingStory, CommentsFieldsAndProgramsOfOthersStay) {
  machine.files.Put(packed,
                    ZipBytes::Bytes({.members = {{.name = "\xE5\xB1\xB1.trk",
                                                  .contents = "1",
                                                  .flags = ZipBytes::Utf8,
                                                  .isWide = true,
                                                  .madeOn = 3,
                                                  .attributes = 0100600u << 16,
                                                  .extras = ZipBytes::Extra(0x7875, "owner"),
                                                  .localExtras = ZipBytes::Extra(0x7875, "local"),
                                                  .comment = "a mountain"}},
                                     .stub = "MZ program",
                                     .comment = "all mine"}));
  Archive::Pack(packed, {spoken});
  const std::string bytes = machine.files.Text(packed);
  EXPECT_THAT(bytes, testing::StartsWith("MZ program"));
  EXPECT_THAT(bytes, testing::EndsWith("all mine"));
  for (const char* kept : {"owner", "local", "a mountain"}) EXPECT_THAT(bytes, HasSubstr(kept));
  // A name that cannot be unpacked here does not keep others from being added.
  EXPECT_EQ(CauseKeyOf([&] { Contents(); }), "ArchiveNameNotInLanguage");
}

// As many as the old fields cannot count.
TEST_F(PackingStory, AnArchiveMayHoldAnyNumberOfEntries) {
  constexpr uint64_t Count = 0xFFFF;
  ZipBytes::Archive archive;
  for (uint64_t i = 1; i < Count; ++i) {
    archive.members.push_back({.name = std::to_string(i), .method = ZipBytes::Stored});
  }
  machine.files.Put(packed, ZipBytes::Bytes(archive));
  Archive::Pack(packed, {spoken});
  const std::string bytes = machine.files.Text(packed);
  constexpr size_t OldEndSize = 22;
  constexpr size_t WideEndsSize = 56 + 20;
  const uint64_t place = bytes.size() - OldEndSize - WideEndsSize;
  const std::string ends = bytes.substr(place);
  const auto numberAt = [&ends](size_t at) {
    uint64_t number = 0;
    for (size_t i = 8; i-- > 0;) number = number << 8 | static_cast<unsigned char>(ends[at + i]);
    return number;
  };
  const uint64_t size = numberAt(40);
  const uint64_t start = numberAt(48);
  EXPECT_EQ(start + size, place);
  EXPECT_EQ(bytes.substr(start, 4), "PK\1\2");
  std::string wanted;
  ZipBytes::Put(uint32_t{0x06064B50}, wanted);
  ZipBytes::Put(uint64_t{44}, wanted);
  for (int i = 0; i < 2; ++i) ZipBytes::Put(uint16_t{45}, wanted);
  for (const uint64_t number : {uint64_t{0}, Count, Count, size, start}) {
    ZipBytes::Put(number, wanted);
  }
  ZipBytes::Put(uint32_t{0x07064B50}, wanted);
  ZipBytes::Put(uint32_t{0}, wanted);
  ZipBytes::Put(place, wanted);
  ZipBytes::Put(uint32_t{1}, wanted);
  EXPECT_EQ(ends.substr(0, WideEndsSize), wanted);
  EXPECT_EQ(ends.substr(WideEndsSize, 12), std::string("PK\5\6\0\0\0\0\xFF\xFF\xFF\xFF", 12));
  Archive::Pack(packed, {spoken});
  EXPECT_EQ(machine.files.Text(packed), bytes);
}

TEST_F(PackingStory, AnArchiveThatIsDamagedStaysAsItIs) {
  for (const auto& hostile : ArchiveCorpus::HostileArchives()) {
    machine.files.Put(packed, hostile.bytes);
    const std::string cause = CauseKeyOf([&] { Archive::Pack(packed, {spoken}); });
    const bool isOfNames = hostile.what.starts_with("the name");
    const std::string key = hostile.cause.key;
    const bool isLink = key == "ArchiveHoldsLink" || hostile.what.starts_with("a folder with");
    if (isOfNames || isLink) continue;  // which no unpacking harms here
    EXPECT_EQ(cause, key) << hostile.what;
    EXPECT_EQ(machine.files.Text(packed), hostile.bytes) << hostile.what;
  }
}

TEST_F(PackingStory, AFileThatAnotherProgramChangesMeanwhileIsRefused) {
  const std::string old(400'000, 'o');
  int refused = 0;
  AtEachMoment(
      machine, [&] { machine.files.Put(hill, old); },
      [&] { machine.files.Find(hill)->bytes += "more"; },
      [&] {
        const std::string cause = CauseKeyOf([&] { Archive::Pack(packed, {spoken, hill}); });
        if (cause.empty()) {
          // It was changed before it was read, or after it had been compared.
          EXPECT_THAT(Contents()["hill.trk"], testing::AnyOf(old, old + "more"));
          machine.files.Delete(packed);
        } else {
          EXPECT_EQ(cause, "ArchiveSourceChanged");
          EXPECT_FALSE(machine.files.Exists(packed));
          ++refused;
        }
      });
  EXPECT_GT(refused, 2);
}

// What the disk keeps is not what was written: the archive never gets its name.
TEST_F(PackingStory, WhatIsReadBackWrongNeverBecomesTheArchive) {
  int damages = 0;
  AtEachMoment(
      machine, [&] { machine.files.Put(hill, std::string(300'000, 'o')); },
      [&] {
        for (const std::string& name : machine.files.Names("C:\\Game\\tracks")) {
          std::string& bytes = machine.files.Find("C:\\Game\\tracks\\" + name)->bytes;
          if (name.ends_with(".sk2") && bytes.size() > 200) bytes[150] ^= 0x10;
        }
      },
      [&] {
        const std::string cause = CauseKeyOf([&] { Archive::Pack(packed, {hill, spoken}); });
        if (cause.empty()) {
          // It was damaged before there was anything, or after it had been read back.
          machine.files.Delete(packed);
        } else {
          EXPECT_EQ(cause, "ArchiveDamaged");
          EXPECT_FALSE(machine.files.Exists(packed));
          ++damages;
        }
      });
  EXPECT_GT(damages, 0);
}

TEST(PackingSweep, AnyFailureLeavesTheOldArchiveOrTheNewOneAndAllFiles) {
  using Tree = std::map<std::string, std::string>;
  const std::string hill = "C:\\Game\\tracks\\hill.trk";
  const std::string spoken = "C:\\Game\\tracks\\hill.wav";
  const std::string packed = "C:\\Game\\tracks\\hill.zip";
  const std::string old = ZipBytes::Of({.name = "HILL.wav", .contents = "old"});
  const auto put = [&](Simulated::Machine& machine) {
    machine.files.Put(hill, ArchiveCorpus::Song());
    machine.files.Put(spoken, "new");
    machine.files.Put(packed, old);
  };
  std::string wanted;
  {
    Simulated::Machine machine;
    put(machine);
    Archive::Pack(packed, {spoken, hill});
    wanted = machine.files.Text(packed);
    Archive::Extract(packed, "C:\\Unpacked", "");
    EXPECT_EQ(TreeOf(machine, "C:\\Unpacked"),
              (Tree{{"hill.trk", ArchiveCorpus::Song()}, {"hill.wav", "new"}}));
  }
  size_t refused = 0;
  const auto calls = ForEachCallThatFails([&](Simulated::Machine& sweep, Simulated::After after) {
    put(sweep);
    sweep.FailAnyCall(after);
    const auto failure = FailureOf([&] { Archive::Pack(packed, {spoken, hill}); });
    refused += failure ? 1 : 0;
    EXPECT_EQ(sweep.files.Text(packed), failure ? old : wanted);
    EXPECT_EQ(sweep.files.Text(hill), ArchiveCorpus::Song());
    EXPECT_EQ(sweep.files.Text(spoken), "new");
    EXPECT_EQ(sweep.files.Names("C:\\Game\\tracks").size(), 3u);
  });
  EXPECT_GT(refused, 20u);
  EXPECT_GT(calls.size(), refused) << "what is tried again";
}

TEST_F(PackingStory, AFullDiskLeavesNoArchive) {
  for (int writes = 0; writes < 4; ++writes) {
    machine.files.FailWrites(Simulated::After{writes}, RuntimeError::DiskFull);
    EXPECT_EQ(CauseKeyOf([&] { Archive::Pack(packed, {spoken, hill}); }), "RTEDiskFull");
    EXPECT_EQ(machine.files.Names("C:\\Game\\tracks").size(), 2u);
  }
}

TEST_F(PackingStory, AReadOnlyArchiveIsNotReplaced) {
  Archive::Pack(packed, {spoken});
  const std::string old = machine.files.Text(packed);
  machine.files.SetAttributes(packed, Simulated::ReadOnly);
  EXPECT_EQ(CauseKeyOf([&] { Archive::Pack(packed, {hill}); }), "RTEPathFileAccess");
  EXPECT_EQ(machine.files.Text(packed), old);
}

TEST_F(PackingStory, WindowsAnswerMeanwhile) {
  machine.files.Put(hill, std::string(4 << 20, 'x'));
  bool wasRunning = false;
  user.DuringLongStep([&] { wasRunning = Platform::LongStep::IsRunning(); });
  Archive::Pack(packed, {hill});
  EXPECT_TRUE(wasRunning);
  EXPECT_GT(machine.screen.answers, 60) << "once for each block, written and read back";
}

}  // namespace
