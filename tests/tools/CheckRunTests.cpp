// sk2check from its arguments to its exit status, on the simulated machine.
#include "tools/CheckRun.h"

#include <sstream>

#include "base/PerRun.h"
#include "base/Text.h"
#include "platform/FileLines.h"
#include "tests/FailureSweep.h"
#include "tests/Story.h"
#include "tests/Texts.h"
#include "tests/tools/CheckCorpus.h"
#include "tools/CheckOptions.h"
#include "tracks/TrackChecker.h"
#include "vehicles/VehicleChecker.h"

namespace {

class CheckRun : public Story {
 protected:
  static inline const std::string Top = "C:\\My add-ons";

  ~CheckRun() override { RunObjects::End(); }

  void Put(const std::string& name, const std::string& bytes) {
    machine.files.Put(Top + "\\" + name, bytes);
  }

  // Runs it; what it prints is in the two texts.
  int Run(const std::vector<std::string>& arguments) {
    std::ostringstream out;
    std::ostringstream notes;
    const int status = Tools::RunCheck(arguments, out, notes, "1.2.3");
    printed = out.str();
    noted = notes.str();
    return status;
  }

  std::string printed;
  std::string noted;
};

const std::string Good = CheckCorpus::GoodTrack;

TEST_F(CheckRun, AFileWithoutAFaultIsPassedInSilence) {
  Put("hill.trk", Good);
  EXPECT_EQ(Run({Top + "\\hill.trk"}), Tools::Clean);
  EXPECT_EQ(printed, "");
  EXPECT_EQ(noted, "1 file checked, 0 faults.\n");
  EXPECT_EQ(Run({Top + "\\hill.trk", "--quiet"}), Tools::Clean);
  EXPECT_EQ(noted, "");
}

TEST_F(CheckRun, EveryFaultOfATrackIsToldWhereTheFormatAllowsIt) {
  Put("hill.trk", "13\r\nsand\r\n10\r\n99999999999\r\n9\r\n5000\r\n-1\r\n2\r\nnot looked at\r\n");
  EXPECT_EQ(Run({Top + "\\hill.trk"}), Tools::Faulty);
  const std::string start = Top + "\\hill.trk:";
  EXPECT_EQ(printed,
            start + "1: (L1P1): Track part out of range, value must be between 0 and 12.\n" +
                start +
                "2: (L2P1): Invalid track surface type format. All track lines must be a "
                "number.\n" +
                start + "3: (L3P1): Track length out of range. Value is to be 5000 or more.\n" +
                start + "4: The number is too large.\n" + start +
                "5: (L2P2): Surface type out of range, value must be between 0 and 3.\n" + start +
                "8: (End): Weather out of range, must be 0 or 1.\n");
  EXPECT_EQ(noted, "1 file checked, 6 faults.\n");
}

TEST_F(CheckRun, BehindATextWhereAPartMayBeginNothingMoreIsKnown) {
  Put("hill.trk", "0\r\n0\r\n5000\r\nsunny\r\n13\r\n13\r\n");
  EXPECT_EQ(Run({Top + "\\hill.trk"}), Tools::Faulty);
  EXPECT_EQ(printed, Top + "\\hill.trk:4: A number was expected.\n");
  Put("hill.trk", "0\r\n0\r\n5000\r\n-1\r\nsunny\r\nx\r\n");
  EXPECT_EQ(Run({Top + "\\hill.trk"}), Tools::Faulty);
  EXPECT_EQ(printed, Top + "\\hill.trk:5: A number was expected.\n");
}

TEST_F(CheckRun, ATrackThatEndsTooSoonHasThatFaultBesideOthers) {
  Put("hill.trk", "13\r\n0\r\n");
  EXPECT_EQ(Run({Top + "\\hill.trk"}), Tools::Faulty);
  EXPECT_EQ(printed, Top +
                         "\\hill.trk:1: (L1P1): Track part out of range, value must be between 0 "
                         "and 12.\n" +
                         Top + "\\hill.trk:2: (End): No track end available.\n");
  // The pack calls that "File OK"; its words tell otherwise.
  Put("empty.trk", "");
  EXPECT_EQ(Run({Top + "\\empty.trk"}), Tools::Faulty);
  EXPECT_EQ(printed, Top + "\\empty.trk: (End): No track end available.\n");
}

TEST_F(CheckRun, EveryFaultOfAVehicleIsTold) {
  Put("rocket.vhc",
      "enginesound=car1\r\nhornsound=no.wav\r\n\r\nskidrun=99999999999\r\nhaswipers=2\r\n"
      "Steering=1\r\nsteering=x\r\nsteeringfactor=0\r\n");
  EXPECT_EQ(Run({Top + "\\rocket.vhc"}), Tools::Faulty);
  const std::string start = Top + "\\rocket.vhc:";
  EXPECT_EQ(printed,
            start + "2: The sound " + Top + "\\no.wav does not exist.\n" + start +
                "3: Invalid syntax. Line should be in the format variable=value.\n" + start +
                "4: The number is too large.\n" + start +
                "5: haswipers out of range. Should be 0 or 1.\n" + start +
                "6: Invalid variable name (Steering). Please remember that variable names are case "
                "sensitive.\n" +
                start + "7: Invalid data entry. The value for this variable must be a number.\n" +
                start + "8: Invalid steering factor. Must be a number between 1 and 100.\n");
}

TEST_F(CheckRun, EveryFaultOfTheRecordsIsTold) {
  Put("highscore.cfg", "hill=1000\r\n\r\nlake=soon\r\na=b=1\r\n");
  EXPECT_EQ(Run({Top + "\\highscore.cfg"}), Tools::Faulty);
  const std::string start = Top + "\\highscore.cfg:";
  EXPECT_EQ(printed, start + "2: Invalid format. Format should be TrackName=TimeInMS.\n" + start +
                         "3: Invalid value. Record value must be a number in milliseconds.\n" +
                         start + "4: Invalid format. Format should be TrackName=TimeInMS.\n");
}

TEST_F(CheckRun, LinesOfALanguageFileThatThePackPassesOverAreFaults) {
  Put("de.lng", "; all right\r\nXFile=&Datei ; menu\rLine=Zeile\n\n  XFile=&Datei\r\nNot here\r\n");
  EXPECT_EQ(Run({Top + "\\de.lng"}), Tools::Faulty);
  EXPECT_EQ(printed,
            Top +
                "\\de.lng:5: No text of the pack has the key \"  XFile\". Please remember that "
                "keys are case sensitive, and that blanks before them count.\n" +
                Top +
                "\\de.lng:6: This line is neither key=text nor a comment, which begins with "
                "\";\".\n");
  Put("de.lng", "Line=Zeile\r\n" + std::string(9 << 20, ';'));
  EXPECT_EQ(Run({Top + "\\de.lng"}), Tools::Faulty);
  EXPECT_EQ(
      printed,
      Top + "\\de.lng: The file is too large for a language file. The pack does not use it.\n");
}

// --- Packages ---

TEST_F(CheckRun, APackageHoldsOneVehicleOrTrackWithItsSounds) {
  for (const auto& [name, bytes] : CheckCorpus::All()) {
    if (name.starts_with("packages/")) Put(name.substr(9), bytes);
  }
  EXPECT_EQ(Run({Top + "\\track.zip", Top + "\\vehicle.zip"}), Tools::Clean) << printed;
  EXPECT_EQ(Run({Top + "\\soundless.zip"}), Tools::Faulty);
  const std::string start = Top + "\\soundless.zip: rocket.vhc:";
  EXPECT_EQ(printed, start + "1: The sound " + Top +
                         "\\soundless.zip\\engine.wav does not exist.\n" + start + "2: The sound " +
                         Top + "\\soundless.zip\\Sounds/HORN.wav does not exist.\n");
  // What lies outside does not count, though it is there.
  EXPECT_EQ(Run({Top + "\\outside.zip"}), Tools::Faulty);
  EXPECT_EQ(printed, Top + "\\outside.zip: r\\rocket.vhc:1: The sound " + Top +
                         "\\outside.zip\\r\\..\\..\\vehicle.zip does not exist.\n");
  EXPECT_EQ(Run({Top + "\\none.zip"}), Tools::Faulty);
  EXPECT_EQ(printed,
            Top + "\\none.zip: The archive holds neither a vehicle (.vhc) nor a track (.trk).\n");
  EXPECT_EQ(Run({Top + "\\two.zip"}), Tools::Faulty);
  EXPECT_EQ(printed, Top +
                         "\\two.zip: The archive holds 2 vehicles and tracks. A package holds "
                         "one.\n" +
                         Top +
                         "\\two.zip: b.vhc:1: Invalid data entry. The value for this variable must "
                         "be a number.\n");
  EXPECT_EQ(Run({Top + "\\long.zip"}), Tools::Faulty);
  EXPECT_THAT(
      printed,
      testing::EndsWith(": The file name is too long or holds characters that cannot be used.\n"));
  EXPECT_EQ(Run({"--as=archive", Top + "\\two.zip", Top + "\\none.zip"}), Tools::Clean);
}

TEST_F(CheckRun, EveryHostileArchiveIsRefusedInThePacksWords) {
  for (const auto& hostile : ArchiveCorpus::HostileArchives()) {
    Put("a.zip", hostile.bytes);
    EXPECT_EQ(Run({Top + "\\a.zip"}), Tools::Faulty) << hostile.what;
    EXPECT_THAT(printed, testing::StartsWith(Top + "\\a.zip: ")) << hostile.what;
    EXPECT_THAT(printed, testing::EndsWith(std::string(hostile.cause.english) + "\n"))
        << hostile.what;
    EXPECT_EQ(std::count(printed.begin(), printed.end(), '\n'), 1) << hostile.what;
  }
  EXPECT_THAT(machine.files.Names(Top), testing::ElementsAre("a.zip"));
}

TEST_F(CheckRun, NothingOfAPackageIsUnpackedToTheDisk) {
  for (const auto& [name, bytes] : CheckCorpus::All()) {
    if (name.starts_with("packages/")) Put(name, bytes);
  }
  const auto before = machine.files.Names(Top + "\\packages");
  Run({Top});
  EXPECT_EQ(machine.files.Names(Top + "\\packages"), before);
}

// --- Folders ---

TEST_F(CheckRun, AFolderIsCheckedWithAllThatIsBelowIt) {
  Put("tracks\\b.trk", "x\r\n");
  Put("tracks\\A.TRK", "y\r\n");
  Put("tracks\\deep\\er\\c.trk", "z\r\n");
  Put("readme.txt", "no");
  Put(".git\\d.trk", "no");
  Put("Skidrun.cfg", "no");
  EXPECT_EQ(Run({Top}), Tools::Faulty);
  std::vector<std::string> files;
  for (const std::string& line : Texts::Split(printed, "\n")) {
    const std::string file = line.substr(0, line.find(':', 3));
    if (!file.empty() && (files.empty() || files.back() != file)) files.push_back(file);
  }
  EXPECT_EQ(files, (std::vector<std::string>{Top + "/tracks/A.TRK", Top + "/tracks/b.trk",
                                             Top + "/tracks/deep/er/c.trk"}));
}

TEST_F(CheckRun, BothSeparatorsStandBetweenFolders) {
  Put("tracks\\hill.trk", "x\r\n");
  EXPECT_EQ(Run({"C:/My add-ons/tracks/hill.trk"}), Tools::Faulty);
  EXPECT_THAT(printed, testing::StartsWith("C:/My add-ons/tracks/hill.trk:1: "));
  EXPECT_EQ(Run({"C:/My add-ons/"}), Tools::Faulty);
  EXPECT_THAT(printed, testing::StartsWith("C:/My add-ons/tracks/hill.trk:1: "));
  Put("rocket\\rocket.vhc", "hornsound=Horn.wav\r\n");
  Put("rocket\\HORN.WAV", "");
  EXPECT_EQ(Run({"C:/My add-ons/rocket/rocket.vhc"}), Tools::Clean) << printed;
}

TEST_F(CheckRun, AFolderWithNothingToCheckPassesNoCheck) {
  Put("readme.txt", "no");
  EXPECT_EQ(Run({Top}), Tools::NotLooked);
  EXPECT_EQ(printed, Top + ": There is no file in this folder that could be checked.\n");
}

// --- What cannot be looked at ---

TEST_F(CheckRun, WhatIsNotThereOrCannotBeReadIsToldAndTheRestIsChecked) {
  Put("hill.trk", "x\r\n");
  Put("held.trk", Good);
  machine.files.HoldAlone(Top + "\\held.trk");
  Put("readme.txt", "no");
  EXPECT_EQ(Run({Top + "\\nowhere.trk", Top + "\\readme.txt", Top + "\\hill.trk", "a?b.trk"}),
            Tools::NotLooked);
  EXPECT_EQ(printed,
            Top + "\\nowhere.trk: The file was not found. File: " + Top +
                "\\nowhere.trk Opening a file: system error 2\n" + Top +
                "\\readme.txt: The name does not tell what kind of file this is. See --as.\n" +
                Top +
                "\\hill.trk:1: (L1P1): Invalid track curve format. All track lines must be a "
                "number.\n" +
                Top + "\\hill.trk:1: (End): No track end available.\n" +
                "a?b.trk: The file name is too long or holds characters that cannot be used. File: "
                ".\\a?b.trk\n");
  EXPECT_EQ(noted, "1 file checked, 2 faults, 3 not looked at.\n");
}

TEST_F(CheckRun, AnUnknownNameIsCheckedAsWhatTheUserSays) {
  Put("hill.txt", "0\r\n0\r\n1\r\n-1\r\n0\r\n");
  EXPECT_EQ(Run({"--as=track", Top + "\\hill.txt"}), Tools::Faulty);
  EXPECT_EQ(Run({"--as=records", Top + "\\hill.txt"}), Tools::Faulty);
  EXPECT_THAT(printed, testing::HasSubstr("TrackName=TimeInMS"));
}

TEST_F(CheckRun, WhatDoesNotArriveWasNotTold) {
  Put("hill.trk", "x\r\n");
  std::ostringstream out;
  std::ostringstream notes;
  out.setstate(std::ios::badbit);
  EXPECT_EQ(Tools::RunCheck({Top + "\\hill.trk"}, out, notes, ""), Tools::NotLooked);
  EXPECT_EQ(Tools::RunCheck({"--help"}, out, notes, ""), Tools::NotLooked);
}

// --- What the pack says ---

TEST_F(CheckRun, FirstStopsWhereThePackStopsWithItsWords) {
  Put("good.trk", Good);
  Put("empty.trk", "");
  Put("huge.trk", "0\r\n0\r\n99999999999\r\n");
  Put("bad.trk", "13\r\n13\r\n");
  Put("good.vhc", "skidrun=1\r\n");
  Put("huge.vhc", "skidrun=99999999999\r\n");
  Put("highscore.cfg", "\r\n\r\n");
  EXPECT_EQ(Run({"--first", Top}), Tools::Faulty);
  EXPECT_EQ(
      printed,
      Top + "/bad.trk:1: (L1P1): Track part out of range, value must be between 0 and 12.\n" + Top +
          "/empty.trk: (End): No track end available.\n" + Top +
          "/good.trk: 5 lines, 1 parts, track file was checked successfully with no errors.\n" +
          Top + "/good.vhc: Vehicle file checked with no errors.\n" + Top +
          "/highscore.cfg:1: Invalid format. Format should be TrackName=TimeInMS.\n" + Top +
          "/huge.trk: (General): " + Top + "\\huge.trk doesn't exist.\n" + Top +
          "/huge.vhc: Vhc file does not exist.\n");
  EXPECT_EQ(Run({"--first", Top + "\\no.vhc"}), Tools::NotLooked);
  EXPECT_EQ(printed, Top + "\\no.vhc: Vhc file does not exist.\n");
}

TEST_F(CheckRun, OfAllFaultsTheFirstIsThePacks) {
  CheckCorpus::Files files;
  CheckCorpus::AddTexts(1500, 41, files);
  for (const auto& [name, bytes] : files) {
    Put(name, bytes);
    if (name.ends_with(".wav")) continue;
    const bool isTrack = name.ends_with(".trk");
    const std::string path = Top + "\\" + Text::Replace(name, "/", "\\");
    Fault first;
    Platform::FileLines lines(path);
    const FaultTaker take = [&](const Fault& fault) {
      if (first.code == 0) first = fault;
      return true;
    };
    int32_t code = 0;
    std::string message;
    int32_t result = 0;
    if (isTrack) {
      FindTrackFaults(lines, take);
      result = CheckTrackFile(path, code, message);
    } else {
      FindVehicleFaults(lines, SoundsBeside(path), take);
      result = CheckVehicleFile(path, code, message);
    }
    ASSERT_EQ(first.code, code) << testing::PrintToString(bytes);
    if (result <= 0) continue;
    ASSERT_EQ(first.line, result) << testing::PrintToString(bytes);
    ASSERT_EQ(first.message, message) << testing::PrintToString(bytes);
  }
}

// --- Languages ---

TEST_F(CheckRun, ItSpeaksTheLanguageOfAFileAndWritesNothing) {
  Put("de.lng",
      "CTFTrackPartOutOfRange=Au\xDF"
      "er der Reihe, zwischen\r\nAnd=und\r\n");
  Put("hill.trk", "13\r\n0\r\n5000\r\n-1\r\n0\r\n");
  const auto before = machine.files.Names("C:\\Program Files\\SK2Pack");
  EXPECT_EQ(Run({"--language", Top + "\\de.lng", Top + "\\hill.trk"}), Tools::Faulty);
  EXPECT_EQ(printed, Top +
                         "\\hill.trk:1: (L1P1): Au\xC3\x9F"
                         "er der Reihe, zwischen 0 und 12.\n");
  EXPECT_EQ(machine.files.Text(Top + "\\de.lng"),
            "CTFTrackPartOutOfRange=Au\xDF"
            "er der Reihe, zwischen\r\nAnd=und\r\n");
  EXPECT_EQ(machine.files.Names("C:\\Program Files\\SK2Pack"), before);
  EXPECT_EQ(Run({Top + "\\hill.trk"}), Tools::Faulty);
  EXPECT_THAT(printed, testing::HasSubstr("Track part out of range"));
  EXPECT_EQ(Run({"--language", Top + "\\fr.lng", Top + "\\hill.trk"}), Tools::NotLooked);
  EXPECT_EQ(noted, "sk2check: " + Top + "\\fr.lng: There is no such language file.\n");
}

TEST_F(CheckRun, HelpVersionAndWrongArguments) {
  EXPECT_EQ(Run({"--help"}), Tools::Clean);
  EXPECT_EQ(printed, CheckHelp());
  EXPECT_EQ(Run({"--version"}), Tools::Clean);
  EXPECT_EQ(printed, "sk2check 1.2.3\n");
  EXPECT_EQ(Run({"--what"}), Tools::NotLooked);
  EXPECT_EQ(printed, "");
  EXPECT_EQ(noted, "sk2check: There is no option --what. See sk2check --help.\n");
}

// Whatever the disk does, it says so and comes to an end: a failure is no fault of a file.
TEST(CheckRunSweep, NoFailureOfTheDiskIsAFault) {
  CheckCorpus::Files files;
  CheckCorpus::AddPackages(files);
  const auto calls = ForEachCallThatFails([&](Simulated::Machine& machine, Simulated::After after) {
    machine.files.Put("C:\\Site\\hill.trk", Good);
    machine.files.Put("C:\\Site\\cars\\track.zip", files["packages/track.zip"]);
    machine.faults.FailAnyCall(after);
    std::ostringstream out;
    std::ostringstream notes;
    EXPECT_NE(Tools::RunCheck({"C:\\Site"}, out, notes, ""), Tools::Faulty) << out.str();
    RunObjects::End();
  });
  EXPECT_GT(calls.size(), 5u);
}

}  // namespace
