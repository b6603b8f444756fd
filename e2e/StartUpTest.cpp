// The main window as it opens: title, menus, several copies, and how it is left.
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

class StartUp : public PackTest {
 protected:
  // The title under which the pack of another version opens.
  std::string TitleOf(const std::string& program) {
    const std::string folder = scratch.path() + "\\" + program;
    CopyFolder(Given().versions, folder);
    Pack pack(folder + "\\" + program + ".exe");
    return pack.WaitForMain().text();
  }
};

TEST_F(StartUp, TitleTellsTheVersion) {
  EXPECT_EQ(StartPack().WaitForMain().text(), "Skidrun2 Utility Pack V1.0");
}

TEST_F(StartUp, TitleTellsAnAlphaByItsRevision) {
  EXPECT_EQ(TitleOf("sk2alpha"), "Skidrun2 Utility Pack Alpha7");
}

TEST_F(StartUp, TitleTellsABeta) {
  EXPECT_EQ(TitleOf("sk2beta"), "Skidrun2 Utility Pack Beta V0.5.2");
}

TEST_F(StartUp, TitleTellsAReleaseCandidate) {
  EXPECT_EQ(TitleOf("sk2candidate"), "Skidrun2 Utility Pack V1.2.3RC1");
}

TEST_F(StartUp, MenusStandInTheirOrder) {
  std::vector<std::string> seen;
  for (const MenuLine& line : ReadMenu(StartPack().WaitForMain())) {
    seen.push_back(std::string(static_cast<size_t>(line.depth) * 2, ' ') + line.caption +
                   (line.isGrey ? " [grey]" : ""));
  }
  EXPECT_THAT(seen, testing::ElementsAre(                     //
                        "&File",                              //
                        "  &Close (Alt+F4)",                  //
                        "&Vehicle",                           //
                        "  &New (CTRL+N)",                    //
                        "  &Check .vhc file (CTRL+C)",        //
                        "  &Package (CTRL+P)",                //
                        "&Track",                             //
                        "  &New (CTRL+N)",                    //
                        "  &Random Track",                    //
                        "  &Check .trk file (CTRL+C)",        //
                        "  &Package (CTRL+P)",                //
                        "&Language",                          //
                        "  &Change current language",         //
                        "&Internet",                          //
                        "  &Select Server",                   //
                        "  Personal &IP Viewer",              //
                        "  &Package Downloader",              //
                        "&Game",                              //
                        "  &Record Viewer",                   //
                        "  &Check Record File",               //
                        "&Options",                           //
                        "  Automatically update on startup",  //
                        "&Help",                              //
                        "  View &Documentation",              //
                        "  &Visit Websites",                  //
                        "    &Gloamworks",                    //
                        "    &Orvane Interactive",            //
                        "  &Check for Updates",               //
                        "  &About"));
}

TEST_F(StartUp, TwoCopiesRunSideBySide) {
  Pack& first = StartPack();
  const Window firstMain = first.WaitForMain();
  Pack second(programFolder() + "\\sk2pack.exe");
  EXPECT_EQ(second.WaitForMain().text(), firstMain.text());
  EXPECT_TRUE(first.program().IsRunning());
  EXPECT_TRUE(firstMain.IsVisible());

  second.Press("Alt+F4");
  second.program().WaitForEnd();
  EXPECT_TRUE(first.program().IsRunning());
  EXPECT_TRUE(firstMain.IsVisible());
}

TEST_F(StartUp, LeftOverUpdaterIsDeleted) {
  const std::string updater = PutProgramFolder() + "\\orvsk2packupdater.exe";
  WriteFile(updater, "not needed any more");
  StartPack();
  EXPECT_FALSE(Exists(updater));
}

TEST_F(StartUp, CloseInTheFileMenuEndsThePack) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"File", "Close"});
  EXPECT_EQ(pack.program().WaitForEnd(), 0U);
}

TEST_F(StartUp, AltF4EndsThePack) {
  Pack& pack = StartPack();
  pack.Press("Alt+F4");
  EXPECT_EQ(pack.program().WaitForEnd(), 0U);
}

TEST_F(StartUp, OtherKeysDoNothing) {
  Pack& pack = StartPack();
  const Window main = pack.WaitForMain();
  for (const char* keys : {"Ctrl+Shift+N", "Ctrl+Shift+C", "N", "Ctrl+A"}) pack.PressInVain(keys);
  EXPECT_EQ(pack.WaitForMain(), main);
  EXPECT_EQ(TopWindows(pack.program().processId()).size(), 1U);
}

}  // namespace
}  // namespace E2e
