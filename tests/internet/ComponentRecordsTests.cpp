#include "internet/ComponentRecords.h"

#include <gmock/gmock.h>

#include "internet/ComponentPlaces.h"
#include "internet/Components.h"
#include "tests/internet/InternetStory.h"

namespace {

using namespace ComponentRecords;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(ComponentRecords, OfAListWithLineFeedsAreOneLine) {
  const Lines lines = LinesIn("Dirt Buggy:buggy.zip\nno record\nNight Rally:rally.zip\n");
  EXPECT_EQ(lines.badLine, 0U);
  EXPECT_EQ(lines.text, "Dirt Buggy:buggy.zip\nno record\nNight Rally:rally.zip\n\r\n");
  EXPECT_THAT(DisplayNames(lines.text), ElementsAre("Dirt Buggy", "Night Rally"));
}

TEST(ComponentRecords, EndAtCarriageReturnsToo) {
  EXPECT_EQ(LinesIn("a:1\r\nb:2\rc:3").text, "a:1\r\nb:2\r\nc:3\r\n");
  EXPECT_THAT(DisplayNames("a:1\r\nb:2\r\nc:3\r\n"), ElementsAre("a", "b", "c"));
}

TEST(ComponentRecords, WithALineWithoutColonAreNone) {
  EXPECT_EQ(LinesIn("a:1\r\nb:2\r\nc\r\nd:4\r\ne\r\n").badLine, 3U);
  EXPECT_EQ(LinesIn("a:1\r\nb:2\r\nc\r\n").text, "");
  EXPECT_EQ(LinesIn("a:1\r\n\r\n").badLine, 2U);
  EXPECT_EQ(LinesIn("<html>").badLine, 1U);
  EXPECT_EQ(LinesIn("a\nb\nc").badLine, 1U);
}

TEST(ComponentRecords, OfAnEmptyListAreNone) {
  EXPECT_EQ(LinesIn("").text, "");
  EXPECT_EQ(LinesIn("").badLine, 0U);
  EXPECT_THAT(DisplayNames(""), IsEmpty());
}

TEST(ComponentRecords, AreNamedByWhatStandsBeforeTheFirstColon) {
  EXPECT_THAT(DisplayNames("a:b:c\n:d\nnone\n"), ElementsAre("a", ""));
}

TEST(ComponentRecords, TellTheFileOfAName) {
  const std::string text = "Dirt Buggy:buggy.zip\nNight Rally:rally.zip\n\r\n";
  EXPECT_EQ(FileNameOf(text, "Dirt Buggy"), "buggy.zip");
  EXPECT_EQ(FileNameOf(text, "Night Rally"), "rally.zip");
  EXPECT_EQ(FileNameOf(text, "night rally"), "");
  EXPECT_EQ(FileNameOf(text, "Rally"), "") << "only at the beginning";
  EXPECT_EQ(FileNameOf("a:b:c.zip\n", "a"), "b:c.zip");
}

TEST(ComponentRecords, OfTwoThatBeginWithTheNameTellTheFileOfTheLast) {
  EXPECT_EQ(FileNameOf("Rally:rally.zip\nRally Pro:pro.zip\n", "Rally"), "pro.zip");
  EXPECT_EQ(FileNameOf("Rally Pro:pro.zip\nRally:rally.zip\n", "Rally"), "rally.zip");
  EXPECT_EQ(FileNameOf("Rally:rally.zip\nRally without a file\n", "Rally"), "rally.zip");
}

TEST(ComponentRecords, KeepTheCarriageReturn) {
  EXPECT_EQ(FileNameOf("a:a.zip\r\nb:b.zip\r\n", "a"), "a.zip\r");
  EXPECT_EQ(FileNameOf("a:a.zip\nb:b.zip\r\n", "b"), "b.zip\r");
}

TEST(ComponentRecords, AreWrittenAsTheyAreRead) {
  const std::vector<ComponentRecords::Record> records = {
      {"Cricket", "cricket.zip"}, {"Rally Pro", "pro.zip"}, {"Rally", "rally.zip"}};
  const std::string file = ComponentRecords::ListOf(records);
  EXPECT_EQ(file, "Cricket:cricket.zip\nRally Pro:pro.zip\nRally:rally.zip\n");
  const ComponentRecords::Lines lines = LinesIn(file);
  EXPECT_EQ(lines.badLine, 0U);
  EXPECT_THAT(DisplayNames(lines.text), ElementsAre("Cricket", "Rally Pro", "Rally"));
  for (const ComponentRecords::Record& record : records) {
    EXPECT_EQ(FileNameOf(lines.text, record.displayName), record.fileName);
  }
}

TEST(ComponentRecords, OfNothingAreAnEmptyList) {
  EXPECT_EQ(ComponentRecords::ListOf({}), "");
  EXPECT_EQ(LinesIn("").badLine, 0U);
  EXPECT_THAT(DisplayNames(LinesIn("").text), testing::IsEmpty());
}

TEST(ComponentRecords, HoldOnlyWhatDoesNotEndThem) {
  for (const char* text : {"", "a:b", "a\nb", "a\rb"}) {
    EXPECT_FALSE(ComponentRecords::MayBePart(text)) << text;
  }
  EXPECT_TRUE(ComponentRecords::MayBePart("Rally Pro"));
}

class ComponentsStory : public InternetStory {};

TEST_F(ComponentsStory, LieWhereTheServerHasThem) {
  EXPECT_EQ(Components::ListUrlOf(0), Server + "/orvane/games/sk2/data/cars.lst");
  EXPECT_EQ(Components::ListUrlOf(1), Server + "/orvane/games/sk2/data/tracks.lst");
  EXPECT_EQ(Components::ListUrlOf(2), Server + "/orvane/games/sk2/data/langs.lst");
  EXPECT_EQ(Components::ArchiveUrlOf(0, "a.zip"), Server + "/orvane/games/sk2/cars/a.zip");
  EXPECT_EQ(Components::ArchiveUrlOf(1, "a.zip"), Server + "/orvane/games/sk2/tracks/a.zip");
  EXPECT_EQ(Components::ArchiveUrlOf(2, "a.zip"), Server + "/orvane/games/sk2/langs/a.zip");
  EXPECT_EQ(Components::TargetFolderOf(0, "a.zip"), Game + "\\vehicles");
  EXPECT_EQ(Components::TargetFolderOf(1, "a.zip"), Game + "\\tracks");
  EXPECT_EQ(Components::TargetFolderOf(2, "deutsch.zip"), Game + "\\sounds\\deutsch");
}

TEST_F(ComponentsStory, AreInstalledUnderPlainNamesAlone) {
  for (const char* name : {"a.zip", "Dirt Buggy.zip", "buggy", "a.b.zip", "&#%20.zip"}) {
    for (int kind = 0; kind < ComponentPlaces::Count; ++kind) {
      EXPECT_TRUE(ComponentPlaces::IsInstallable(kind, name)) << name;
    }
  }
  for (const char* name :
       {"",         ".zip",        "zip",      "..",      ".",       "..\\a.zip",    "../a.zip",
        "a\\b.zip", "a/b.zip",     "/a.zip",   "\\a.zip", "C:a.zip", "a.zip:stream", "con.zip",
        "NUL",      "nul.tar.zip", "a?.zip",   "a*.zip",  "a.zip.",  "a.zip ",       "a\tb.zip",
        "a\nb.zip", "a|b.zip",     "\"a\".zip"}) {
    for (int kind = 0; kind < ComponentPlaces::Count; ++kind) {
      EXPECT_FALSE(ComponentPlaces::IsInstallable(kind, name)) << name;
    }
  }
  // As names of folders they would be others.
  for (const char* name : {"a..zip", "a .zip", "...zip", "..zip1"}) {
    EXPECT_FALSE(ComponentPlaces::IsInstallable(2, name)) << name;
  }
  EXPECT_TRUE(ComponentPlaces::IsInstallable(0, "a..zip"));
}

TEST_F(ComponentsStory, HaveTextsOfTheirOwn) {
  EXPECT_STREQ(Components::NameOf(0).english, "Car");
  EXPECT_STREQ(Components::NameOf(1).english, "Track");
  EXPECT_STREQ(Components::NameOf(2).english, "Language");
  EXPECT_STREQ(Components::ListErrorTextOf(0).key, "CarEnumerationErrorText");
  EXPECT_STREQ(Components::ListErrorTextOf(1).key, "TrackEnumerationErrorText");
  EXPECT_STREQ(Components::ListErrorTextOf(2).key, "LangEnumerationErrorText");
  EXPECT_STREQ(Components::ListErrorTitleOf(1).key, "TrackEnumerationErrorTitle");
}

}  // namespace
