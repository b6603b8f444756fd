// The Help menu: the About box, the help file and the web sites.
#include "e2e/driver/Opener.h"
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

using HelpMenu = PackTest;

TEST_F(HelpMenu, AboutBox) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Help", "About"});
  EXPECT_EQ(pack.AnswerBox(),
            Information("About Skidrun2/Skidrun2 Utility Pack",
                        "SK2Pack information:\r\n"
                        "Skidrun2 Utility Pack V1.0, executable file " +
                            programFolder() +
                            "\\sk2pack.exe\r\n"
                            "Skidrun2 information:\r\n"
                            "Installation found at location: " +
                            gameFolder() +
                            "\r\n"
                            "Version: 2.1\r\n"
                            "Publisher: Gloamworks\r\n"
                            "Please contact support@orvane.example for queries about the pack and "
                            "support@gloamworks.example for queries about the game."));
  pack.WaitForMain();
}

TEST_F(HelpMenu, HelpFileIsOpenedFromAFolderWithBlanksAndAmpersand) {
  PutProgramFolder("SK2 Pack & more (new)");
  WriteFile(programFolder() + "\\sk2pack.chm", "help");
  const Opener opener(scratch.path());
  Pack& pack = StartPack();
  pack.ChooseMenu({"Help", "View Documentation"});
  EXPECT_EQ(opener.WaitForOpened(), programFolder() + "\\sk2pack.chm");
  EXPECT_TRUE(pack.program().IsRunning());
}

TEST_F(HelpMenu, HelpFileComesWithTheProgram) {
  PutProgramFolder();
  // How every compiled help file begins.
  EXPECT_EQ(ReadFile(programFolder() + "\\sk2pack.chm").substr(0, 4), "ITSF");
}

TEST_F(HelpMenu, MissingHelpFileIsToldByTheSystem) {
  PutProgramFolder();
  DeleteFileA((programFolder() + "\\sk2pack.chm").c_str());
  Pack& pack = StartPack();
  pack.ChooseMenu({"Help", "View Documentation"});
  const BoxText box = pack.AnswerBox();
  EXPECT_FALSE(box.text.empty());
  EXPECT_EQ(box.icon, BoxIcon::Critical);
  pack.WaitForMain();
}

TEST_F(HelpMenu, PublishersSiteIsOpened) {
  const Opener opener(scratch.path());
  Pack& pack = StartPack();
  pack.ChooseMenu({"Help", "Visit Websites", "Gloamworks"});
  EXPECT_EQ(opener.WaitForOpened(), "http://www.gloamworks.example/");
}

TEST_F(HelpMenu, MakersSiteIsOpened) {
  const Opener opener(scratch.path());
  Pack& pack = StartPack();
  pack.ChooseMenu({"Help", "Visit Websites", "Orvane Interactive"});
  EXPECT_EQ(opener.WaitForOpened(), "http://www.orvane.example/");
}

}  // namespace
}  // namespace E2e
