// Characters of several bytes: two in the code pages of East Asia, up to four where the code page
// is UTF-8.
#include "platform/Characters.h"

#include "platform/Files.h"
#include "platform/LetterCase.h"
#include "platform/Paths.h"
#include "tests/Story.h"
#include "ui/BoxText.h"

namespace {

using namespace Platform;
using testing::HasSubstr;

class InUtf8 : public Story {
 protected:
  InUtf8() { machine.locale.codePage = 65001; }
};

class InJapanese : public Story {
 protected:
  InJapanese() { machine.locale.codePage = 932; }
};

const std::string Mountain = "\xE5\xB1\xB1";
const std::string Smile = "\xF0\x9F\x98\x80";

TEST_F(InUtf8, ACharacterIsNeverCut) {
  EXPECT_EQ(WholeCharacterLength(Smile), 4u);
  EXPECT_EQ(WholeCharacterLength(Mountain + "x"), 3u);
  EXPECT_EQ(WholeCharacterLength("\xE5\xB1"), 0u);
  EXPECT_EQ(CharacterLength("\xE5\xB1"), 1u);
  std::string text;
  for (int i = 0; i < 200; ++i) text += Smile;
  for (size_t longest = 60; longest < 70; ++longest) {
    const std::string shown = BoxText("x" + text, longest);
    EXPECT_LE(shown.size(), longest);
    EXPECT_GE(shown.size(), longest - 9);
    EXPECT_THAT(shown, HasSubstr(Smile + " ... " + Smile));
    EXPECT_THAT(shown, testing::Not(HasSubstr("?")));
  }
}

TEST_F(InUtf8, APieceOfACharacterIsSeenAndTakesNoOtherWithIt) {
  EXPECT_EQ(BoxText("a\xE5\xB1z" + Mountain + "\xF0"), "a??z" + Mountain + "?");
}

TEST_F(InUtf8, PathsAreTakenApart) {
  const std::string path = "C:\\" + Mountain + "\\" + Smile + ".trk";
  EXPECT_EQ(FolderOf(path), "C:\\" + Mountain);
  EXPECT_EQ(NameOf(path), Smile + ".trk");
  EXPECT_TRUE(IsNameUsable(path));
  // In a page of two bytes a character, E5 would take the backslash with it.
  EXPECT_EQ(NameOf("C:\\\xE5\\a.trk"), "a.trk");
}

TEST_F(InUtf8, LetterCaseKeepsTheLength) {
  EXPECT_EQ(LowerCase("\xC3\x84RGER " + Mountain), "\xC3\xA4rger " + Mountain);
  WriteWholeFile("C:\\\xC3\x84rger.trk", "1");
  EXPECT_EQ(ReadWholeFile("C:\\\xC3\xA4RGER.trk"), "1");
}

TEST_F(InUtf8, Utf8StaysAsItIs) {
  EXPECT_EQ(ToUtf8(Mountain + Smile), Mountain + Smile);
  EXPECT_EQ(FromUtf8(Mountain + Smile), Mountain + Smile);
  EXPECT_EQ(ToUtf8("a\xE5"), "a\xEF\xBF\xBD");
}

TEST_F(InJapanese, ACharacterOfTwoBytesGoesToUtf8AndBack) {
  const std::string text = "\x95\x5C.trk";
  EXPECT_EQ(WholeCharacterLength(text), 2u);
  EXPECT_EQ(WholeCharacterLength("\x95"), 0u);
  EXPECT_EQ(FromUtf8(ToUtf8(text)), text);
}

}  // namespace
