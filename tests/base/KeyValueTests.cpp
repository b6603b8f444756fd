#include "base/KeyValue.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

TEST(KeyValue, ALineIsSplitAtItsFirstEquals) {
  const auto pair = KeyValue::Split("hill=7=2");
  ASSERT_TRUE(pair);
  EXPECT_EQ(pair->key, "hill");
  EXPECT_EQ(pair->value, "7=2");
}

TEST(KeyValue, BothSidesMayBeEmptyAndKeepTheirBlanks) {
  EXPECT_EQ(KeyValue::Split("=1")->key, "");
  EXPECT_EQ(KeyValue::Split("a=")->value, "");
  EXPECT_EQ(KeyValue::Split(" a = 1 ")->key, " a ");
  EXPECT_EQ(KeyValue::Split(" a = 1 ")->value, " 1 ");
}

TEST(KeyValue, WithoutEqualsThereIsNoPair) {
  EXPECT_FALSE(KeyValue::Split("hill"));
  EXPECT_FALSE(KeyValue::Split(""));
}

TEST(KeyValue, AKeyStandsAtTheBeginningOfItsLineWithEqualsBehindIt) {
  EXPECT_TRUE(KeyValue::HasKey("hill=1", "hill"));
  EXPECT_TRUE(KeyValue::HasKey("hill=", "hill"));
  EXPECT_TRUE(KeyValue::HasKey("=1", ""));
  for (const char* line : {"hill", "hill 1", "hills=1", "hil=1", "Hill=1", " hill=1", "a hill=1",
                           "hill =1", "", "="}) {
    EXPECT_FALSE(KeyValue::HasKey(line, "hill")) << line;
  }
}

TEST(KeyValue, AKeyMayHoldEqualsItself) {
  EXPECT_TRUE(KeyValue::HasKey("a=b=c", "a=b"));
}

TEST(KeyValue, EveryLineOfAKeyGetsTheNewValue) {
  std::vector<std::string> lines{"a=1", "b=2", "A=3", "a=", "xa=4", "a"};
  KeyValue::Replace(lines, "a", "5=6");
  EXPECT_THAT(lines, ElementsAre("a=5=6", "b=2", "A=3", "a=5=6", "xa=4", "a"));
  KeyValue::Replace(lines, "c", "7");
  EXPECT_THAT(lines, ElementsAre("a=5=6", "b=2", "A=3", "a=5=6", "xa=4", "a"));
}

}  // namespace
