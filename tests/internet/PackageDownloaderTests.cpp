// Add-ons are chosen, downloaded and unpacked.
#include "base/PerRun.h"
#include "internet/FileList.h"
#include "internet/SK2Downloader.h"
#include "tests/FailureSweep.h"
#include "tests/archive/ArchiveCorpus.h"
#include "tests/internet/DownloadStory.h"

namespace {

using Platform::Icon;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class PackageDownloaderStory : public DownloadStory {
 protected:
  PackageDownloaderStory() { StartPack(); }

  std::string DownloadErrorOf(const std::string& name) const {
    return "The file " + name +
           " could not be accessed from server. If the error continues, please contact "
           "Orvane-Interactive.";
  }
  static inline const std::string NoList =
      "Error retrieving data from server. Please contact Orvane Interactive if this error "
      "continues.";
};

TEST_F(PackageDownloaderStory, TheKindsAreHeardAndTheFirstIsSelected) {
  OpensDownloader();
  EXPECT_EQ(user.SeesWindow(), Components);
  EXPECT_EQ(user.Hears(), "Select SK2 component:, list, Car, 1 of 3");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "Select SK2 component:, list, Track, 2 of 3");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "Select SK2 component:, list, Language, 3 of 3");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Select, button, Alt+S");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Cancel, button");
  user.Presses("Enter");
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  OpensDownloader();
  EXPECT_EQ(user.Hears(), "Select SK2 component:, list, Car, 1 of 3");
}

TEST_F(PackageDownloaderStory, TheServersFilesAreHeard) {
  ChoosesKind(0);
  EXPECT_EQ(user.SeesWindow(), Files);
  EXPECT_EQ(user.Hears(), "Select file:, list, Dirt Buggy, 1 of 2");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "Select file:, list, Rocket, 2 of 2");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Download and Unpack, button, Alt+D");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Return to Component Selection, button, Alt+R");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Cancel, button");
  ExpectNothingLeft();
}

TEST_F(PackageDownloaderStory, EachKindIsUnpackedWhereTheGameLooksForIt) {
  const std::vector<std::pair<std::string, std::string>> files = {
      {Game + "\\vehicles\\buggy.vhc", "skidrun=1\r\n"},
      {Game + "\\tracks\\rally.trk", "0\r\n"},
      {Game + "\\sounds\\deutsch\\numbers\\1.wav", "eins"}};
  for (int kind = 0; kind < 3; ++kind) {
    ChoosesKind(kind);
    user.Presses("Enter");
    EXPECT_THAT(user.LastBox(), Shows(Icon::Information, Success, "Download completed."));
    EXPECT_EQ(user.LastBox().owner, "Unpacking...");
    EXPECT_EQ(user.SeesWindow(), PackTitle);
    EXPECT_EQ(machine.files.Text(files[static_cast<size_t>(kind)].first),
              files[static_cast<size_t>(kind)].second);
    ExpectNothingLeft();
  }
  EXPECT_THAT(user.Boxes(), SizeIs(3));
  EXPECT_THAT(machine.web.Downloads(), Contains(Archives + "tracks/rally.zip"));
}

TEST_F(PackageDownloaderStory, AnAddOnThatIsThereIsReplaced) {
  machine.files.Put(Game + "\\vehicles\\BUGGY.vhc", "old");
  machine.files.Put(Game + "\\vehicles\\other.vhc", "other");
  ChoosesKind(0);
  user.Presses("Enter");
  EXPECT_EQ(machine.files.Text(Game + "\\vehicles\\buggy.vhc"), "skidrun=1\r\n");
  EXPECT_EQ(machine.files.Text(Game + "\\vehicles\\other.vhc"), "other");
}

TEST_F(PackageDownloaderStory, WhatIsGoingOnIsHeardBeforeEachLongStep) {
  std::vector<std::string> heard;
  ChoosesKind(0);
  // The list is fetched again, before and while which the windows are answered.
  for (int i = 0; i < 2; ++i) user.DuringLongStep([] {});
  user.DuringLongStep([&] {
    heard = user.HearsOnOpening();
    user.Presses("Escape");
    user.ClosesWindow();
    user.Presses("Enter");
  });
  user.DuringLongStep([] {});
  std::string unpacking;
  user.DuringLongStep([&] { unpacking = user.Hears(); });
  user.Presses("Enter");
  EXPECT_THAT(heard, ElementsAre("Downloading...", "Downloading...", "Downloading..., window"));
  EXPECT_EQ(unpacking, "Unpacking..., window");
  EXPECT_EQ(user.LastBox().text, Success);
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(PackageDownloaderStory, AnotherKindCanBeChosen) {
  ChoosesKind(1);
  EXPECT_EQ(user.Hears(), "Select file:, list, Night Rally, 1 of 1");
  user.Presses("Alt+R");
  EXPECT_EQ(user.SeesWindow(), Components);
  EXPECT_EQ(user.Hears(), "Select SK2 component:, list, Track, 2 of 3");
  user.Presses("Down");
  user.Presses("Enter");
  EXPECT_EQ(user.Hears(), "Select file:, list, German, 1 of 1");
  user.Presses("Alt+R");
  user.Presses("Escape");
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(PackageDownloaderStory, TheKindsAreHeardEachTimeTheyAreOpened) {
  OpensDownloader();
  user.Presses("Down");
  user.Presses("Tab");
  user.Presses("Enter");
  EXPECT_EQ(user.SeesWindow(), Files);
  user.Presses("Escape");
  OpensDownloader();
  EXPECT_EQ(user.Hears(), "Select SK2 component:, list, Car, 1 of 3");
}

TEST_F(PackageDownloaderStory, EveryWayOutOfTheFilesLeadsToTheMainWindow) {
  for (const char* key : {"Escape", "Alt+F4"}) {
    ChoosesKind(0);
    user.Presses(key);
    EXPECT_EQ(user.SeesWindow(), PackTitle) << key;
  }
}

TEST_F(PackageDownloaderStory, ADoubleClickChooses) {
  OpensDownloader();
  user.DoubleClicks("Track");
  user.DoubleClicks("Night Rally");
  EXPECT_EQ(user.LastBox().text, Success);
}

TEST_F(PackageDownloaderStory, WithoutConnectionNothingOpens) {
  machine.web.GoOffline();
  OpensDownloader();
  EXPECT_EQ(user.LastBox().icon, Icon::Critical);
  EXPECT_THAT(user.LastBox().text, HasSubstr("active internet connection"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(PackageDownloaderStory, AListThatIsNotThereIsTold) {
  for (const Simulated::WebAnswer& answer :
       {Failure, Simulated::WebAnswer{0, {}}, Simulated::WebAnswer{1, "Dirt Buggy:buggy.zip"}}) {
    machine.web.Answer(Data + "cars.lst", answer);
    ChoosesKind(0);
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, NoList, "Retrieval error"));
    EXPECT_EQ(user.LastBox().owner, Components);
    EXPECT_EQ(user.SeesWindow(), PackTitle);
  }
  EXPECT_THAT(user.Boxes(), SizeIs(3));
}

TEST_F(PackageDownloaderStory, AListThatIsNoneIsToldWithItsLine) {
  const char* texts[] = {"Could not enumerate car list.", "Could not enumerate track list.",
                         "Could not enumerate language list."};
  const char* lists[] = {"cars.lst", "tracks.lst", "langs.lst"};
  for (int kind = 0; kind < 3; ++kind) {
    machine.web.Serve(Data + lists[kind], "a:a.zip\r\nb:b.zip\r\nc\r\n");
    ChoosesKind(kind);
    EXPECT_THAT(user.LastBox(),
                Shows(Icon::Critical,
                      std::string(texts[kind]) +
                          " The following error was encountered while reading: Line 3, couldn't "
                          "determine filename, format used does not match required record format.",
                      "Error"));
    EXPECT_EQ(user.SeesWindow(), PackTitle);
    ExpectNothingLeft();
  }
}

TEST_F(PackageDownloaderStory, AListThatCannotBeReadIsNoList) {
  const auto list = SK2Downloader::ReadComponentList("C:\\nothing.lst");
  EXPECT_EQ(list.errorCode, 1);
  EXPECT_EQ(list.errorText, "Component list file doesn't exist.");
  EXPECT_EQ(list.records, "");
}

TEST_F(PackageDownloaderStory, AnEmptyListIsShownAndNothingCanBeChosen) {
  machine.web.Serve(Data + "cars.lst", "");
  ChoosesKind(0);
  EXPECT_EQ(user.Hears(), "Select file:, list, empty");
  const size_t downloads = machine.web.Downloads().size();
  user.Presses("Enter");
  EXPECT_EQ(user.SeesWindow(), Files);
  EXPECT_THAT(machine.web.Downloads(), SizeIs(downloads));
}

TEST_F(PackageDownloaderStory, WithoutASelectedKindNothingIsFetched) {
  OpensDownloader();
  const size_t downloads = machine.web.Downloads().size();
  static_cast<Platform::ListBox*>(Platform::ActiveForm()->controls()[0])->Select(-1);
  user.Presses("Alt+S");
  EXPECT_EQ(user.SeesWindow(), Components);
  EXPECT_THAT(machine.web.Downloads(), SizeIs(downloads));
}

TEST_F(PackageDownloaderStory, ANameThatIsTheBeginningOfALaterOneGetsThatOnesFile) {
  machine.web.Serve(Data + "cars.lst", "Rally:rally.zip\nRally Pro:pro.zip\n");
  machine.web.Serve(Archives + "cars/pro.zip", Zip("pro.vhc", "pro"));
  ChoosesKind(0);
  user.Presses("Enter");
  EXPECT_TRUE(machine.files.Exists(Game + "\\vehicles\\pro.vhc"));
}

TEST_F(PackageDownloaderStory, AListWithCarriageReturnsLeavesNoneInAddressOrFolder) {
  machine.web.Serve(Data + "langs.lst", "German:deutsch.zip\r\nDutch:nederlands.zip");
  ChoosesKind(2);
  user.Presses("Enter");
  EXPECT_EQ(user.LastBox().text, Success);
  EXPECT_TRUE(machine.files.Exists(Game + "\\sounds\\deutsch\\numbers\\1.wav"));
  machine.web.Serve(Archives + "langs/nederlands.zip", Zip("een.wav", "een"));
  ChoosesKind(2);
  user.Presses("Down");
  user.Presses("Enter");
  EXPECT_TRUE(machine.files.Exists(Game + "\\sounds\\nederlands\\een.wav"));
}

TEST_F(PackageDownloaderStory, ANameThatIsGoneMeanwhileIsLookedForInTheKindsBehind) {
  ChoosesKind(0);
  machine.web.Serve(Data + "cars.lst", "Rocket:rocket.zip\n");
  machine.web.Serve(Data + "langs.lst", "Dirt Buggy:buggy.zip\n");
  user.Presses("Enter");
  EXPECT_EQ(user.LastBox().text, Success) << "the archive is that of the chosen kind";
  EXPECT_THAT(machine.web.Downloads(), Contains(Data + "tracks.lst"));
  EXPECT_THAT(machine.web.Downloads(), Contains(Data + "langs.lst"));
  EXPECT_TRUE(machine.files.Exists(Game + "\\vehicles\\buggy.vhc"));
}

TEST_F(PackageDownloaderStory, ANameThatIsNowhereIsADownloadError) {
  ChoosesKind(1);
  machine.web.Serve(Data + "tracks.lst", "Other:other.zip\n");
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, DownloadErrorOf(""), "Download error"));
  EXPECT_THAT(machine.web.Downloads(), Not(Contains(Data + "cars.lst"))) << "not before its kind";
  EXPECT_EQ(user.SeesWindow(), Components);
}

TEST_F(PackageDownloaderStory, ANameThatStandsOnlyInAFileNameIsADownloadError) {
  machine.web.Serve(Data + "cars.lst", "buggy:x.zip\n");
  ChoosesKind(0);
  machine.web.Serve(Data + "cars.lst", "Dirt Buggy:buggy.zip\n");
  machine.web.Serve(Data + "tracks.lst", "buggy:y.zip\n");
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, DownloadErrorOf(""), "Download error"));
}

TEST_F(PackageDownloaderStory, AListThatIsGoneMeanwhileIsToldOnce) {
  ChoosesKind(0);
  machine.web.TakeAway(Data + "cars.lst");
  user.Presses("Enter");
  EXPECT_THAT(user.Boxes(), SizeIs(1));
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, NoList, "Retrieval error"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(PackageDownloaderStory, AnArchiveThatCannotBeHadLeadsBackToTheKinds) {
  for (const Simulated::WebAnswer& answer :
       {Failure, Simulated::WebAnswer{0, {}}, Simulated::WebAnswer{1, Zip("buggy.vhc", "1")}}) {
    machine.web.Answer(Archives + "cars/buggy.zip", answer);
    ChoosesKind(0);
    user.Presses("Enter");
    EXPECT_THAT(user.LastBox(),
                Shows(Icon::Critical, DownloadErrorOf("buggy.zip"), "Download error"));
    EXPECT_EQ(user.LastBox().owner, "Downloading...");
    EXPECT_EQ(user.SeesWindow(), Components);
    EXPECT_EQ(user.Hears(), "Select SK2 component:, list, Car, 1 of 3");
    user.Presses("Escape");
    EXPECT_EQ(user.SeesWindow(), PackTitle);
    ExpectNothingLeft();
    EXPECT_THAT(machine.files.Names(Game + "\\vehicles"), IsEmpty());
  }
}

TEST_F(PackageDownloaderStory, NamesThatAreNoneAreRefusedBeforeAnythingIsFetched) {
  for (const char* name :
       {"..\\..\\evil.zip", "../evil.zip", "C:evil.zip", "nul.zip", ".zip", "", "evil.zip:x"}) {
    machine.web.Serve(Data + "cars.lst", std::string("Evil:") + name + "\n");
    ChoosesKind(0);
    user.Presses("Enter");
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, DownloadErrorOf(name), "Download error"));
    EXPECT_EQ(machine.web.Downloads().back(), Data + "cars.lst") << name;
    EXPECT_EQ(user.SeesWindow(), Components);
    user.Presses("Escape");
  }
}

TEST_F(PackageDownloaderStory, HostileArchivesAreToldAndChangeNothing) {
  for (const auto& hostile : ArchiveCorpus::HostileArchives()) {
    SCOPED_TRACE(hostile.what);
    machine.web.Serve(Archives + "cars/buggy.zip", hostile.bytes);
    const size_t boxes = user.Boxes().size();
    ChoosesKind(0);
    user.Presses("Enter");
    ASSERT_THAT(user.Boxes(), SizeIs(boxes + 1));
    EXPECT_EQ(user.LastBox().icon, Icon::Critical);
    EXPECT_THAT(user.LastBox().text, HasSubstr(hostile.cause.english));
    EXPECT_EQ(user.LastBox().owner, Components);
    EXPECT_EQ(user.SeesWindow(), Components);
    user.Presses("Escape");
    EXPECT_EQ(user.SeesWindow(), PackTitle);
    ExpectNothingLeft();
    EXPECT_THAT(machine.files.Names(Game + "\\vehicles"), IsEmpty());
  }
}

TEST_F(PackageDownloaderStory, ALanguageThatIsDamagedLeavesNoFolder) {
  std::string damaged = Zip("1.wav", "eins");
  damaged.resize(damaged.size() - 1);
  machine.web.Serve(Archives + "langs/deutsch.zip", damaged);
  ChoosesKind(2);
  user.Presses("Enter");
  EXPECT_EQ(user.LastBox().icon, Icon::Critical);
  EXPECT_THAT(machine.files.Names(Game + "\\sounds"), IsEmpty());
}

TEST_F(PackageDownloaderStory, WithoutTheGameNothingIsFetched) {
  ChoosesKind(0);
  machine.registry = {};
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox().text, HasSubstr("Skidrun2 was not found"));
  EXPECT_EQ(user.SeesWindow(), Files);
  EXPECT_THAT(machine.web.Downloads(), Not(Contains(Archives + "cars/buggy.zip")));
}

TEST_F(PackageDownloaderStory, AKindThatIsNoneIsTold) {
  ChoosesKind(0);
  PerRun<FileList>().DownloadComponent("buggy.zip", 3);
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Critical, "Couldn't download file. Invalid component index.", "Error"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_THAT(machine.web.Downloads(), Not(Contains(Archives + "cars/buggy.zip")));
}

TEST(PackageDownloaderSweep, WhateverFailsAWindowStaysAndNothingIsHalfUnpacked) {
  const std::string server = "http://www.orvane.example/orvane/games/sk2/";
  const std::string vehicles = "C:\\Games\\Skidrun2\\vehicles";
  const auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After after) {
    InstallGame(machine, "C:\\Games\\Skidrun2");
    machine.web.Serve("http://address.orvane.example/", "...........1.2.3.4");
    machine.web.Serve(server + "data/cars.lst", "Dirt Buggy:buggy.zip\n");
    machine.web.Serve(server + "cars/buggy.zip",
                      ZipBytes::Bytes({.members = {{.name = "buggy.vhc", .contents = "1"},
                                                   {.name = "horn.wav", .contents = "2"}}}));
    ::StartPack();
    machine.FailAnyCall(after);
    machine.user.ChoosesMenu({"Internet", "Package Downloader"});
    if (machine.user.SeesWindow() == "SK2 Package Downloader") machine.user.Presses("Enter");
    if (machine.user.SeesWindow() == "Download directory") machine.user.Presses("Enter");
    EXPECT_THAT(machine.screen.Titles(), SizeIs(1));
    EXPECT_THAT(machine.user.SeesWindow(), Not(HasSubstr("...")));
    const auto names = machine.files.Names(vehicles);
    const bool isWhole = names == std::vector<std::string>{"buggy.vhc", "horn.wav"};
    EXPECT_TRUE(isWhole || names.empty()) << testing::PrintToString(names);
    EXPECT_TRUE(isWhole || !machine.user.Boxes().empty());
  });
  EXPECT_GT(calls.size(), 20U);
}

}  // namespace
