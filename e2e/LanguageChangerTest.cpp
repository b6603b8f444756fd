// The language of the game is changed, with the keyboard alone.
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

class LanguageChanger : public PackTest {
 protected:
  std::string configuration() const { return gameFolder() + "\\Skidrun.cfg"; }
  DWORD Attributes() const { return GetFileAttributesA(configuration().c_str()); }

  static Window Open(Pack& pack) {
    pack.ChooseMenu({"Language", "Change current language"});
    return pack.WaitForWindow("Change current language");
  }
  static BoxText Saved() { return Information("Language changed", "The language has been saved."); }
};

TEST_F(LanguageChanger, ChosenLanguageIsWrittenAndTheFileHidden) {
  SetFileAttributesA(configuration().c_str(), FILE_ATTRIBUTE_READONLY);
  Pack& pack = StartPack();
  const Window changer = Open(pack);
  const Window list = changer.control("Select Language:");
  EXPECT_EQ(changer.focus(), list);
  EXPECT_THAT(list.rows(), testing::UnorderedElementsAre("English", "Deutsch"));
  EXPECT_EQ(list.selectedRow(), list.rows().front());

  pack.Press("D");
  pack.WaitForRow("Deutsch");
  pack.Press("Enter");
  EXPECT_EQ(pack.AnswerBox(), Saved());
  pack.WaitForRow("Deutsch");
  EXPECT_EQ(ReadFile(configuration()), "Language=Deutsch\r\nMultiplayer=203.0.113.7\r\n");
  EXPECT_EQ(Attributes() & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY),
            DWORD{FILE_ATTRIBUTE_HIDDEN});

  // The window stays: another one can be chosen at once.
  pack.Press("E");
  pack.WaitForRow("English");
  pack.Press("Alt+S");
  EXPECT_EQ(pack.AnswerBox(), Saved());
  pack.WaitForWindow("Change current language");
  EXPECT_EQ(ReadFile(configuration()), "Language=English\r\nMultiplayer=203.0.113.7\r\n");
  pack.Press("Escape");
  pack.WaitForMain();
}

TEST_F(LanguageChanger, LanguagesAreListedAnewAtEachOpening) {
  Pack& pack = StartPack();
  Open(pack);
  pack.Press("Escape");
  pack.WaitForMain();
  WriteFile(gameFolder() + "\\sounds\\A & B.txt", "a file is listed too");
  EXPECT_THAT(Open(pack).control("Select Language:").rows(),
              testing::UnorderedElementsAre("English", "Deutsch", "A & B.txt"));
  pack.Press("Alt+F4");
  pack.WaitForMain();
}

TEST_F(LanguageChanger, GameWithoutSoundsHasNoLanguages) {
  const std::string sounds = gameFolder() + "\\sounds";
  ASSERT_TRUE(MoveFileA(sounds.c_str(), (sounds + " elsewhere").c_str()));
  Pack& pack = StartPack();
  pack.ChooseMenu({"Language", "Change current language"});
  EXPECT_EQ(pack.AnswerBox(), Critical("Language detection error",
                                       "No languages are currently installed on Skidrun2."));
  pack.WaitForMain();
}

TEST_F(LanguageChanger, MissingConfigurationIsMade) {
  DeleteFileA(configuration().c_str());
  Pack& pack = StartPack();
  Open(pack);
  pack.Press("D");
  pack.WaitForRow("Deutsch");
  pack.Press("Enter");
  EXPECT_EQ(pack.AnswerBox(), Saved());
  pack.WaitForWindow("Change current language");
  EXPECT_EQ(ReadFile(configuration()), "Language=Deutsch\r\n");
  EXPECT_TRUE(Attributes() & FILE_ATTRIBUTE_HIDDEN);
}

}  // namespace
}  // namespace E2e
