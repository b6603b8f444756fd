// File names that the system code page does not have: the pack tells that it cannot use them, and
// never takes another file for theirs.
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

// Letters that the code page lacks altogether, and one that looks like an A.
class Names : public PackTest, public testing::WithParamInterface<std::wstring> {
 protected:
  // Chooses the menu item and the name, and expects to be told that it cannot be used.
  static void IsRefused(Pack& pack, const std::vector<std::string>& item) {
    pack.ChooseMenu(item);
    pack.WaitForFileDialog().Choose(GetParam());
    const BoxText box = pack.AnswerBox();
    EXPECT_EQ(box.title, "Error");
    EXPECT_EQ(box.icon, BoxIcon::Critical);
    EXPECT_THAT(
        box.text,
        testing::HasSubstr("The file name is too long or holds characters that cannot be used."));
    pack.WaitForMain();
  }
};

INSTANTIATE_TEST_SUITE_P(Foreign, Names, testing::Values(L"\u5C71\u9053", L"\u0100"));

TEST_P(Names, TrackCannotBeChecked) {
  WriteFile(gameFolder() + "\\tracks\\A.trk", "another track");
  IsRefused(StartPack(), {"Track", "Check .trk file"});
}

TEST_P(Names, VehicleCannotBeChecked) {
  WriteFile(gameFolder() + "\\vehicles\\A.vhc", "another vehicle");
  IsRefused(StartPack(), {"Vehicle", "Check .vhc file"});
}

TEST_P(Names, TrackCannotBeMade) {
  IsRefused(StartPack(), {"Track", "New"});
  EXPECT_EQ(NamesIn(gameFolder() + "\\tracks").size(), 4U);
}

}  // namespace
}  // namespace E2e
