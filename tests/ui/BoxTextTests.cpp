// What a message box makes of texts that no program would write by itself.
#include "ui/BoxText.h"

#include "tests/Story.h"
#include "ui/MsgBox.h"

namespace {

using namespace Platform;
using namespace std::string_literals;
using testing::EndsWith;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

class BoxTexts : public Story {};

TEST_F(BoxTexts, AUsualTextStaysAsItIs) {
  for (const char* text : {"", "Line 3: \"&Motor\"\r\n\tis unknown.\r\n", "\xC4rger \x80 \xFF"}) {
    EXPECT_EQ(BoxText(text), text);
  }
}

TEST_F(BoxTexts, ControlCharactersAreSeenAndEndNothing) {
  EXPECT_EQ(BoxText("M\0o\0t\0o\0r\0 is unknown."s), "M?o?t?o?r? is unknown.");
  EXPECT_EQ(BoxText("\x01\x1B\x1F \x7F"), "??? ?");
}

TEST_F(BoxTexts, ALoneLineFeedIsALineEndAndALoneCarriageReturnIsNot) {
  EXPECT_EQ(BoxText("a\nb\rc\r\nd\r\n\n"), "a\nb?c\r\nd\r\n\n");
}

TEST_F(BoxTexts, ALongTextKeepsItsBeginningAndItsEnd) {
  const std::string text = "Line 3: " + std::string(1 << 20, 'x') + " is unknown.";
  EXPECT_THAT(BoxText(text), StartsWith("Line 3: xxx"));
  EXPECT_THAT(BoxText(text), testing::HasSubstr("x ... x"));
  EXPECT_THAT(BoxText(text), EndsWith("xxx is unknown."));
  EXPECT_LE(BoxText(text).size(), LongestBoxText);
  EXPECT_GE(BoxText(text).size(), LongestBoxText - 2);
  const std::string longest(LongestBoxText, 'x');
  EXPECT_EQ(BoxText(longest), longest);
}

TEST_F(BoxTexts, ALineEndIsNotCut) {
  for (const size_t before : {20u, 21u}) {
    std::string text(before, 'x');
    while (text.size() < 200) text += "\r\n";
    const std::string shown = BoxText(text, 64);
    EXPECT_THAT(shown, testing::HasSubstr("\r\n ... \r\n"));
    EXPECT_THAT(shown, testing::Not(testing::HasSubstr("?")));
  }
}

TEST_F(BoxTexts, ACharacterOfTwoBytesIsNotCut) {
  machine.locale.codePage = 932;
  std::string pairs;
  for (int i = 0; i < 200; ++i) pairs += "\x83&";
  for (const std::string before : {"", "x"}) {
    const std::string shown = BoxText(before + pairs, 64);
    const size_t at = shown.find(" ... ");
    ASSERT_NE(at, std::string::npos);
    EXPECT_EQ(shown.substr(0, at), (before + pairs).substr(0, at));
    EXPECT_EQ((at - before.size()) % 2, 0u);
    const std::string rest = shown.substr(at + 5);
    EXPECT_EQ(rest, pairs.substr(pairs.size() - rest.size()));
    EXPECT_EQ(rest.size() % 2, 0u);
    EXPECT_LE(shown.size(), 64u);
  }
}

TEST_F(BoxTexts, HalfACharacterTakesNoOtherWithIt) {
  machine.locale.codePage = 932;
  EXPECT_EQ(BoxText("a\x83\0b\x83"s), "a??b?");
  EXPECT_EQ(BoxText("a\x83\r\nb"), "a?\r\nb");
}

class RefusedBoxes : public Story {
 protected:
  RefusedBoxes() { StartProgram(main); }
  Form main{FixedText("Main")};
};

TEST_F(RefusedBoxes, AreTriedOnceMoreWithAShortTextAndWithoutOwner) {
  machine.screen.refusedBoxes = 1;
  MsgBox("The disk is full." + std::string(5000, 'x'), "Error", Icon::Critical);
  ASSERT_THAT(user.Boxes(), SizeIs(1));
  EXPECT_THAT(user.LastBox().text, StartsWith("The disk is full."));
  EXPECT_LE(user.LastBox().text.size(), 256u);
  EXPECT_EQ(user.LastBox().owner, "");
}

TEST_F(RefusedBoxes, AreAskedAgain) {
  machine.screen.refusedBoxes = 1;
  user.AnswersYes();
  EXPECT_EQ(MsgBox("Really?", "Question", Icon::Question, Buttons::YesNo), Answer::Yes);
}

TEST_F(RefusedBoxes, AreNotAgreedTo) {
  machine.screen.refusedBoxes = 2;
  EXPECT_EQ(MsgBox("Really?", "Question", Icon::Question, Buttons::YesNo), Answer::No);
  machine.screen.refusedBoxes = 2;
  EXPECT_EQ(MsgBox("Done.", "Track", Icon::Information), Answer::Ok);
}

TEST_F(RefusedBoxes, AreNotTriedAgainOnceTheProgramHasEnded) {
  EndProgram();
  machine.screen.refusedBoxes = 1;
  EXPECT_EQ(MsgBox("Really?", "Question", Icon::Question, Buttons::YesNo), Answer::No);
  EXPECT_THAT(user.Boxes(), IsEmpty());
}

}  // namespace
