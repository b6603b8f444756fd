#include "base/Text.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

TEST(Text, TrimTakesAwayBlanksAndNothingElse) {
  EXPECT_EQ(Text::Trim("  a b  "), "a b");
  EXPECT_EQ(Text::Trim("a"), "a");
  EXPECT_EQ(Text::Trim("   "), "");
  EXPECT_EQ(Text::Trim(""), "");
  EXPECT_EQ(Text::Trim(" \ta\r\n "), "\ta\r\n");
}

TEST(Text, LowerAsciiLeavesOtherLettersOfTheCodePageAlone) {
  EXPECT_EQ(Text::LowerAscii("AzZ @[`{09"), "azz @[`{09");
  EXPECT_EQ(Text::LowerAscii("\xC4\xD6\xDC"), "\xC4\xD6\xDC");
}

TEST(Text, ReplaceGoesOnceFromLeftToRight) {
  EXPECT_EQ(Text::Replace("a.b.c", ".", "::"), "a::b::c");
  EXPECT_EQ(Text::Replace("aaa", "aa", "b"), "ba");
  EXPECT_EQ(Text::Replace("ab", "a", "aa"), "aab") << "the replacement is not searched again";
  EXPECT_EQ(Text::Replace("abc", "b", ""), "ac");
  EXPECT_EQ(Text::Replace("abc", "x", "y"), "abc");
  EXPECT_EQ(Text::Replace("", "x", "y"), "");
}

TEST(Text, SplitGivesOnePieceMoreThanThereAreSeparators) {
  EXPECT_THAT(Text::Split("a,b,c", ","), ElementsAre("a", "b", "c"));
  EXPECT_THAT(Text::Split(",a,,", ","), ElementsAre("", "a", "", ""));
  EXPECT_THAT(Text::Split("", ","), ElementsAre(""));
  EXPECT_THAT(Text::Split("a", ","), ElementsAre("a"));
  EXPECT_THAT(Text::Split("a\r\nb\rc", "\r\n"), ElementsAre("a", "b\rc"));
}

TEST(Text, ContainsMindsLetterCase) {
  EXPECT_TRUE(Text::Contains("Release RC1", "RC"));
  EXPECT_FALSE(Text::Contains("Release rc1", "RC"));
  EXPECT_TRUE(Text::Contains("abc", ""));
  EXPECT_FALSE(Text::Contains("", "a"));
}

}  // namespace
