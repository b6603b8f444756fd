#include "base/Text.h"

#include <gtest/gtest.h>

namespace {

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

}  // namespace
