// The main window, the choosers and the shared file dialogs in the language of keys.
#include "game/FileDialogs.h"
#include "tests/app/TranslatedPack.h"

namespace Translated {

namespace {

void DescribeMenu(const std::vector<Platform::MenuItem*>& items, Lines& lines) {
  for (const Platform::MenuItem* item : items) {
    lines.push_back("menu " + item->caption());
    DescribeMenu(item->items(), lines);
  }
}

}  // namespace

std::vector<Scene> MainWindowScenes() {
  return {
      {"the menu bar",
       [](Player& player) { DescribeMenu(Platform::MainForm().menus(), player.shown); },
       {"menu <XFile>",
        "menu <FClose> (Alt+F4)",
        "menu <XVehicle>",
        "menu <VNew> (CTRL+N)",
        "menu <VCheck> (CTRL+C)",
        "menu <VPackage> (CTRL+P)",
        "menu <XTrack>",
        "menu <TNew> (CTRL+N)",
        "menu <TRandom>",
        "menu <TCheck> (CTRL+C)",
        "menu <TPackage> (CTRL+P)",
        "menu <XLanguage>",
        "menu <LChangeLang>",
        "menu <XInternet>",
        "menu <IServerSelect>",
        "menu <IPersonalIPViewer>",
        "menu <IPackageDownloader>",
        "menu <XGame>",
        "menu <GRecordViewer>",
        "menu <GCheckRecordFile>",
        "menu <XOptions>",
        "menu <OAutoUpdate>",
        "menu <XHelp>",
        "menu <HViewDocs>",
        "menu <HWebsites>",
        "menu &Gloamworks",
        "menu &Orvane Interactive",
        "menu <HCheckForUpdates>",
        "menu <HAbout>"}},

      {"the choosers",
       [](Player& player) {
         for (const char* shortcut : {"Ctrl+N", "Ctrl+P", "Ctrl+C"}) {
           player.user.Presses(shortcut);
           player.Looks();
           player.user.Presses("Escape");
         }
       },
       {"window <NewWhatTitle>: [<NewWhatPrompt>, list, <Vehicle>, 1 of 2 / <Vehicle> / <Track>] "
        "[<OKButton>, button] [<CclButton>, button]",
        "window <PackageWhatTitle>: [<PackageWhatPrompt>, list, <Vehicle>, 1 of 2 / <Vehicle> / "
        "<Track>] [<OKButton>, button] [<CclButton>, button]",
        "window <CheckWhatTitle>: [<CheckWhatText>, list, <Vehicle>, 1 of 3 / <Vehicle> / <Track> "
        "/ <RecFile>] [<OKButton>, button] [<CclButton>, button]"}},

      {"the file dialogs",
       [](Player& player) {
         const FileDialogs& all = SharedDialogs();
         for (const auto* dialog :
              {&all.OpenWav, &all.SaveTrack, &all.OpenTrack, &all.OpenVehicle, &all.SaveVehicle}) {
           player.shown.push_back("dialog " + dialog->title + ": " + dialog->fileType);
         }
       },
       {"dialog <OpenWavDlgTitle>: <OpenWavDlgFilter> (*.wav)",
        "dialog <SaveTrackDlgTitle>: <TrackFilter> (*.trk)",
        "dialog <OpenTrackDlgTitle>: <TrackFilter> (*.trk)",
        "dialog <OpenVehicleDlgTitle>: <VehicleFilter> (*.vhc)",
        "dialog <SaveVehicleDlgTitle>: <VehicleFilter> (*.vhc)"}},

      {"dialogs that are left",
       [](Player& player) {
         for (const Lines& menu : {Lines{"<XVehicle>", "<VCheck>"}, Lines{"<XTrack>", "<TCheck>"},
                                   Lines{"<XTrack>", "<TNew>"}, Lines{"<XTrack>", "<TRandom>"}}) {
           player.user.CancelsFileDialog();
           player.user.ChoosesMenu(menu);
         }
       },
       {"box <VehicleNoFileErrorTitle>: <VehicleNoFileErrorText>",
        "box <CTNoFileTitle>: <CTNoFileText>", "box <TMAbortedNoFileTitle>: <TMAbortedNoFileText>",
        "box <RTMAbortedNoFileTitle>: <RTMAbortedNoFileText>",
        "dialog <OpenVehicleDlgTitle>: <VehicleFilter> (*.vhc)",
        "dialog <OpenTrackDlgTitle>: <TrackFilter> (*.trk)",
        "dialog <SaveTrackDlgTitle>: <TrackFilter> (*.trk)",
        "dialog <SaveTrackDlgTitle>: <TrackFilter> (*.trk)"}},

      {"the About box",
       [](Player& player) {
         player.user.ChoosesMenu({"<XHelp>", "<HAbout>"});
       },
       {"box <About> Skidrun2/Skidrun2 Utility Pack: SK2Pack <Information>:\r\n"
        "Skidrun2 Utility Pack V1.0, <ExecutableFile> "
        "C:\\Program Files\\SK2Pack\\sk2pack.exe\r\n"
        "Skidrun2 <Information>:\r\n"
        "<InstallationFoundAtLocation>: C:\\Games\\Skidrun2\r\n"
        "<Version>: 1.0\r\n<Publisher>: Gloamworks\r\n"
        "<AboutContact1> support@orvane.example <AboutContact2> support@gloamworks.example "
        "<AboutContact3>"}},
  };
}

}  // namespace Translated
