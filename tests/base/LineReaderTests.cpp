#include "base/LineReader.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

#include "base/RuntimeError.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Gives a text in blocks of a size, and remembers the largest buffer that it was offered.
class Blocks {
 public:
  explicit Blocks(std::string text, size_t blockSize = SIZE_MAX)
      : text_(std::move(text)), blockSize_(blockSize) {}

  LineReader::Source Source() {
    return [this](char* buffer, size_t size) {
      largestBuffer = std::max(largestBuffer, size);
      const size_t count = text_.copy(buffer, std::min(size, blockSize_), position_);
      position_ += count;
      return count;
    };
  }

  size_t largestBuffer = 0;

 private:
  std::string text_;
  size_t blockSize_;
  size_t position_ = 0;
};

std::vector<std::string> Read(const std::string& text, size_t blockSize = SIZE_MAX) {
  Blocks blocks(text, blockSize);
  LineReader reader(blocks.Source());
  std::vector<std::string> lines;
  for (std::string_view line; reader.Next(line);) lines.emplace_back(line);
  std::string_view line;
  EXPECT_FALSE(reader.Next(line)) << "a line behind the end of the text";
  return lines;
}

TEST(LineReader, CrAndCrLfEndALineAndALoneLfDoesNot) {
  EXPECT_THAT(Read("a\rb\r\nc\nd\r\n"), ElementsAre("a", "b", "c\nd"));
}

TEST(LineReader, TheLastLineNeedsNoEnd) {
  EXPECT_THAT(Read("a\r\nb"), ElementsAre("a", "b"));
  EXPECT_THAT(Read("a"), ElementsAre("a"));
}

TEST(LineReader, ATextThatEndsInALineEndHasNoFurtherLine) {
  EXPECT_THAT(Read("a\r\n"), ElementsAre("a"));
  EXPECT_THAT(Read("a\r"), ElementsAre("a"));
  EXPECT_THAT(Read("\r\n"), ElementsAre(""));
  EXPECT_THAT(Read(""), IsEmpty());
}

TEST(LineReader, EmptyLinesAreLines) {
  EXPECT_THAT(Read("\r\r\n\r"), ElementsAre("", "", ""));
  EXPECT_THAT(Read("\n\r\n\n"), ElementsAre("\n", "\n"));
}

TEST(LineReader, EveryByteButCrMayStandInALine) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '\r') all += static_cast<char>(byte);
  }
  EXPECT_THAT(Read(all + "\r\n" + all), ElementsAre(all, all));
}

// Texts of few different bytes, cut into blocks of any size, so that line ends meet block ends in
// all ways.
TEST(LineReader, BlocksOfAnySizeGiveTheSameLines) {
  std::mt19937 random(1);
  for (int i = 0; i < 1000; ++i) {
    std::string text;
    for (size_t size = random() % 120; text.size() < size;) text += "\r\na="[random() % 4];
    const std::vector<std::string> lines = LinesOf(text);
    for (const size_t blockSize : {1, 2, 3, 8, 13}) {
      ASSERT_EQ(Read(text, blockSize), lines) << testing::PrintToString(text);
    }
  }
}

TEST(LineReader, SkippedLinesAreCountedAsReadOnesAre) {
  std::mt19937 random(2);
  for (int i = 0; i < 3000; ++i) {
    std::string text;
    for (size_t size = random() % 60; text.size() < size;) text += "\r\na"[random() % 3];
    const std::vector<std::string> lines = LinesOf(text);
    Blocks blocks(text, 1 + random() % 9);
    LineReader reader(blocks.Source());
    for (const std::string& expected : lines) {
      std::string_view line;
      if (random() % 2 == 0) {
        ASSERT_TRUE(reader.Skip());
      } else {
        ASSERT_TRUE(reader.Next(line));
        ASSERT_EQ(line, expected);
      }
    }
    ASSERT_FALSE(reader.Skip()) << testing::PrintToString(text);
  }
}

// The pieces of all lines, with "|" between those of a line.
std::vector<std::string> ReadPieces(const std::string& text, size_t blockSize = SIZE_MAX) {
  Blocks blocks(text, blockSize);
  LineReader reader(blocks.Source());
  std::vector<std::string> lines;
  for (std::string_view piece; reader.Next(piece);) {
    lines.emplace_back(piece);
    EXPECT_LE(piece.size(), LineReader::LongestPiece);
    while (reader.NextPiece(piece)) {
      EXPECT_LE(piece.size(), LineReader::LongestPiece);
      lines.back().append("|").append(piece);
    }
  }
  EXPECT_LE(blocks.largestBuffer, LineReader::LongestPiece);
  return lines;
}

TEST(LineReader, ALongLineComesInPieces) {
  const std::string longest(LineReader::LongestPiece, 'x');
  for (const size_t blockSize : {size_t{1000}, LineReader::LongestPiece, SIZE_MAX}) {
    for (const char* end : {"", "\r", "\r\n"}) {
      EXPECT_THAT(ReadPieces(longest + end, blockSize), ElementsAre(longest));
      EXPECT_THAT(ReadPieces(longest + "y" + end, blockSize), ElementsAre(longest + "|y"));
      EXPECT_THAT(ReadPieces("a\r\n" + longest + longest + "y" + end, blockSize),
                  ElementsAre("a", longest + "|" + longest + "|y"));
    }
    EXPECT_THAT(ReadPieces(longest + "\r\n\r\nb", blockSize), ElementsAre(longest, "", "b"));
    EXPECT_THAT(ReadPieces(longest + "\r\r\nb", blockSize), ElementsAre(longest, "", "b"));
    EXPECT_THAT(ReadPieces(longest + "yy\r\nb\r\n", blockSize), ElementsAre(longest + "|yy", "b"));
  }
}

TEST(LineReader, AShortLineHasNoFurtherPiece) {
  Blocks blocks("a\r\nb");
  LineReader reader(blocks.Source());
  std::string_view line;
  EXPECT_FALSE(reader.NextPiece(line)) << "no line has been begun";
  EXPECT_TRUE(reader.Next(line));
  EXPECT_FALSE(reader.NextPiece(line));
  EXPECT_TRUE(reader.Next(line));
  EXPECT_EQ(line, "b");
}

TEST(LineReader, WhatIsLeftOfALongLineIsPassedOver) {
  const std::string longest(LineReader::LongestPiece, 'x');
  for (const char* rest : {"", "yy", "\n"}) {
    for (const size_t pieces : {0, 1, 2}) {
      Blocks blocks(longest + longest + rest + "\r\nnext\r\nlast", 5000);
      LineReader reader(blocks.Source());
      std::string_view line;
      EXPECT_TRUE(reader.Next(line));
      EXPECT_EQ(line, longest);
      for (size_t i = 0; i < pieces; ++i) reader.NextPiece(line);
      EXPECT_TRUE(reader.Next(line));
      EXPECT_EQ(line, "next") << rest;
      EXPECT_TRUE(reader.Skip());
      EXPECT_FALSE(reader.Next(line));
    }
  }
  Blocks blocks(longest + "yy\r\nnext\r\nlast");
  LineReader reader(blocks.Source());
  std::string_view line;
  EXPECT_TRUE(reader.Next(line));
  EXPECT_TRUE(reader.Skip()) << "the line behind it";
  EXPECT_TRUE(reader.Next(line));
  EXPECT_EQ(line, "last");
}

TEST(LineReader, ALineOfAnyLengthIsSkipped) {
  Blocks blocks(std::string(5 << 20, 'x') + "\r\nnext");
  LineReader reader(blocks.Source());
  EXPECT_TRUE(reader.Skip());
  std::string_view line;
  EXPECT_TRUE(reader.Next(line));
  EXPECT_EQ(line, "next");
  EXPECT_LE(blocks.largestBuffer, LineReader::LongestPiece);
}

TEST(LineReader, TheBufferStaysSmallHoweverLongTheText) {
  std::string text;
  for (int i = 0; i < 100000; ++i) text += std::string(static_cast<size_t>(i % 100), 'x') + "\r\n";
  Blocks blocks(text);
  LineReader reader(blocks.Source());
  for (std::string_view line; reader.Next(line);) {
  }
  EXPECT_LE(blocks.largestBuffer, LineReader::LongestPiece);
}

TEST(LineReader, AFailureOfTheSourceIsPassedOn) {
  LineReader reader([](char*, size_t) -> size_t { throw RuntimeError(RuntimeError::DeviceError); });
  std::string_view line;
  EXPECT_THROW(reader.Next(line), RuntimeError);
  EXPECT_THROW(reader.Skip(), RuntimeError);
}

}  // namespace
