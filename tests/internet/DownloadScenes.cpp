// The package downloader in the language of keys.
#include "base/PerRun.h"
#include "internet/FileList.h"
#include "internet/SK2Downloader.h"
#include "tests/app/TranslatedPack.h"
#include "tests/archive/ZipBytes.h"

namespace Translated {

std::vector<Scene> DownloadScenes() {
  static const Lines menu{"<XInternet>", "<IPackageDownloader>"};
  static const std::string server = "http://www.orvane.example/orvane/games/sk2/";
  static const auto goOnline = [](Player& player) {
    player.machine.web.Serve("http://address.orvane.example/", "...........1.2.3.4");
  };
  return {
      {"add-ons that are downloaded",
       [](Player& player) {
         goOnline(player);
         player.machine.web.Serve(server + "data/cars.lst", "Buggy:buggy.zip\n");
         player.machine.web.Serve(server + "cars/buggy.zip",
                                  ZipBytes::Of({.name = "buggy.vhc", .contents = "1"}));
         player.user.ChoosesMenu(menu);
         player.Looks();
         player.user.Presses("Enter");
         player.Looks();
         // Before and while the list is fetched again, and the archive.
         for (int step = 0; step < 5; ++step) {
           player.user.DuringLongStep([&player, step] {
             if (step == 2 || step == 4) player.Looks();
           });
         }
         player.user.Presses("Enter");
       },
       {"window <PackageDownloaderTitle>: [<PackageDownloaderText>, list, Car, 1 of 3 / Car / "
        "Track / Language] [<SelectButton>, button] [<CclButton>, button]",
        "window <FileListTitle>: [<FileListText>, list, Buggy, 1 of 1 / Buggy] "
        "[<DownloadButton>, button] [<SelectComponentButton>, button] [<CclButton>, button]",
        "window <DownloadingTitle>: [<DownloadingTitle>, window]",
        "window <UnpackingTitle>: [<UnpackingTitle>, window]",
        "box <DownloadSuccessfulTitle>: <DownloadSuccessfulText>"}},

      {"add-ons that cannot be had",
       [](Player& player) {
         goOnline(player);
         const char* lists[] = {"cars.lst", "tracks.lst", "langs.lst"};
         for (int kind = 0; kind < 3; ++kind) {
           player.machine.web.Serve(server + "data/" + lists[kind], "none");
           player.user.ChoosesMenu(menu);
           for (int i = 0; i < kind; ++i) player.user.Presses("Down");
           player.user.Presses("Enter");
         }
         player.machine.web.TakeAway(server + "data/cars.lst");
         player.user.ChoosesMenu(menu);
         player.user.Presses("Enter");
         player.machine.web.Serve(server + "data/cars.lst", "Buggy:buggy.zip\n");
         player.user.ChoosesMenu(menu);
         player.user.Presses("Enter");
         player.user.Presses("Enter");
         player.user.Presses("Enter");
         PerRun<FileList>().DownloadComponent("buggy.zip", 3);
         player.Collects();
         player.shown.push_back(SK2Downloader::ReadComponentList("C:\\nothing").errorText);
       },
       {"box <CarEnumerationErrorTitle>: <CarEnumerationErrorText> <Line> 1, "
        "<LstInvalidComponentRecordFormat>",
        "box <TrackEnumerationErrorTitle>: <TrackEnumerationErrorText> <Line> 1, "
        "<LstInvalidComponentRecordFormat>",
        "box <LangEnumerationErrorTitle>: <LangEnumerationErrorText> <Line> 1, "
        "<LstInvalidComponentRecordFormat>",
        "box <DataRetrievalErrorTitle>: <DataRetrievalErrorText1> Orvane Interactive "
        "<DataRetrievalErrorText2>",
        "box <FileDownloadErrorTitle>: <FileDownloadErrorText1> buggy.zip "
        "<FileDownloadErrorText2> Orvane-Interactive.",
        "box <InvalidComponentTitle>: <InvalidComponentText>", "<LstNonexistentListFile>"}},
  };
}

}  // namespace Translated
