// Archives that are made at random, and archives that are nearly right.
#include <map>

#include "base/Text.h"
#include "tests/RandomText.h"
#include "tests/archive/ArchiveCorpus.h"
#include "tests/archive/ArchiveStory.h"

namespace {

using ZipBytes::Descriptor;

class ArchiveProperties : public ArchiveStory {
 protected:
  std::string Contents() {
    std::string contents;
    const size_t size = random.OneIn(10) ? 200'000 + random.Below(200'000) : random.Below(300);
    const size_t letters = 1 + random.Below(255);
    while (contents.size() < size) contents += static_cast<char>(random.Below(letters));
    return contents;
  }

  // An archive in all the ways in which one may be written, and what it holds.
  ZipBytes::Archive Any(Tree& tree) {
    ZipBytes::Archive archive;
    for (size_t count = random.Below(6); count > 0; --count) {
      ZipBytes::Member member;
      const std::string folder = random.OneOf({"", "", "a", "b\\c"});
      member.name = (folder.empty() ? "" : folder + "\\") + std::to_string(count);
      member.contents = Contents();
      tree[member.name] = member.contents;
      if (!folder.empty()) tree[folder + "\\"] = "";
      if (folder == "b\\c") tree["b\\"] = "";
      if (random.OneIn(2)) member.name = Text::Replace(member.name, "\\", "/");
      member.method = random.OneIn(3) ? ZipBytes::Stored : ZipBytes::Deflate;
      member.isWide = random.OneIn(4);
      if (random.OneIn(3)) {
        const bool isSigned = random.OneIn(2);
        member.descriptor = member.isWide
                                ? isSigned ? Descriptor::WideSigned : Descriptor::WideUnsigned
                            : isSigned ? Descriptor::Signed
                                       : Descriptor::Unsigned;
      }
      if (random.OneIn(3)) member.extras = ZipBytes::Extra(0x9999, Contents().substr(0, 50));
      if (random.OneIn(3)) member.localExtras = ZipBytes::Extra(0x5455, Contents().substr(0, 50));
      if (random.OneIn(5)) member.comment = Contents().substr(0, 100);
      archive.members.push_back(member);
    }
    archive.isWide = random.OneIn(3);
    if (random.OneIn(4)) archive.stub = Contents().substr(0, 500);
    archive.countsStub = random.OneIn(2);
    return archive;
  }

  RandomText random{20261031};
};

TEST_F(ArchiveProperties, AnyArchiveIsUnpackedAsItWasMade) {
  for (int i = 0; i < 60; ++i) {
    Tree tree;
    const std::string bytes = ZipBytes::Bytes(Any(tree));
    const std::string into = game + "\\" + std::to_string(i);
    machine.files.Put(zip, bytes);
    machine.files.LimitReads(random.OneIn(2) ? 100 + random.Below(5000) : SIZE_MAX);
    ASSERT_EQ(CauseKeyOf([&] { Archive::Extract(zip, into, ""); }), "") << i;
    ASSERT_EQ(TreeOf(machine, into), tree) << i;
    Clear(machine, into);
  }
}

TEST_F(ArchiveProperties, AnyFilesComeBackAsTheyWerePacked) {
  Tree all;
  for (int i = 0; i < 60; ++i) {
    std::vector<std::string> files;
    for (size_t count = 1 + random.Below(4); count > 0; --count) {
      const std::string name = std::to_string(random.Below(12));
      all[name] = Contents();
      machine.files.Put("C:\\from\\" + name, all[name]);
      files.push_back("C:\\from\\" + name);
    }
    machine.files.LimitReads(random.OneIn(2) ? 1000 + random.Below(5000) : SIZE_MAX);
    Archive::Pack(zip, files);
  }
  Extract();
  EXPECT_EQ(Game(), all);
}

// Whatever is done to the bytes of an archive: it is refused and nothing is written, or it is
// unpacked, and nothing is written elsewhere.
TEST_F(ArchiveProperties, AnArchiveThatIsNearlyRightDoesNoHarm) {
  std::map<std::string, int> causes;
  std::vector<std::string> starts;
  for (const auto& good : ArchiveCorpus::GoodArchives()) {
    if (good.bytes.size() < 5000) starts.push_back(good.bytes);
  }
  machine.files.Put("C:\\other.txt", "mine");
  machine.files.PutFolder(game);
  const auto atTop = machine.files.Names("C:");
  for (int i = 0; i < 3000; ++i) {
    const std::string bytes = random.Mutated(random.OneOf(starts));
    machine.files.Put(zip, bytes);
    const std::string into = game + "\\" + std::to_string(i);
    const std::string cause = CauseKeyOf([&] { Archive::Extract(zip, into, ""); });
    ++causes[cause];
    ASSERT_EQ(machine.files.Exists(into), cause.empty()) << testing::PrintToString(bytes);
    ASSERT_EQ(machine.files.Names("C:"), atTop) << testing::PrintToString(bytes);
    ASSERT_EQ(machine.files.Text(zip), bytes);
    if (cause.empty()) Clear(machine, into);
  }
  EXPECT_EQ(machine.files.Names("C:\\Pack").size(), 1u);
  EXPECT_EQ(machine.files.Names("C:\\Game").size(), 1u);
  EXPECT_GT(causes[""], 100);
  EXPECT_GT(causes["ArchiveDamaged"], 500);
  EXPECT_GT(causes["ArchiveNotAZip"], 100);
  EXPECT_GT(causes.size(), 6u);
}

}  // namespace
