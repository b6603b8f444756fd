// What becomes of the text of the game's configuration, byte for byte.
#include "game/ConfigurationText.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/RandomText.h"

namespace {

std::string WithLanguage(const std::string& text, const std::string& value = "German") {
  return Configuration::WithSetting(text, "Language", value);
}

TEST(ConfigurationText, TheLineOfTheSettingIsReplaced) {
  EXPECT_EQ(WithLanguage("Volume=5\r\nLanguage=English\r\nMultiplayer=1.2.3.4\r\n"),
            "Volume=5\r\nLanguage=German\r\nMultiplayer=1.2.3.4\r\n");
}

TEST(ConfigurationText, EveryLineOfTheSettingIsReplaced) {
  EXPECT_EQ(WithLanguage("Language=English\r\nVolume=5\r\nLanguage=\r\n"),
            "Language=German\r\nVolume=5\r\nLanguage=German\r\n");
}

TEST(ConfigurationText, ASettingThatIsMissingIsAddedAsTheLastLine) {
  EXPECT_EQ(WithLanguage("Volume=5\r\n"), "Volume=5\r\nLanguage=German\r\n");
  EXPECT_EQ(WithLanguage("Volume=5"), "Volume=5\r\nLanguage=German\r\n");
}

TEST(ConfigurationText, AnEmptyTextBecomesTheSettingAlone) {
  EXPECT_EQ(WithLanguage(""), "Language=German\r\n");
  EXPECT_EQ(WithLanguage("\r\n"), "Language=German\r\n");
}

TEST(ConfigurationText, LetterCaseCounts) {
  EXPECT_EQ(WithLanguage("language=x\r\n"), "language=x\r\nLanguage=German\r\n");
}

TEST(ConfigurationText, ANameInTheMiddleOfALineCountsAsTheSetting) {
  EXPECT_EQ(WithLanguage("OldLanguage=x\r\nVolume=5\r\n"), "OldLanguage=x\r\nVolume=5\r\n");
  EXPECT_EQ(WithLanguage("Volume=Language=x\r\n"), "Volume=Language=x\r\n");
  EXPECT_EQ(WithLanguage(" Language=x\r\n"), " Language=x\r\n");
  EXPECT_EQ(WithLanguage("Language x\r\n"), "Language x\r\nLanguage=German\r\n");
}

TEST(ConfigurationText, EmptyLinesBetweenOthersDisappear) {
  EXPECT_EQ(Configuration::WithSetting("Language=English\r\n\r\nMultiplayer=1.2.3.4\r\n",
                                       "Multiplayer", "5.6.7.8"),
            "Language=English\r\nMultiplayer=5.6.7.8\r\n");
  for (size_t count = 1; count < 10; ++count) {
    std::string ends;
    for (size_t i = 0; i <= count; ++i) ends += "\r\n";
    EXPECT_EQ(WithLanguage("a=1" + ends + "b=2" + ends + "Language=x"),
              "a=1\r\nb=2\r\nLanguage=German\r\n");
  }
}

TEST(ConfigurationText, OfEmptyLinesThatBeginTheTextOneStays) {
  EXPECT_EQ(WithLanguage("\r\nLanguage=x\r\n"), "\r\nLanguage=German\r\n");
  EXPECT_EQ(WithLanguage("\r\n\r\n\r\nLanguage=x\r\n"), "\r\nLanguage=German\r\n");
  EXPECT_EQ(WithLanguage("\r\n\r\na=1\r\n"), "\r\na=1\r\nLanguage=German\r\n");
}

TEST(ConfigurationText, OfEmptyLinesThatEndTheTextOneStays) {
  EXPECT_EQ(WithLanguage("Language=x\r\n\r\n"), "Language=German\r\n\r\n");
  EXPECT_EQ(WithLanguage("Language=x\r\n\r\n\r\n\r\n"), "Language=German\r\n\r\n");
  EXPECT_EQ(WithLanguage("a=1\r\n\r\n\r\n"), "a=1\r\n\r\nLanguage=German\r\n");
  EXPECT_EQ(WithLanguage("\r\n\r\n"), "\r\n\r\nLanguage=German\r\n");
}

TEST(ConfigurationText, LinesOfBlanksAreNotEmpty) {
  EXPECT_EQ(WithLanguage("a=1\r\n \r\nLanguage=x\r\n"), "a=1\r\n \r\nLanguage=German\r\n");
}

TEST(ConfigurationText, ALineMayEndInCrAloneAndALoneLfIsPartOfIt) {
  EXPECT_EQ(WithLanguage("a=1\rLanguage=x\rb=2"), "a=1\r\nLanguage=German\r\nb=2\r\n");
  EXPECT_EQ(WithLanguage("a=1\r\rLanguage=x"), "a=1\r\nLanguage=German\r\n");
  EXPECT_EQ(WithLanguage("a=1\nLanguage=x\nb=2"), "a=1\nLanguage=x\nb=2\r\n");
  EXPECT_EQ(WithLanguage("Language=x\nb=2\r\n"), "Language=German\r\n");
}

TEST(ConfigurationText, AValueIsWrittenAsItIs) {
  EXPECT_EQ(WithLanguage("Language=x", ""), "Language=\r\n");
  EXPECT_EQ(WithLanguage("Language=x", " a=b;c "), "Language= a=b;c \r\n");
  EXPECT_EQ(WithLanguage("a", "Language=x"), "a\r\nLanguage=Language=x\r\n");
}

TEST(ConfigurationText, ChangingASettingAgainChangesNothingElse) {
  const std::string once = WithLanguage("\r\n\r\na=1\r\n\r\nLanguage=x\r\n\r\n\r\n");
  EXPECT_EQ(WithLanguage(once), once);
  EXPECT_EQ(WithLanguage(WithLanguage(once, "Dutch")), once);
}

// The same once more, in small steps on one text.
std::string Plainly(const std::string& bytes, const std::string& name, const std::string& value) {
  std::string text;
  for (size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] != '\r') {
      text += bytes[i];
      if (i + 1 == bytes.size()) text += "\r\n";
      continue;
    }
    text += "\r\n";
    if (i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
  }
  if (!text.empty()) text.erase(text.size() - 2);
  for (size_t at; (at = text.find("\r\n\r\n")) != std::string::npos;) text.erase(at, 2);
  std::string changed;
  for (size_t from = 0; !text.empty() && from <= text.size();) {
    const size_t end = std::min(text.find("\r\n", from), text.size());
    const std::string line = text.substr(from, end - from);
    changed += line.rfind(name + "=", 0) == 0 ? name + "=" + value : line;
    changed += "\r\n";
    from = end + 2;
  }
  if (changed.find(name + "=") == std::string::npos) return changed + name + "=" + value + "\r\n";
  return changed;
}

TEST(ConfigurationText, ComesOutOfAnyTextAsAPlainReadingOfTheStepsHasIt) {
  RandomText random(21);
  const std::vector<std::string> pieces{"\r\n", "\r\n", "\r\n\r\n", "\r", "\n", "A=1",
                                        "A=",   "xA=1", "a=1",      " ",  "A",  "B=A"};
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    for (size_t count = random.Below(9); count > 0; --count) text += random.OneOf(pieces);
    ASSERT_EQ(Configuration::WithSetting(text, "A", "2"), Plainly(text, "A", "2"))
        << testing::PrintToString(text);
  }
}

}  // namespace
