// Looking into an archive, beside unpacking it.
#include "archive/Inspection.h"

#include "base/Text.h"
#include "platform/LetterCase.h"
#include "tests/RandomText.h"
#include "tests/archive/ArchiveCorpus.h"
#include "tests/archive/ArchiveStory.h"

namespace {

const std::string ArchivePath = "C:\\temp.zip";
const std::string Target = "C:\\game";

std::string ContentsOf(Archive::Inspection& inspection, const std::string& file, size_t atOnce) {
  const LineReader::Source source = inspection.Open(file);
  std::string all;
  std::string block(atOnce, '\0');
  while (const size_t count = source(block.data(), block.size())) all.append(block, 0, count);
  return all;
}

TEST(Inspection, SeesTheFilesThatAreUnpacked) {
  for (const auto& good : ArchiveCorpus::GoodArchives()) {
    SCOPED_TRACE(good.what);
    Simulated::Machine machine;
    machine.files.Put(ArchivePath, good.bytes);
    Archive::Inspection inspection(ArchivePath);
    ArchiveCorpus::Tree seen;
    for (const std::string& file : inspection.files()) {
      seen[Platform::LowerCase(file)] = ContentsOf(inspection, file, 1 + seen.size() * 999);
    }
    // Of a folder in two letter cases the disk keeps the first.
    ArchiveCorpus::Tree files;
    for (const auto& [path, contents] : good.tree) {
      if (!path.ends_with('\\')) files[Platform::LowerCase(path)] = contents;
    }
    EXPECT_EQ(ArchiveCorpus::Short(seen), ArchiveCorpus::Short(files));
  }
}

TEST(Inspection, RefusesWhatUnpackingRefuses) {
  for (const auto& hostile : ArchiveCorpus::HostileArchives()) {
    Simulated::Machine machine;
    machine.files.Put(ArchivePath, hostile.bytes);
    const auto reasonOf = [](const auto& action) {
      try {
        action();
      } catch (const RuntimeError& error) {
        // What is unpacked lies below the folder.
        return error.cause().english + Text::Replace(error.file(), Target, "");
      }
      return std::string("not refused");
    };
    EXPECT_EQ(reasonOf([] { Archive::Inspection inspection(ArchivePath); }),
              reasonOf([] { Archive::Extract(ArchivePath, Target, ""); }))
        << hostile.what;
  }
}

// What an archive holds is what stands below the folder once it is unpacked, whatever the path.
TEST(Inspection, HoldsWhatThenStandsOnTheDisk) {
  Simulated::Machine machine;
  machine.files.Put(ArchivePath, ZipBytes::Bytes({.members = {{.name = "Rocket/Horn.wav"},
                                                              {.name = "Rocket/H\xFCgel/a.trk"},
                                                              {.name = "empty/"},
                                                              {.name = "top.wav"}}}));
  Archive::Inspection inspection(ArchivePath);
  Archive::Extract(ArchivePath, Target, "");
  RandomText random(8);
  const std::vector<std::string> words{"rocket",  "Horn.WAV", "h\xDCgel", "a.trk",     "empty",
                                       "top.wav", ".",        "..",       "",          " ",
                                       ". .",     "no",       "top.wav.", "horn.wav ", "a?b"};
  int held = 0;
  for (int i = 0; i < 20000; ++i) {
    std::string path = random.OneOf(words);
    int depth = 0;
    for (size_t more = random.Below(4); more > 0; --more) {
      path += random.OneOf({"\\", "/", "\\\\"}) + random.OneOf(words);
    }
    // A path that leads out of the folder leads to nothing of the archive.
    bool leadsOut = false;
    std::string name;
    for (const char c : path + "\\") {
      if (c != '\\' && c != '/') {
        name += c;
        continue;
      }
      if (name == "..") --depth;
      if (!name.empty() && name != "." && name != "..") ++depth;
      leadsOut = leadsOut || depth < 0;
      name.clear();
    }
    const bool isOnDisk = Platform::FileExists(Target + "\\" + path);
    ASSERT_EQ(inspection.Holds(path), isOnDisk && !leadsOut) << '"' << path << '"';
    held += isOnDisk;
  }
  EXPECT_GT(held, 1000);
  EXPECT_TRUE(inspection.Holds(""));
}

}  // namespace
