#include "base/Utf8.h"

#include <gtest/gtest.h>

namespace {

TEST(Utf8, ACharacterHasUpToFourBytes) {
  EXPECT_EQ(Utf8::CharacterLength("a"), 1u);
  EXPECT_EQ(Utf8::CharacterLength("\xC3\xBC"
                                  "b"),
            2u);
  EXPECT_EQ(Utf8::CharacterLength("\xE5\xB1\xB1"), 3u);
  EXPECT_EQ(Utf8::CharacterLength("\xF0\x9F\x98\x80"), 4u);
  EXPECT_EQ(Utf8::CharacterLength("\xF4\x8F\xBF\xBF"), 4u);
}

TEST(Utf8, PiecesAndWrongFormsAreNoCharacters) {
  for (const char* text : {"", "\x80", "\xBF", "\xBF\x80", "\xC3", "\xC3z", "\xE5\xB1", "\xE5\xB1z",
                           "\xF0\x9F\x98", "\xF8\x88\x80\x80\x80", "\xFF"}) {
    EXPECT_EQ(Utf8::CharacterLength(text), 0u) << text;
  }
  EXPECT_EQ(Utf8::CharacterLength("\xC1\xBF"), 0u) << "longer than needed";
  EXPECT_EQ(Utf8::CharacterLength("\xE0\x9F\xBF"), 0u) << "longer than needed";
  EXPECT_EQ(Utf8::CharacterLength("\xF0\x8F\xBF\xBF"), 0u) << "longer than needed";
  EXPECT_EQ(Utf8::CharacterLength("\xED\xA0\x80"), 0u) << "half of a pair";
  EXPECT_EQ(Utf8::CharacterLength("\xF4\x90\x80\x80"), 0u) << "beyond the last";
}

TEST(Utf8, NumbersGoThereAndBack) {
  for (const char32_t character :
       {U'\1', U'\x7F', U'\x80', U'\x7FF', U'\x800', U'\xFFFD', U'\x10000', U'\x10FFFF'}) {
    std::string text;
    Utf8::Append(character, text);
    EXPECT_EQ(Utf8::CharacterLength(text), text.size());
    EXPECT_EQ(Utf8::FirstCharacter(text), character);
  }
}

}  // namespace
