// The language file beside the program.
#include "e2e/driver/PackTest.h"
#include "e2e/driver/RefusingFolder.h"

namespace E2e {
namespace {

using LanguageFile = PackTest;

TEST_F(LanguageFile, FirstStartWritesDownItsTexts) {
  StartPack();
  EXPECT_EQ(ReadFile(programFolder() + "\\sk2pack.lng"),
            "OpenWavDlgTitle=Open .wav sound\r\n"
            "OpenWavDlgFilter=Wave audio sound files\r\n"
            "SaveTrackDlgTitle=Save Skidrun2 Track file\r\n"
            "TrackFilter=SK2 Track files\r\n"
            "OpenTrackDlgTitle=Open Skidrun2 Track file\r\n"
            "OpenVehicleDlgTitle=Open Skidrun2 Vehicle file\r\n"
            "VehicleFilter=SK2 Vehicle files\r\n"
            "SaveVehicleDlgTitle=Save Skidrun2 Vehicle file\r\n"
            "XFile=&File\r\n"
            "FClose=&Close\r\n"
            "XVehicle=&Vehicle\r\n"
            "VNew=&New\r\n"
            "VCheck=&Check .vhc file\r\n"
            "VPackage=&Package\r\n"
            "XTrack=&Track\r\n"
            "TNew=&New\r\n"
            "TRandom=&Random Track\r\n"
            "TCheck=&Check .trk file\r\n"
            "TPackage=&Package\r\n"
            "XLanguage=&Language\r\n"
            "LChangeLang=&Change current language\r\n"
            "XInternet=&Internet\r\n"
            "IServerSelect=&Select Server\r\n"
            "IPersonalIPViewer=Personal &IP Viewer\r\n"
            "IPackageDownloader=&Package Downloader\r\n"
            "XGame=&Game\r\n"
            "GRecordViewer=&Record Viewer\r\n"
            "GCheckRecordFile=&Check Record File\r\n"
            "XOptions=&Options\r\n"
            "OAutoUpdate=Automatically update on startup\r\n"
            "XHelp=&Help\r\n"
            "HViewDocs=View &Documentation\r\n"
            "HWebsites=&Visit Websites\r\n"
            "HCheckForUpdates=&Check for Updates\r\n"
            "HAbout=&About\r\n");
}

TEST_F(LanguageFile, TranslationIsShown) {
  const std::string file = PutProgramFolder() + "\\sk2pack.lng";
  const std::string german =
      "; Deutsch\r\n"
      "XFile=&Datei ;das erste Menu\r\n"
      "XVehicle=&Fahrzeug\r\n"
      "VCheck=Fahrzeug p&r\xfc"
      "fen\r\n"
      "OpenVehicleDlgTitle=Fahrzeug \xf6"
      "ffnen\r\n"
      "VehicleFilter=Fahrzeuge\r\n"
      "CVFSteeringFactorOutOfRange=Lenkfaktor falsch{sc} er liegt zwischen\r\n"
      "And=und\r\n"
      "Line=Zeile\r\n"
      "SyntaxErrorTitle=Fehler in der Datei\r\n";
  WriteFile(file, german);
  Pack& pack = StartPack();
  const auto menu = ReadMenu(pack.WaitForMain());
  EXPECT_EQ(menu.at(0).caption, "&Datei");
  EXPECT_EQ(menu.at(2).caption, "&Fahrzeug");

  pack.ChooseMenu({"Fahrzeug",
                   "Fahrzeug pr\xfc"
                   "fen"});
  FileDialogDriver dialog = pack.WaitForFileDialog();
  EXPECT_EQ(dialog.title(),
            "Fahrzeug \xf6"
            "ffnen");
  EXPECT_EQ(dialog.fileType(), "Fahrzeuge (*.vhc)");
  pack.ChooseFile("Wreck\\Wreck.vhc");
  EXPECT_EQ(
      pack.AnswerBox(),
      Critical("Fehler in der Datei", "Zeile 13, Lenkfaktor falsch; er liegt zwischen 1 und 100."));
  pack.WaitForMain();
  EXPECT_THAT(ReadFile(file), testing::StartsWith(german));
}

TEST_F(LanguageFile, FolderInItsPlaceLeavesTheTextsEnglish) {
  const std::string file = PutProgramFolder() + "\\sk2pack.lng";
  ASSERT_TRUE(CreateDirectoryA(file.c_str(), nullptr));
  Pack& pack = StartPack();
  EXPECT_EQ(ReadMenu(pack.WaitForMain()).at(0).caption, "&File");
  pack.ChooseMenu({"Game", "Check Record File"});
  EXPECT_EQ(pack.AnswerBox(), Information("Check complete", "Score file checked with no errors."));
  pack.WaitForMain();
  EXPECT_THAT(NamesIn(file), testing::IsEmpty());
}

TEST_F(LanguageFile, FolderThatRefusesFilesLeavesTheTextsEnglish) {
  const RefusingFolder folder(Given().pack);
  if (!folder.refuses()) GTEST_SKIP() << "no folder refuses files on this machine";
  const std::vector<std::string> before = NamesIn(folder.path());
  ASSERT_THAT(before, testing::Not(testing::Contains("sk2pack.lng")));
  Pack pack(folder.path() + "\\sk2pack.exe");
  EXPECT_EQ(ReadMenu(pack.WaitForMain()).at(0).caption, "&File");
  pack.ChooseMenu({"Game", "Check Record File"});
  EXPECT_EQ(pack.AnswerBox(), Information("Check complete", "Score file checked with no errors."));
  pack.WaitForMain();
  EXPECT_EQ(TopWindows(pack.program().processId()).size(), 1U);
  pack.Press("Alt+F4");
  EXPECT_EQ(pack.program().WaitForEnd(), 0U);
  EXPECT_EQ(NamesIn(folder.path()), before);
}

TEST_F(LanguageFile, WriteProtectedFileIsReadAndLeftAsItIs) {
  const std::string file = PutProgramFolder() + "\\sk2pack.lng";
  WriteFile(file, "XFile=&Datei\r\n");
  SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_READONLY);
  Pack& pack = StartPack();
  const auto menu = ReadMenu(pack.WaitForMain());
  EXPECT_EQ(menu.at(0).caption, "&Datei");
  EXPECT_EQ(menu.at(2).caption, "&Vehicle");
  pack.ChooseMenu({"Game", "Check Record File"});
  EXPECT_EQ(pack.AnswerBox(), Information("Check complete", "Score file checked with no errors."));
  pack.WaitForMain();
  EXPECT_EQ(ReadFile(file), "XFile=&Datei\r\n");
}

}  // namespace
}  // namespace E2e
