// File names that the system code page does not have: the pack tells that it cannot use them, and
// never takes another file for theirs.
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

// Letters that the code page lacks altogether, and one that looks like an A.
class Names : public PackTest, public testing::WithParamInterface<std::wstring> {};

INSTANTIATE_TEST_SUITE_P(Foreign, Names, testing::Values(L"\u5C71\u9053.trk", L"\u0100.trk"));

TEST_P(Names, TrackToCheckIsToldAsMissing) {
  WriteFile(gameFolder() + "\\tracks\\A.trk", "another track");
  Pack& pack = StartPack();
  pack.ChooseMenu({"Track", "Check .trk file"});
  pack.WaitForFileDialog().Choose(GetParam());
  const BoxText box = pack.AnswerBox();
  EXPECT_EQ(box.title, "Error");
  EXPECT_EQ(box.icon, BoxIcon::Critical);
  EXPECT_THAT(box.text, testing::StartsWith("(General): "));
  EXPECT_THAT(box.text, testing::EndsWith(" doesn't exist."));
  pack.WaitForMain();
}

TEST_P(Names, TrackCannotBeSavedUnderIt) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Track", "New"});
  pack.WaitForFileDialog().Choose(GetParam());
  pack.WaitForWindow("SK2 Trackmaker by Orvane Interactive");
  pack.Press("Alt+S");
  pack.AnswerBox("Y");
  const BoxText box = pack.AnswerBox();
  EXPECT_EQ(box.title, "Error");
  EXPECT_EQ(box.icon, BoxIcon::Critical);
  EXPECT_THAT(box.text, testing::HasSubstr(
                            "The file name is too long or holds characters that cannot be used."));
  pack.WaitForWindow("SK2 Trackmaker by Orvane Interactive");
  EXPECT_EQ(NamesIn(gameFolder() + "\\tracks").size(), 4U);
}

}  // namespace
}  // namespace E2e
