#include <gmock/gmock.h>

#include "tests/app/PackStory.h"

namespace {

using testing::ElementsAre;

class HelpMenuStory : public PackStory {
 protected:
  void PutGameValue(const std::string& name, const std::string& text) {
    machine.registry.PutString(Platform::RegistryRoot::LocalMachine,
                               Platform::RegistryView::Of32Bit,
                               "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"
                               "{7A3C51E2-94D0-4B6F-A1C8-2E5D90F4B317}_is1",
                               name, text);
  }
};

TEST_F(HelpMenuStory, TheDocumentationIsOpenedAsOneArgument) {
  machine.executable.folder = "C:\\Tools & Toys\\My Pack";
  machine.files.Put("C:\\Tools & Toys\\My Pack\\sk2pack.chm", "help");
  StartPack();
  user.ChoosesMenu({"Help", "View Documentation"});
  EXPECT_THAT(machine.shell.Opened(), ElementsAre("C:\\Tools & Toys\\My Pack\\sk2pack.chm"));
  EXPECT_TRUE(user.Boxes().empty());
}

TEST_F(HelpMenuStory, AMissingHelpFileIsToldByTheSystem) {
  StartPack();
  user.ChoosesMenu({"Help", "View Documentation"});
  EXPECT_THAT(machine.shell.Opened(), testing::IsEmpty());
  ASSERT_EQ(user.Boxes().size(), 1U);
  EXPECT_THAT(user.LastBox().text, testing::HasSubstr("sk2pack.chm"));
  EXPECT_EQ(user.LastBox().owner, PackTitle);
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(HelpMenuStory, NothingBeginsWhileTheSystemOpensADocument) {
  StartPack();
  user.DuringLongStep([this] {
    user.Presses("Ctrl+N");
    user.ClosesWindow();
  });
  user.ChoosesMenu({"Help", "View Documentation"});
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_EQ(user.Boxes().size(), 1U) << "the system's own box is answered all the same";
}

TEST_F(HelpMenuStory, TheWebSitesAreOpened) {
  StartPack();
  user.ChoosesMenu({"Help", "Visit Websites", "Gloamworks"});
  user.ChoosesMenu({"Help", "Visit Websites", "Orvane Interactive"});
  EXPECT_THAT(machine.shell.Opened(),
              ElementsAre("http://www.gloamworks.example/", "http://www.orvane.example/"));
}

TEST_F(HelpMenuStory, AboutTellsOfThePackAndOfTheGame) {
  PutGameValue("DisplayVersion", "2.1");
  PutGameValue("Publisher", "Gloamworks");
  PutGameValue("Contact", "help@gloamworks.example");
  machine.executable.version = {1, 2, 3, "SK2 Pack", "Skidrun2 Utility Pack RC1"};
  StartPack();
  user.ChoosesMenu({"Help", "About"});
  EXPECT_THAT(user.LastBox(),
              Shows(Platform::Icon::Information,
                    "SK2Pack information:\r\n"
                    "SK2 Pack V1.2.3, executable file C:\\Program Files\\SK2Pack\\sk2pack.exe\r\n"
                    "Skidrun2 information:\r\n"
                    "Installation found at location: C:\\Games\\Skidrun2\r\n"
                    "Version: 2.1\r\n"
                    "Publisher: Gloamworks\r\n"
                    "Please contact support@orvane.example for queries about the pack and "
                    "help@gloamworks.example for queries about the game.",
                    "About Skidrun2/Skidrun2 Utility Pack"));
}

TEST_F(HelpMenuStory, AboutOfAGameThatIsNotInstalledHasEmptyFields) {
  machine.registry = {};
  StartPack();
  user.ChoosesMenu({"Help", "About"});
  ASSERT_EQ(user.Boxes().size(), 1U);
  EXPECT_THAT(user.LastBox(),
              Shows(Platform::Icon::Information,
                    "SK2Pack information:\r\n"
                    "Skidrun2 Utility Pack V1.0, executable file "
                    "C:\\Program Files\\SK2Pack\\sk2pack.exe\r\n"
                    "Skidrun2 information:\r\n"
                    "Installation found at location: \r\n"
                    "Version: \r\n"
                    "Publisher: \r\n"
                    "Please contact support@orvane.example for queries about the pack and "
                    " for queries about the game."));
}

TEST_F(HelpMenuStory, AboutLooksItsTextsUpEachTime) {
  StartPack();
  user.ChoosesMenu({"Help", "About"});
  machine.files.Put("C:\\Program Files\\SK2Pack\\sk2pack.lng",
                    "About=\xDC"
                    "ber\r\nVersion=Fassung\r\n");
  user.ChoosesMenu({"Help", "About"});
  EXPECT_EQ(user.LastBox().title,
            "\xDC"
            "ber Skidrun2/Skidrun2 Utility Pack");
  EXPECT_THAT(user.LastBox().text, testing::HasSubstr("\r\nFassung: "));
}

TEST_F(HelpMenuStory, WithoutTheGameEveryActionThatNeedsItSaysSoInOneBox) {
  machine.registry = {};
  StartPack();
  const std::vector<std::vector<std::string>> actions = {
      {"Vehicle", "Check .vhc file"}, {"Track", "New"},          {"Track", "Random Track"},
      {"Track", "Check .trk file"},   {"Game", "Record Viewer"}, {"Game", "Check Record File"}};
  size_t boxes = 0;
  for (const auto& action : actions) {
    user.ChoosesMenu(action);
    EXPECT_EQ(user.Boxes().size(), ++boxes) << action.back();
    EXPECT_THAT(user.LastBox(), Shows(Platform::Icon::Critical,
                                      "Skidrun2 was not found on this computer. Please install the "
                                      "game and try again.",
                                      "Error"));
    EXPECT_EQ(user.SeesWindow(), PackTitle);
  }
}

}  // namespace
