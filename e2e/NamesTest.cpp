// File names that the system code page does not have: the pack tells that it cannot use them.
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

using Names = PackTest;

const std::wstring Foreign = L"\u5C71\u9053.trk";

TEST_F(Names, TrackToCheckIsToldAsMissing) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Track", "Check .trk file"});
  pack.WaitForFileDialog().Choose(Foreign);
  const BoxText box = pack.AnswerBox();
  EXPECT_EQ(box.title, "Error");
  EXPECT_EQ(box.icon, BoxIcon::Critical);
  EXPECT_THAT(box.text, testing::StartsWith("(General): "));
  EXPECT_THAT(box.text, testing::EndsWith(" doesn't exist."));
  pack.WaitForMain();
}

TEST_F(Names, TrackCannotBeSavedUnderIt) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Track", "New"});
  pack.WaitForFileDialog().Choose(Foreign);
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
