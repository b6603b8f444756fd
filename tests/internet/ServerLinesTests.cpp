// The lines of the server list.
#include "internet/ServerLines.h"

#include <gmock/gmock.h>

#include "tests/RandomText.h"
#include "tests/Texts.h"

namespace {

using namespace ServerLines;

TEST(ServerLines, ARowIsTheNameAndTheAddressInBrackets) {
  EXPECT_EQ(RowOf("home=10.0.0.7"), "home (10.0.0.7)");
  EXPECT_EQ(RowOf("10.0.0.7=10.0.0.7"), "10.0.0.7 (10.0.0.7)");
  EXPECT_EQ(RowOf(" my home = 10.0.0.7 "), " my home  ( 10.0.0.7 )");
  EXPECT_EQ(RowOf("="), " ()");
}

TEST(ServerLines, ALineIsTakenApartAtItsFirstEqualsSign) {
  EXPECT_EQ(RowOf("a=b=c"), "a (b=c)");
  EXPECT_TRUE(HasAddress("a=b=c", "b=c"));
  EXPECT_FALSE(HasAddress("a=b=c", "c"));
}

TEST(ServerLines, ALineWithoutAnEqualsSignIsNoneOfTheList) {
  EXPECT_EQ(RowOf("home"), std::nullopt);
  EXPECT_EQ(RowOf(""), std::nullopt);
  EXPECT_FALSE(HasAddress("", ""));
  EXPECT_FALSE(HasAddress("home", "home"));
}

TEST(ServerLines, AddressesAreComparedToTheLetterAndTheBlank) {
  EXPECT_TRUE(HasAddress("a=Play.example", "Play.example"));
  EXPECT_FALSE(HasAddress("a=Play.example", "play.example"));
  EXPECT_FALSE(HasAddress("a= 1", "1"));
  EXPECT_FALSE(HasAddress("a=1", "1 "));
  EXPECT_TRUE(HasAddress("a=", ""));
}

TEST(ServerLines, TheAddressOfARowStandsBehindItsFirstBracket) {
  EXPECT_EQ(AddressOf("home (10.0.0.7)"), "10.0.0.7");
  EXPECT_EQ(AddressOf("home (b=c)"), "b=c");
  EXPECT_EQ(AddressOf("home (a(b)c)"), "a(b)c");
  EXPECT_EQ(AddressOf(" ()"), "");
}

TEST(ServerLines, ABracketInTheNameGivesAWrongAddress) {
  EXPECT_EQ(AddressOf("home (old) (10.0.0.7)"), "old) (10.0.0.7");
  EXPECT_EQ(AddressOf("(home (10.0.0.7)"), "home (10.0.0.7");
}

TEST(ServerLines, ARowThatIsNoneHasNoAddress) {
  EXPECT_EQ(AddressOf(""), "");
  EXPECT_EQ(AddressOf("home"), "");
  EXPECT_EQ(AddressOf("home ("), "");
  EXPECT_EQ(AddressOf("("), "");
}

TEST(ServerLines, EveryLineOfAnAddressIsTakenOutAndTheOthersKeepTheirOrder) {
  EXPECT_EQ(Without("a=1\r\nb=2\r\nc=1\r\nd=3\r\n", "1"), "b=2\r\nd=3\r\n");
  EXPECT_EQ(Without("a=1\r\nb=2", "1"), "b=2\r\n");
  EXPECT_EQ(Without("a=1\r\nb=2\r\n", "3"), "a=1\r\nb=2\r\n");
}

TEST(ServerLines, LinesThatAreNoneOfTheListGoWithIt) {
  EXPECT_EQ(Without("\r\nnonsense\r\na=1\r\n\r\nb=2\rc=3\r\n", "1"), "b=2\r\nc=3\r\n");
}

TEST(ServerLines, NothingIsLeftOfAListWithThatAddressAlone) {
  EXPECT_EQ(Without("a=1\r\nb=1\r\n", "1"), "");
  EXPECT_EQ(Without("a=1\r\nnonsense\r\n", "1"), "");
  EXPECT_EQ(Without("", "1"), "");
}

TEST(ServerLines, ANewEntryIsOneLine) {
  EXPECT_EQ(Addition("", "home", "1"), "home=1\r\n");
  EXPECT_EQ(Addition("a=1\r\n", "home", "2"), "home=2\r\n");
  EXPECT_EQ(Addition("a=1\r", "home", "2"), "home=2\r\n");
  EXPECT_EQ(Addition("", "", ""), "=\r\n");
}

TEST(ServerLines, ANewEntryDoesNotSpoilALastLineWithoutAnEnd) {
  EXPECT_EQ(Addition("a=1", "home", "2"), "\r\nhome=2\r\n");
  EXPECT_EQ(Addition("a=1\n", "home", "2"), "\r\nhome=2\r\n") << "a lone LF ends no line";
}

// The same once more, line by line.
std::string PlainlyWithout(const std::string& text, const std::string& address) {
  std::string kept;
  std::string line;
  const auto keep = [&] {
    const size_t equals = line.find('=');
    if (equals != std::string::npos && line.substr(equals + 1) != address) kept += line + "\r\n";
    line.clear();
  };
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\r') {
      line += text[i];
      continue;
    }
    keep();
    if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
  }
  keep();
  return kept;
}

TEST(ServerLines, ADeletionComesOutOfAnyTextAsAPlainReadingHasIt) {
  RandomText random(71);
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    for (size_t count = random.Below(9); count > 0; --count) {
      text += random.OneOf({"a=1", "b=2", "=1", "=", "1", "c=1=1", "\n", " ", "("});
      text += random.LineEnd();
    }
    for (const char* address : {"1", "", "2", "1=1"}) {
      const std::string kept = Without(text, address);
      ASSERT_EQ(kept, PlainlyWithout(text, address)) << testing::PrintToString(text);
      ASSERT_EQ(Without(kept, address), kept);
    }
  }
}

}  // namespace
