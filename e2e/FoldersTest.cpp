// Where the pack and the game lie, and what happens when the game is not there.
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

using Folders = PackTest;

TEST_F(Folders, ProgramFolderMayHoldBlanksAndAmpersand) {
  PutProgramFolder("Orvane & Co\\SK2 Pack");
  Pack& pack = StartPack();
  EXPECT_TRUE(Exists(programFolder() + "\\sk2pack.lng"));
  pack.ChooseMenu({"Help", "About"});
  EXPECT_THAT(pack.AnswerBox().text,
              testing::HasSubstr(scratch.path() + "\\Orvane & Co\\SK2 Pack\\sk2pack.exe\r\n"));
}

TEST_F(Folders, WithoutTheGameEachToolSaysSoAndTheMainWindowStays) {
  const NoGame none;
  Pack& pack = StartPack();
  const std::vector<std::vector<std::string>> tools{
      {"Vehicle", "Check .vhc file"}, {"Track", "Check .trk file"}, {"Track", "New"},
      {"Track", "Random Track"},      {"Game", "Record Viewer"},    {"Game", "Check Record File"}};
  for (const auto& tool : tools) {
    pack.ChooseMenu(tool);
    EXPECT_EQ(pack.AnswerBox(),
              Critical("Error",
                       "Skidrun2 was not found on this computer. Please install the game and try "
                       "again."))
        << tool.back();
    pack.WaitForMain();
  }
}

TEST_F(Folders, AboutBoxWithoutTheGameShowsWhatThereIs) {
  const NoGame none;
  Pack& pack = StartPack();
  pack.ChooseMenu({"Help", "About"});
  EXPECT_EQ(pack.AnswerBox(),
            Information("About Skidrun2/Skidrun2 Utility Pack",
                        "SK2Pack information:\r\n"
                        "Skidrun2 Utility Pack V1.0, executable file " +
                            programFolder() +
                            "\\sk2pack.exe\r\n"
                            "Skidrun2 information:\r\n"
                            "Installation found at location: \r\n"
                            "Version: \r\n"
                            "Publisher: \r\n"
                            "Please contact support@orvane.example for queries about the pack and "
                            " for queries about the game."));
  pack.WaitForMain();
}

}  // namespace
}  // namespace E2e
