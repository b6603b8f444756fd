#include "update/Versions.h"

#include "base/RuntimeError.h"
#include "tests/Story.h"

namespace {

using Versions::VersionIn;

class VersionRecords : public Story {};

TEST_F(VersionRecords, AreReadWhateverTheLetterCase) {
  EXPECT_EQ(VersionIn("SK2UP=1.2.0\r\nother=9.9.9\r\n", "sk2up", "="), "1.2.0");
  EXPECT_EQ(VersionIn("sk2up=1.2.0\rother=9.9.9", "SK2UP", "="), "1.2.0");
  EXPECT_EQ(VersionIn("sk2up=1.0 BETA", "sk2up", "="), "1.0 beta");
}

TEST_F(VersionRecords, OfAProductTheLastCounts) {
  EXPECT_EQ(VersionIn("sk2up=1\r\nother=2\r\nsk2up=3\r\nother=4\r\n", "sk2up", "="), "3");
}

TEST_F(VersionRecords, AreSplitAtTheirFirstSeparator) {
  EXPECT_EQ(VersionIn("sk2up=1=2", "sk2up", "="), "1=2");
  EXPECT_EQ(VersionIn("sk2up=", "sk2up", "="), "");
  EXPECT_EQ(VersionIn("sk2up->1.2", "sk2up", "->"), "1.2");
}

TEST_F(VersionRecords, OfOthersDoNotCount) {
  EXPECT_EQ(VersionIn("", "sk2up", "="), "vn");
  EXPECT_EQ(VersionIn("sk2=1\r\nsk2up2=1\r\n sk2up=1\r\nsk2up =1\r\n=1\r\n", "sk2up", "="), "vn");
}

TEST_F(VersionRecords, WithALineWithoutSeparatorAreInvalidWhateverStoodBefore) {
  for (const char* records : {"sk2up=1.2.0\r\nnone\r\n", "sk2up=1.2.0\r\n\r\n", "\r\n",
                              "sk2up=1.2.0\r\n\r\nsk2up=1.3.0", "<html>"}) {
    EXPECT_EQ(VersionIn(records, "sk2up", "="), "ivf") << records;
  }
}

TEST_F(VersionRecords, ALoneLineFeedEndsNoLine) {
  EXPECT_EQ(VersionIn("sk2up=1.2.0\nother=9\n", "sk2up", "="), "1.2.0\nother=9\n");
}

class VersionComparison : public Story {
 protected:
  static int Compare(const std::string& version, int major, int minor, int revision) {
    Platform::ProgramVersion program;
    program.major = major;
    program.minor = minor;
    program.revision = revision;
    return Versions::Compare(version, program);
  }
};

TEST_F(VersionComparison, GoesByTheFirstNumberThatDiffers) {
  EXPECT_EQ(Compare("1.2.0", 1, 1, 5), 1);
  EXPECT_EQ(Compare("1.1.5", 1, 1, 5), 0);
  EXPECT_EQ(Compare("1.1.4", 1, 1, 5), -1);
  EXPECT_EQ(Compare("1.1.6", 1, 1, 5), 1);
  EXPECT_EQ(Compare("2.0.0", 1, 9, 9), 1);
  EXPECT_EQ(Compare("0.9.9", 1, 0, 0), -1);
  EXPECT_EQ(Compare("1.0.9", 1, 1, 0), -1);
  EXPECT_EQ(Compare("1.10.0", 1, 9, 0), 1);
}

TEST_F(VersionComparison, MakesANumberWithoutADotWholeAndNoOther) {
  EXPECT_EQ(Compare("2", 1, 9, 9), 1);
  EXPECT_EQ(Compare("1", 1, 0, 0), 0);
  EXPECT_EQ(Compare("2.1", 1, 9, 9), -2);
  EXPECT_EQ(Compare("2.", 1, 9, 9), -2);
  EXPECT_EQ(Compare("2.1.0.0", 1, 9, 9), -2);
}

TEST_F(VersionComparison, WantsThreeNumbers) {
  for (const char* version : {"", "x", "1.x.0", "1..0", "1.0.", ".0.0", "1.0.0beta"}) {
    EXPECT_EQ(Compare(version, 1, 0, 0), -2) << version;
  }
  EXPECT_EQ(Compare(" 1 . 2 .0 ", 1, 1, 5), 1) << "blanks are allowed";
  EXPECT_EQ(Compare("-1.0.0", 1, 1, 5), -1);
}

TEST_F(VersionComparison, TakesNumbersAsTheUserWritesThem) {
  machine.locale.SetSeparators(",", "'");
  EXPECT_EQ(Compare("1'000.0.0", 999, 0, 0), 1);
  EXPECT_EQ(Compare("1.1,5.0", 1, 2, 0), 0) << "halves go to the even number";
}

TEST_F(VersionComparison, OfANumberBeyondAllMeasureFailsOnlyIfAllAreNumbers) {
  EXPECT_THROW(Compare("1.0.9999999999", 1, 0, 0), RuntimeError);
  EXPECT_EQ(Compare("9999999999.0.x", 1, 0, 0), -2);
}

class PublishedVersions : public Story {};

TEST_F(PublishedVersions, AreThreeWholeNumbers) {
  for (const char* text : {"1.0.0", "0.0.0", "10.20.30", "65535.65535.65535", "01.002.3"}) {
    EXPECT_TRUE(Versions::Published(text)) << text;
  }
  for (const char* text : {"", "1", "1.0", "1.0.0.0", "1..0", ".1.0", "1.0.", "1.0.0 ", " 1.0.0",
                           "1.0.-1", "1.+0.0", "1.0.x", "1.0.0beta", "1,0,0", "1.0.&H1",
                           "1.0.65536", "1.0.4294967296", "1.0.99999999999999999999", "1.0.0\r"}) {
    EXPECT_FALSE(Versions::Published(text)) << text;
  }
}

TEST_F(PublishedVersions, AreComparedAsThePackComparesThem) {
  const auto published = Versions::Published("1.2.3");
  EXPECT_EQ(Versions::Compare("1.2.3", *published), Versions::Same);
  EXPECT_EQ(Versions::Compare("1.10.0", *published), Versions::Newer);
  EXPECT_EQ(Versions::Compare("1.2.2", *published), Versions::Older);
}

TEST_F(PublishedVersions, AreWrittenAsTheyAreRead) {
  const std::string records = Versions::RecordsOf({{"sk2up", "1.2.0"}, {"other", "9.9.9"}});
  EXPECT_EQ(records, "sk2up=1.2.0\r\nother=9.9.9\r\n");
  EXPECT_EQ(VersionIn(records, "sk2up", "="), "1.2.0");
  EXPECT_EQ(VersionIn(records, "other", "="), "9.9.9");
}

}  // namespace
