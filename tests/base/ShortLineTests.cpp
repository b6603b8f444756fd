#include "base/ShortLine.h"

#include <gmock/gmock.h>

namespace {

constexpr size_t Repeats = ShortLine::LongestRun;
constexpr size_t Field = ShortLine::LongestField;
constexpr size_t Tail = ShortLine::LongestTail;

std::string Shortened(const std::string& text, size_t pieceSize = 7) {
  ShortLine line;
  for (size_t at = 0; at < text.size(); at += pieceSize) line.Append(text.substr(at, pieceSize));
  return line.text();
}

// Digits that never repeat themselves.
std::string Digits(size_t size) {
  std::string digits;
  while (digits.size() < size) digits += "1234567890";
  return digits.substr(0, size);
}

TEST(ShortLine, ALineOfUsualLengthStaysAsItIs) {
  for (const std::string& text :
       {std::string(), std::string("="), std::string("a=b"), std::string("enginesound=car1=x"),
        std::string(Repeats, ' ') + "1", Digits(Field) + "=" + Digits(Field)}) {
    EXPECT_EQ(Shortened(text), text);
  }
}

TEST(ShortLine, AByteIsRepeatedSoOftenAtMost) {
  EXPECT_EQ(Shortened(std::string(Repeats + 1, ' ') + "5"), std::string(Repeats, ' ') + "5");
  EXPECT_EQ(Shortened("a=" + std::string(9 * Repeats, '0') + "5" + std::string(9 * Repeats, ' ')),
            "a=" + std::string(Repeats, '0') + "5" + std::string(Repeats, ' '));
  EXPECT_EQ(Shortened(std::string(Repeats + 9, 'x') + "=" + std::string(Repeats + 9, 'x')),
            std::string(Repeats, 'x') + "=" + std::string(Repeats, 'x'))
      << "each field has runs of its own";
}

TEST(ShortLine, OfALongFieldTheBeginningAndTheEndStay) {
  const std::string field = "(" + Digits(4 * Field) + ")";
  const std::string kept = field.substr(0, Field) + field.substr(field.size() - Tail);
  EXPECT_EQ(Shortened(field), kept);
  EXPECT_EQ(Shortened("a=" + field + "=" + field), "a=" + kept + "=" + kept);
  EXPECT_EQ(Shortened(Digits(Field + Tail)), Digits(Field + Tail));
  EXPECT_EQ(Shortened("x" + Digits(Field + Tail)).size(), Field + Tail);
}

TEST(ShortLine, WhatIsLeftOutIsToldWhereTheBeginningHasNothingLikeIt) {
  const std::string head = Digits(Field);
  const std::string tail = Digits(Tail);
  EXPECT_EQ(Shortened(head + "x/:" + tail + "=7"), head + "?" + tail + "=7");
  EXPECT_EQ(Shortened(head + "x" + tail.substr(1)), head + "x" + tail.substr(1));
  EXPECT_EQ(Shortened(head + "x" + tail + "=" + head + "1" + tail),
            head + "?" + tail + "=" + head + tail)
      << "each field by itself";
}

TEST(ShortLine, FieldsBehindTheThirdAreNotKeptApart) {
  EXPECT_EQ(Shortened("a=b=c=d"), "a=b=cd");
  std::string equals(100 * Field, '=');
  EXPECT_EQ(Shortened(equals), "==");
}

TEST(ShortLine, TakesLittleMemoryWhateverTheLine) {
  ShortLine line;
  for (int i = 0; i < 100000; ++i) line.Append("a1b2=c3d4 e5f6");
  EXPECT_LE(line.text().size(), 3 * (Field + Tail + 2));
}

}  // namespace
