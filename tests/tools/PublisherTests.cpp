// What is published of a maker's folder, and what of it is refused.
#include <regex>

#include "base/Sha256.h"
#include "base/Text.h"
#include "internet/ComponentPlaces.h"
#include "tests/archive/ArchiveCorpus.h"
#include "tests/tools/PublishStory.h"
#include "update/Versions.h"

namespace {

using namespace Published;
using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class Publishing : public PublishStory {
 protected:
  // With the fault that was brought into the folder, what is served stays as it was, and each of
  // the texts is told.
  void ExpectRefused(const std::vector<std::string>& told) {
    const auto before = Tree(machine, Site);
    const Told answer = Publish();
    EXPECT_EQ(answer.status, PublishCommand::Refused);
    EXPECT_EQ(answer.out, "");
    for (const std::string& text : told) EXPECT_THAT(answer.errors, HasSubstr(text));
    const std::string count =
        std::to_string(told.size()) + (told.size() == 1 ? " fault" : " faults");
    EXPECT_THAT(answer.errors, EndsWith("Refused, nothing was published: " + count + "\n"));
    EXPECT_EQ(Tree(machine, Site), before);
  }
  void PublishFirst() {
    const Told told = Publish();
    ASSERT_EQ(told.status, PublishCommand::Done) << told.errors;
  }
  // That one file of the folder is at fault.
  void ExpectFault(const std::string& path, const std::string& bytes, const std::string& told) {
    SCOPED_TRACE(path);
    PublishFirst();
    Put(path, bytes);
    ExpectRefused({told});
    Remove(path);
  }
};

TEST_F(Publishing, MakesWhatThePackReads) {
  const Told told = Publish();
  EXPECT_EQ(told.status, PublishCommand::Done);
  EXPECT_EQ(told.errors, "");
  EXPECT_EQ(told.out, "Published 2 cars, 1 track, 1 language, 1 program in C:/Site/current\n");
  EXPECT_EQ(Text(Data + "cars.lst"), "cricket:cricket.zip\nNight Coach:coach.zip\n");
  EXPECT_EQ(Text(Data + "tracks.lst"), "marsh:marsh.zip\n");
  EXPECT_EQ(Text(Data + "langs.lst"), "Francais:Francais.zip\n");
  EXPECT_EQ(Text(Current + "orvane\\software\\versions.dat"), "sk2up=1.2.0\r\nother=3.0.1\r\n");
  EXPECT_EQ(Text(Current + "orvane\\software\\sk2up.exe"), "MZ an installer");
  EXPECT_EQ(Text(Current + "orvane\\games\\sk2\\cars\\coach.zip"), Car("coach"));
  EXPECT_EQ(Text(Current + "orvane\\games\\sk2\\langs\\Francais.zip"), Language());
  EXPECT_EQ(Text(Current + "index.html"), "<h1>Home</h1>");
  EXPECT_EQ(Text(Current + "pictures\\car.png"), "a picture");
  EXPECT_THAT(machine.files.Names(Site), ElementsAre("current"));
}

TEST_F(Publishing, LeadsThePackFromEveryNameToItsArchive) {
  Put("cars\\a.zip", Car("a"));
  Put("cars\\a.txt", "rally pro");
  Put("cars\\b.zip", Car("b"));
  Put("cars\\b.txt", "Rally");  // in another letter case it is no beginning
  PublishFirst();
  for (int kind = 0; kind < ComponentPlaces::Count; ++kind) {
    const std::string path = ComponentPlaces::ListPathOf(kind);
    const auto lines = ComponentRecords::LinesIn(Text(Data + path.substr(path.rfind('/') + 1)));
    EXPECT_EQ(lines.badLine, 0U);
    EXPECT_THAT(ComponentRecords::DisplayNames(lines.text), Not(IsEmpty()));
    for (const std::string& name : ComponentRecords::DisplayNames(lines.text)) {
      const std::string file = ComponentRecords::FileNameOf(lines.text, name);
      EXPECT_TRUE(ComponentPlaces::IsInstallable(kind, file)) << file;
      EXPECT_TRUE(machine.files.Exists(Current + "orvane\\games\\sk2\\" +
                                       ComponentPlaces::FolderNameOf(kind) + "\\" + file));
    }
  }
  EXPECT_EQ(Text(Data + "cars.lst"),
            "cricket:cricket.zip\nNight Coach:coach.zip\nRally:b.zip\nrally pro:a.zip\n");
}

TEST_F(Publishing, TellsThePackTheVersionOfEachProduct) {
  PublishFirst();
  const std::string records = Text(Current + "orvane\\software\\versions.dat");
  EXPECT_EQ(Versions::VersionIn(records, "SK2UP", "="), "1.2.0");
  EXPECT_EQ(Versions::VersionIn(records, "other", "="), "3.0.1");
}

TEST_F(Publishing, WritesNothingWhereNothingHasChanged) {
  PublishFirst();
  std::map<std::string, uint64_t> stamps;
  for (const auto& [path, text] : Tree(machine, Site)) {
    stamps[path] = machine.files.Find(Site + "\\" + path)->lastWrite;
  }
  machine.files.FailWrites(Simulated::After{0}, RuntimeError::DiskFull);
  const Told told = Publish();
  EXPECT_EQ(told.status, PublishCommand::Done) << told.errors;
  EXPECT_EQ(told.out,
            "Nothing has changed: 2 cars, 1 track, 1 language, 1 program in C:/Site/current\n");
  for (const auto& [path, stamp] : stamps) {
    EXPECT_EQ(machine.files.Find(Site + "\\" + path)->lastWrite, stamp) << path;
  }
}

TEST_F(Publishing, FollowsEveryChange) {
  PublishFirst();
  const auto expectPublished = [&](const char* what) {
    EXPECT_THAT(Publish().out, StartsWith("Published")) << what;
    EXPECT_THAT(Publish().out, StartsWith("Nothing has changed")) << what;
  };
  Put("cars\\cricket.zip", Car("cricket", "A HORN"));  // of the same length
  expectPublished("an archive");
  Put("cars\\coach.txt", "Day Coach");
  expectPublished("a name");
  EXPECT_EQ(Text(Data + "cars.lst"), "cricket:cricket.zip\nDay Coach:coach.zip\n");
  Remove("cars\\cricket.zip");
  expectPublished("an archive that is gone");
  EXPECT_FALSE(machine.files.Exists(Current + "orvane\\games\\sk2\\cars\\cricket.zip"));
  Remove("pages\\pictures\\car.png");
  expectPublished("a page that is gone");
  Put("software\\versions.txt", "sk2up=1.2.1");
  expectPublished("a version");
  // Somebody has been at what is served.
  machine.files.Put(Current + "orvane\\stray.html", "");
  expectPublished("a stray file");
  EXPECT_THAT(machine.files.Names(Site), ElementsAre("current"));
}

TEST_F(Publishing, GivesTheSameBytesElsewhere) {
  PublishFirst();
  EXPECT_EQ(PublishWith({Folder, "C:\\Other\\Site"}).status, PublishCommand::Done);
  EXPECT_EQ(Tree(machine, "C:\\Other\\Site"), Tree(machine, Site));
}

TEST_F(Publishing, PassesOverWhatIsHidden) {
  Put("cars\\.listing", "");
  Put("cars\\Thumbs.db", "");
  machine.files.SetAttributes(Folder + "\\cars\\Thumbs.db", Simulated::Hidden);
  Put(".git\\config", "");
  PublishFirst();
}

TEST_F(Publishing, NeedsNoMoreThanOneFolder) {
  machine.files.Put("C:\\Small\\tracks\\marsh.zip", Track("marsh"));
  EXPECT_EQ(PublishWith({"C:\\Small\\", Site + "/"}).status, PublishCommand::Done);
  EXPECT_EQ(Text(Data + "cars.lst"), "");
  EXPECT_EQ(Text(Data + "tracks.lst"), "marsh:marsh.zip\n");
  EXPECT_FALSE(machine.files.Exists(Current + "orvane\\software"));
  EXPECT_EQ(Text(Current + "index.html"), Text(Current + "orvane\\games\\sk2\\index.html"));
}

// --- The page ---

class PublishedPage : public Publishing {
 protected:
  std::string Page() {
    PublishFirst();
    return Text(Current + "orvane\\games\\sk2\\index.html");
  }
};

TEST_F(PublishedPage, TellsNameSizeAndChecksumOfEverything) {
  const std::string page = Page();
  for (const auto& [path, text] : Served(machine)) {
    if (!path.ends_with(".zip") && !path.ends_with(".exe")) continue;
    Sha256 sum;
    sum.Add(text);
    EXPECT_THAT(page, HasSubstr("<code>" + sum.Hex() + "</code>")) << path;
    EXPECT_THAT(page, HasSubstr("<td>" + std::to_string(text.size()) + "</td>")) << path;
  }
  EXPECT_THAT(page, HasSubstr(">Night Coach</a></th><td>It has &lt;lights&gt; &amp; a horn.</td>"));
  EXPECT_THAT(page, HasSubstr("<li>sk2up 1.2.0</li>"));
}

TEST_F(PublishedPage, LeadsWhereItSays) {
  Put("cars\\Big & Loud.zip", Car("big"));
  const std::string page = Page();
  EXPECT_THAT(page, HasSubstr("<a href=\"/orvane/games/sk2/cars/Big%20%26%20Loud.zip\">"
                              "Big &amp; Loud</a>"));
  const std::regex link("<a href=\"([^\"]*)\">([^<]+)</a>");
  int links = 0;
  for (std::sregex_iterator found(page.begin(), page.end(), link), end; found != end; ++found) {
    const std::string target = (*found)[1];
    ++links;
    if (target.starts_with('#')) {
      EXPECT_THAT(page, HasSubstr("<h2 id=\"" + target.substr(1) + "\">"));
      continue;
    }
    std::string path = Text::Replace(target.substr(1), "/", "\\");
    path = Text::Replace(Text::Replace(path, "%20", " "), "%26", "&");
    EXPECT_TRUE(machine.files.Exists(Current + path)) << target;
  }
  EXPECT_EQ(links, 4 + 3 + 1 + 1 + 1);
}

// What a screen reader goes by.
TEST_F(PublishedPage, HasHeadingsCaptionsAndALanguage) {
  const std::string page = Page();
  const auto count = [&](const std::string& piece) {
    size_t found = 0;
    for (size_t at = 0; (at = page.find(piece, at)) != std::string::npos; ++at) ++found;
    return found;
  };
  EXPECT_THAT(page, StartsWith("<!DOCTYPE html>\n<html lang=\"en\">"));
  EXPECT_EQ(count("<h1>"), 1U);
  EXPECT_EQ(count("<h2 "), 4U);
  EXPECT_EQ(count("<table>"), count("<caption>"));
  EXPECT_EQ(count("<table>"), 4U);
  EXPECT_EQ(count("<th scope=\"row\">"), 5U);
  for (const char* tag :
       {"table", "thead", "tbody", "tr", "th", "td", "ul", "li", "h2", "main", "p"}) {
    EXPECT_EQ(count(std::string("<") + tag + ">") + count(std::string("<") + tag + " "),
              count(std::string("</") + tag + ">"))
        << tag;
  }
}

TEST_F(PublishedPage, OfNothingSaysSo) {
  machine.files.Put("C:\\Small\\pages\\index.html", "<h1>Home</h1>");
  EXPECT_EQ(PublishWith({"C:\\Small", Site}).status, PublishCommand::Done);
  const std::string page = Text(Current + "orvane\\games\\sk2\\index.html");
  EXPECT_THAT(page, HasSubstr("<h2 id=\"cars\">Cars</h2>\n<p>There are none yet.</p>"));
  EXPECT_THAT(page, HasSubstr("<p>There is no program to download.</p>"));
}

// --- What is refused ---

TEST_F(Publishing, RefusesFilesThatAreNoArchives) {
  ExpectFault("cars\\buggy.rar", "Rar!",
              "C:/Offer/cars/buggy.rar: The name of an archive ends in \".zip\".\n");
  ExpectFault("tracks\\zip", "", "C:/Offer/tracks/zip: The name of an archive ends in \".zip\".\n");
  ExpectFault("tracks\\hill.trk", "",
              "C:/Offer/tracks/hill.trk: The name of an archive ends in \".zip\".\n");
}

TEST_F(Publishing, RefusesNamesThatNoListOrAddressCarries) {
  ExpectFault("cars\\50% off.zip", Car("a"), "C:/Offer/cars/50% off.zip: The name may have only");
  ExpectFault("cars\\a#b.zip", Car("a"), "C:/Offer/cars/a#b.zip: The name may have only");
  ExpectFault("cars\\caf\xE9.zip", Car("a"),
              "C:/Offer/cars/caf\xC3\xA9.zip: The name may have only");
}

TEST_F(Publishing, RefusesDisplayNamesWithAColon) {
  ExpectFault("cars\\cricket.txt", "Cricket: the car",
              "C:/Offer/cars/cricket.txt: The display name \"Cricket: the car\" has a \":\", which "
              "ends it in the list.\n");
}

TEST_F(Publishing, RefusesDisplayNamesThatAreNone) {
  ExpectFault("cars\\cricket.txt", "", "C:/Offer/cars/cricket.txt: The first line is empty");
  ExpectFault("cars\\cricket.txt", "  \r\nmore",
              "C:/Offer/cars/cricket.txt: The first line is empty");
  ExpectFault("cars\\cricket.txt", "Grillon d'\xC3\xA9t\xC3\xA9",
              "has other characters than those of plain English text");
  ExpectFault("cars\\cricket.txt", "a\tb", "has other characters than those of plain English text");
  ExpectFault("cars\\cricket.txt", "caf\xE9",
              "C:/Offer/cars/cricket.txt: The text is not saved as UTF-8.\n");
  ExpectFault("cars\\cricket.txt", std::string(70'000, 'a'),
              "The text is longer than 64 kilobytes.");
}

TEST_F(Publishing, TakesATextWithTheMarkOfUtf8) {
  Put("cars\\cricket.txt",
      "\xEF\xBB\xBFSummer Cricket\r\n\r\nD'\xC3\xA9t\xC3\xA9.\rZirpt.\r\n\r\n");
  PublishFirst();
  EXPECT_THAT(Text(Data + "cars.lst"), HasSubstr("Summer Cricket:cricket.zip\n"));
  EXPECT_THAT(Text(Current + "orvane\\games\\sk2\\index.html"),
              HasSubstr("<td>D&#39;\xC3\xA9t\xC3\xA9.<br>\nZirpt.</td>"));
}

TEST_F(Publishing, RefusesATextAboutNoArchive) {
  ExpectFault("cars\\crickett.txt", "Cricket",
              "C:/Offer/cars/crickett.txt: There is no archive \"crickett.zip\" that this text is "
              "about.\n");
}

TEST_F(Publishing, RefusesADisplayNameThatIsTheBeginningOfALaterOne) {
  Put("cars\\rally.zip", Car("rally"));
  Put("cars\\rally.txt", "Rally");
  ExpectFault("cars\\Rally Pro.zip", Car("pro"),
              "C:/Offer/cars/rally.zip: The display name \"Rally\" is the beginning of \"Rally "
              "Pro\" of \"Rally Pro.zip\", which players would get instead.\n");
}

TEST_F(Publishing, RefusesADisplayNameThatIsThereTwice) {
  Put("cars\\other.zip", Car("other"));
  ExpectFault("cars\\other.txt", "cricket",
              "C:/Offer/cars/cricket.zip: The display name \"cricket\" is also that of "
              "\"other.zip\", which players would get instead.\n");
}

TEST_F(Publishing, RefusesADisplayNameOfAnotherKind) {
  ExpectFault("tracks\\marsh.txt", "Night Coach",
              "C:/Offer/tracks/marsh.zip: The display name \"Night Coach\" is also that of "
              "\"cars\\coach.zip\".\n");
}

TEST_F(Publishing, RefusesVersionsThatAreNotThreeWholeNumbers) {
  for (const char* version :
       {"1.3", "2", "1.3.0.0", "1.3.x", "1.3.-1", "v1.3.0", "", "1.3.70000"}) {
    ExpectFault("software\\versions.txt", std::string("other=3.0.1\nsk2up=") + version,
                std::string("C:/Offer/software/versions.txt: Line 2: \"") + version +
                    "\" is not a version: three whole numbers up to 65535, with \".\" between "
                    "them.\n");
    Put("software\\versions.txt", "sk2up=1.2.0\nother=3.0.1\n");
  }
}

TEST_F(Publishing, RefusesLinesThatTellNoVersion) {
  ExpectFault("software\\versions.txt", "sk2up\n",
              "Line 1: \"sk2up\" is not of the form product=version.");
  ExpectFault("software\\versions.txt", "=1.2.0\n", "Line 1: \"=1.2.0\" is not of the form");
  ExpectFault("software\\versions.txt", "sk2up=1.2.0\n\nSK2UP=1.2.0\n",
              "Line 3: There is a version of \"SK2UP\" already.");
}

TEST_F(Publishing, RefusesAVersionLowerThanThePublishedOne) {
  PublishFirst();
  Put("software\\versions.txt", "sk2up=1.1.9\nother=3.0.1\n");
  ExpectRefused(
      {"C:/Offer/software/versions.txt: The version 1.1.9 of \"sk2up\" is lower than "
       "1.2.0, which is published.\n"});
  Put("software\\versions.txt", "sk2up=1.2.0\nOther=3.0.0\n");
  ExpectRefused({"The version 3.0.0 of \"Other\" is lower than 3.0.1, which is published.\n"});
  Put("software\\versions.txt", "sk2up=1.10.0\nother=3.0.1\n");
  PublishFirst();
}

TEST_F(Publishing, RefusesAHigherVersionWithoutItsInstaller) {
  PublishFirst();
  Remove("software\\sk2up.exe");
  PublishFirst();
  Put("software\\versions.txt", "sk2up=1.3.0\nother=4.0.0\n");
  ExpectRefused(
      {"The version 1.3.0 of \"sk2up\" is higher than 1.2.0, which is published, and its "
       "installer software\\sk2up.exe is missing.\n"});
}

TEST_F(Publishing, RefusesWhatLiesInNoFolderOfItsKind) {
  ExpectFault("buggy.zip", Car("buggy"), "C:/Offer/buggy.zip: Nothing is published from here:");
  ExpectFault("car\\buggy.zip", Car("buggy"), "C:/Offer/car: Nothing is published from here:");
}

TEST_F(Publishing, RefusesFoldersWhereFilesBelong) {
  PublishFirst();
  Put("cars\\new\\buggy.zip", Car("buggy"));
  Put("software\\new\\sk2up.exe", "");
  ExpectRefused(
      {"C:/Offer/cars/new: This is a folder.", "C:/Offer/software/new: This is a folder."});
}

TEST_F(Publishing, RefusesArchivesThatThePackWouldNotUnpack) {
  for (const ArchiveCorpus::Hostile& hostile : ArchiveCorpus::HostileArchives()) {
    SCOPED_TRACE(hostile.what);
    Put("langs\\hostile.zip", hostile.bytes);
    const Told told = Publish();
    EXPECT_EQ(told.status, PublishCommand::Refused);
    EXPECT_THAT(told.errors, StartsWith("C:/Offer/langs/hostile.zip: "));
    EXPECT_THAT(told.errors, HasSubstr(hostile.cause.english));
    Remove("langs\\hostile.zip");
  }
}

TEST_F(Publishing, RefusesArchivesThatHoldNoGoodCarOrTrack) {
  const auto archive = [](const std::vector<ZipBytes::Member>& members) {
    return ZipBytes::Bytes({.members = members});
  };
  const ZipBytes::Member car{.name = "a.vhc", .contents = "skidrun=100\r\n"};
  const ZipBytes::Member other{.name = "b.vhc", .contents = "skidrun=100\r\n"};
  const ZipBytes::Member silent{.name = "a.vhc", .contents = "skidrun=1\r\nhornsound=no.wav\r\n"};
  const ZipBytes::Member endless{.name = "a.trk", .contents = "0\r\n0\r\n5000\r\n"};
  const ZipBytes::Member text{.name = "a.txt", .contents = "a text"};
  const std::string start = "C:/Offer/cars/a.zip: ";
  ExpectFault("cars\\a.zip", archive({text}),
              start + "The archive holds neither a vehicle (.vhc) nor a track (.trk).\n");
  ExpectFault("cars\\a.zip", archive({car, other}),
              start + "The archive holds 2 vehicles and tracks. A package holds one.\n");
  ExpectFault("cars\\a.zip", archive({silent}), start + "a.vhc, Line 2: ");
  ExpectFault("tracks\\a.zip", archive({endless}), "C:/Offer/tracks/a.zip: a.trk, Line 3: ");
  ExpectFault("cars\\a.zip", Track("a"), start + "The archive holds a track, not a car.\n");
  ExpectFault("tracks\\a.zip", Car("a"),
              "C:/Offer/tracks/a.zip: The archive holds a car, not a track.\n");
}

TEST_F(Publishing, RefusesAnEmptyFolder) {
  machine.files.PutFolder("C:\\Empty");
  const Told told = PublishWith({"C:\\Empty", Site});
  EXPECT_EQ(told.status, PublishCommand::Refused);
  EXPECT_THAT(told.errors, StartsWith("C:/Empty: There is nothing in this folder"));
}

TEST_F(Publishing, RefusesPagesInTheWayOfOtherFiles) {
  for (const char* page :
       {"orvane", "orvane\\software", "orvane\\software\\sk2up.exe\\x",
        "orvane\\games\\sk2\\data\\cars.lst", "Orvane\\Games\\SK2\\Cars\\Coach.zip"}) {
    ExpectFault(std::string("pages\\") + page, "",
                "Something else is served at the place of this page.\n");
  }
}

TEST_F(Publishing, TellsAllFaultsInOneRun) {
  PublishFirst();
  Put("cars\\a.zip", "no archive");
  Put("cars\\b.7z", "");
  Put("tracks\\marsh.txt", "Night Coach");
  Put("software\\versions.txt", "sk2up=1.0\n");
  Put("stray.txt", "");
  ExpectRefused({"C:/Offer/cars/a.zip: This is not a zip archive.\n",
                 "C:/Offer/cars/b.7z: ", "C:/Offer/tracks/marsh.zip: ",
                 "C:/Offer/software/versions.txt: Line 1: ", "C:/Offer/stray.txt: "});
}

// --- What cannot be looked at or written ---

TEST_F(Publishing, SaysThatThereIsNoFolder) {
  for (const char* folder : {"C:\\None", "C:\\Offer\\cars\\coach.zip"}) {
    const Told told = PublishWith({folder, Site});
    EXPECT_EQ(told.status, PublishCommand::Failed);
    EXPECT_EQ(told.errors, "sk2publish: The folder was not found.\nFile: " +
                               Text::Replace(folder, "\\", "/") + "\n");
    EXPECT_FALSE(machine.files.Exists(Site));
  }
}

TEST_F(Publishing, NeedsAFolderAndASiteThatDoNotLieInEachOther) {
  for (const auto& [folder, site] : {std::pair{"C:\\Offer", "c:\\offer"},
                                     {"C:\\Offer", "C:\\Offer\\site"},
                                     {"C:\\Offer\\cars", "C:\\Offer"}}) {
    const Told told = PublishWith({folder, site});
    EXPECT_EQ(told.status, PublishCommand::Failed) << folder << " " << site;
    EXPECT_THAT(told.errors, HasSubstr("must not lie in each other"));
  }
  EXPECT_EQ(PublishWith({"C:\\Offer", "C:\\Offer2"}).status, PublishCommand::Done);
}

TEST_F(Publishing, AFileThatCannotBeReadIsAFailure) {
  PublishFirst();
  const auto before = Tree(machine, Site);
  machine.files.HoldAlone(Folder + "\\cars\\coach.zip");
  const Told told = Publish();
  EXPECT_EQ(told.status, PublishCommand::Failed);
  EXPECT_THAT(told.errors, HasSubstr("coach.zip"));
  EXPECT_EQ(Tree(machine, Site), before);
  machine.files.Release(Folder + "\\cars\\coach.zip");
}

TEST_F(Publishing, WaitsForNoOtherRunAndDisturbsNone) {
  PublishFirst();
  Put("cars\\new.zip", Car("new"));
  machine.files.Put(Site + "\\lock.sk2", "");
  machine.files.Hold(Site + "\\lock.sk2");
  const auto before = Tree(machine, Site);
  EXPECT_EQ(Publish().status, PublishCommand::Failed);
  EXPECT_EQ(Tree(machine, Site), before);
  machine.files.Release(Site + "\\lock.sk2");
  PublishFirst();
  EXPECT_THAT(machine.files.Names(Site), ElementsAre("current"));
}

TEST_F(Publishing, AFullDiskIsAFailure) {
  PublishFirst();
  const auto before = Served(machine);
  Put("cars\\new.zip", Car("new"));
  machine.files.FailWrites(Simulated::After{3}, RuntimeError::DiskFull);
  const Told told = Publish();
  EXPECT_EQ(told.status, PublishCommand::Failed);
  EXPECT_THAT(told.errors, StartsWith("sk2publish: The disk is full."));
  EXPECT_EQ(Served(machine), before);
}

TEST_F(Publishing, IsCalledWithTwoFolders) {
  for (const std::vector<std::string>& arguments :
       std::vector<std::vector<std::string>>{{},
                                             {Folder},
                                             {Folder, Site, "x"},
                                             {Folder, ""},
                                             {"", Site},
                                             {"--quick", Site},
                                             {Folder, Site, "--key"},
                                             {"--key", "", Folder, Site},
                                             {"--key", Folder, Site},
                                             {"--key", "a", "--key", "b", Folder, Site}}) {
    const Told told = PublishWith(arguments);
    EXPECT_EQ(told.status, PublishCommand::Failed);
    EXPECT_EQ(told.errors,
              "usage: sk2publish [--key KEY.pem] [--public-key KEY.pem] FOLDER SITE\n"
              "More is told by: sk2publish --help\n");
  }
  EXPECT_FALSE(machine.files.Exists(Site));
}

TEST_F(Publishing, ExplainsItself) {
  const Told help = PublishWith({"--help"});
  EXPECT_EQ(help.status, PublishCommand::Done);
  EXPECT_EQ(help.errors, "");
  for (const char* text :
       {"usage: sk2publish ", "--key", "--public-key", "cars/", "tracks/", "langs/",
        "software/versions.txt", "pages/", "SITE/current", "Exit status"}) {
    EXPECT_THAT(help.out, HasSubstr(text));
  }
  EXPECT_EQ(PublishWith({"--version"}).out, "sk2publish 1.0.0\n");
}

}  // namespace
