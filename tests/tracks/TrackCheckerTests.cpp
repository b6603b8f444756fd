#include "tracks/TrackChecker.h"

#include "base/LineReader.h"
#include "tests/FailureSweep.h"
#include "tests/HostFile.h"
#include "tests/PeakMemory.h"
#include "tests/Story.h"
#include "tests/tracks/ReferenceTrackChecker.h"

namespace {

using Reference::Verdict;

const char* const CurveRange = "Track part out of range, value must be between 0 and 12.";
const char* const SurfaceRange = "Surface type out of range, value must be between 0 and 3.";
const char* const LengthRange = "Track length out of range. Value is to be 5000 or more.";

class TrackChecker : public Story {
 protected:
  static inline const std::string Folder = "C:\\Games\\Skidrun2\\tracks";
  static inline const std::string Path = Folder + "\\hill.trk";

  Verdict CheckBytes(const std::string& bytes) {
    machine.files.Put(Path, bytes);
    return CheckFile();
  }

  // What the checker finds in a file of these lines.
  Verdict Check(const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines) bytes += line + "\r\n";
    return CheckBytes(bytes);
  }

  Verdict CheckFile() {
    Verdict found{0, 99, "unset"};
    found.result = CheckTrackFile(Path, found.code, found.message);
    return found;
  }

  static Verdict Passed(int lines, int parts) {
    return {0, 0,
            std::to_string(lines) + " lines, " + std::to_string(parts) +
                " parts, track file was checked successfully with no errors."};
  }
  static Verdict Unreadable() {
    return {-1, TrackFault::Unreadable, "(General): " + Path + " doesn't exist."};
  }
  static Verdict NoEnd(int32_t lines) {
    return {lines, TrackFault::NoEnd, "(End): No track end available."};
  }
};

TEST_F(TrackChecker, ATrackOfTwoPartsPasses) {
  EXPECT_EQ(Check({"0", "0", "12000", "5", "1", "7000", "-1", "1"}), Passed(8, 2));
}

TEST_F(TrackChecker, LfAloneEndsNoLine) {
  const Verdict found = CheckBytes("0\n0\n5000\n-1\n0\n");
  EXPECT_EQ(found.result, 1);
  EXPECT_EQ(found.code, TrackFault::CurveNotNumeric);
}

TEST_F(TrackChecker, TheSuccessTextCountsLinesAndPartsWithoutMindingOne) {
  EXPECT_EQ(Check({"0", "0", "5000", "-1", "0"}), Passed(5, 1));
}

TEST_F(TrackChecker, AnEmptyFileHasNoEndAfterNoLines) {
  EXPECT_EQ(CheckBytes(""), NoEnd(0));
}

TEST_F(TrackChecker, ATrackWithoutPartsFailsAtItsEndMarker) {
  EXPECT_EQ(Check({"-1", "0"}),
            (Verdict{1, TrackFault::CurveOutOfRange, std::string("(L1P1): ") + CurveRange}));
}

TEST_F(TrackChecker, PartsWithoutAnEndMarkerAreAFaultAtTheLastLine) {
  EXPECT_EQ(Check({"0", "0", "5000", "0", "0", "5000"}), NoEnd(6));
  EXPECT_EQ(Check({"0"}), NoEnd(1));
  EXPECT_EQ(Check({"0", "0"}), NoEnd(2));
  EXPECT_EQ(Check({"0", "0", "5000", "0"}), NoEnd(4));
}

TEST_F(TrackChecker, AFileThatEndsBehindTheEndMarkerPasses) {
  EXPECT_EQ(Check({"0", "0", "5000", "-1"}), Passed(4, 1));
  EXPECT_EQ(CheckBytes("0\r\n0\r\n5000\r\n-1"), Passed(4, 1));
}

TEST_F(TrackChecker, TheWeatherIsZeroOrOne) {
  EXPECT_EQ(Check({"0", "0", "5000", "-1", "0"}), Passed(5, 1));
  EXPECT_EQ(Check({"0", "0", "5000", "-1", "1"}), Passed(5, 1));
  for (const char* weather : {"2", "-1", "1.5", "12"}) {
    EXPECT_EQ(Check({"0", "0", "5000", "-1", weather}),
              (Verdict{5, TrackFault::WeatherOutOfRange,
                       "(End): Weather out of range, must be 0 or 1."}));
  }
}

TEST_F(TrackChecker, LinesBehindTheWeatherAreCountedAndNotLookedAt) {
  EXPECT_EQ(Check({"0", "0", "5000", "-1", "0", "made by hand", "", "99999999999", "-5"}),
            Passed(9, 1));
  EXPECT_EQ(CheckBytes("0\r0\r5000\r-1\r0\rlast"), Passed(6, 1));
}

TEST_F(TrackChecker, LinesBehindTheWeatherMayBeOfAnyLength) {
  const std::string text(3 * LineReader::LongestPiece, 'x');
  EXPECT_EQ(Check({"0", "0", "5000", "-1", "0", text, "", text}), Passed(8, 1));
}

TEST_F(TrackChecker, ALengthIs5000OrMoreWithoutAnUpperBound) {
  EXPECT_EQ(Check({"0", "0", "4999", "-1", "0"}),
            (Verdict{3, TrackFault::LengthTooLow, std::string("(L3P1): ") + LengthRange}));
  EXPECT_EQ(Check({"0", "0", "5000", "0", "0", "2147483647", "-1", "0"}), Passed(8, 2));
  EXPECT_EQ(Check({"0", "0", "-5000", "-1", "0"}),
            (Verdict{3, TrackFault::LengthTooLow, std::string("(L3P1): ") + LengthRange}));
}

TEST_F(TrackChecker, AMessageTellsLineAndPartOfTheFault) {
  EXPECT_EQ(Check({"0", "0", "5000", "1", "1", "6000", "2", "2", "100"}),
            (Verdict{9, TrackFault::LengthTooLow, std::string("(L3P3): ") + LengthRange}));
  EXPECT_EQ(Check({"0", "0", "5000", "1", "4"}),
            (Verdict{5, TrackFault::SurfaceOutOfRange, std::string("(L2P2): ") + SurfaceRange}));
  EXPECT_EQ(Check({"0", "0", "5000", "13"}),
            (Verdict{4, TrackFault::CurveOutOfRange, std::string("(L1P2): ") + CurveRange}));
}

TEST_F(TrackChecker, CurvesAndSurfacesHaveTheirRanges) {
  for (int curve = 0; curve <= 12; ++curve) {
    for (int surface = 0; surface <= 3; ++surface) {
      EXPECT_EQ(Check({std::to_string(curve), std::to_string(surface), "5000", "-1", "0"}),
                Passed(5, 1));
    }
  }
  for (const char* curve : {"13", "-1", "-2", "12.6"}) {
    EXPECT_EQ(Check({curve, "0", "5000"}),
              (Verdict{1, TrackFault::CurveOutOfRange, std::string("(L1P1): ") + CurveRange}));
  }
  for (const char* surface : {"4", "-1", "3.5"}) {
    EXPECT_EQ(Check({"0", surface, "5000"}),
              (Verdict{2, TrackFault::SurfaceOutOfRange, std::string("(L2P1): ") + SurfaceRange}));
  }
}

TEST_F(TrackChecker, ATextInTheFirstPartIsAFaultOfItsKind) {
  EXPECT_EQ(Check({"sharp"}),
            (Verdict{1, TrackFault::CurveNotNumeric,
                     "(L1P1): Invalid track curve format. All track lines must be a number."}));
  EXPECT_EQ(Check({"0", "ice"}),
            (Verdict{2, TrackFault::SurfaceNotNumeric,
                     "(L2P1): Invalid track surface type format. All track lines must be a "
                     "number."}));
  EXPECT_EQ(Check({"0", "0", "far"}),
            (Verdict{3, TrackFault::LengthNotNumeric,
                     "(L3P1): Invalid track section length format. All track lines must be a "
                     "number."}));
  EXPECT_EQ(Check({""}).code, TrackFault::CurveNotNumeric);
}

TEST_F(TrackChecker, ATextAtTheSurfaceOrLengthOfALaterPartIsAFaultOfItsKind) {
  EXPECT_EQ(Check({"0", "0", "5000", "0", "ice"}),
            (Verdict{5, TrackFault::SurfaceNotNumeric,
                     "(L2P2): Invalid track surface type format. All track lines must be a "
                     "number."}));
  EXPECT_EQ(Check({"0", "0", "5000", "0", "0", ""}),
            (Verdict{6, TrackFault::LengthNotNumeric,
                     "(L3P2): Invalid track section length format. All track lines must be a "
                     "number."}));
}

TEST_F(TrackChecker, ATextWhereALaterPartMayBeginCountsAsAMissingFile) {
  EXPECT_EQ(Check({"0", "0", "5000", "sharp", "0", "5000"}), Unreadable());
  EXPECT_EQ(Check({"0", "0", "5000", "", "-1", "0"}), Unreadable());
}

TEST_F(TrackChecker, ATextInPlaceOfTheWeatherCountsAsAMissingFile) {
  EXPECT_EQ(Check({"0", "0", "5000", "-1", "sunny"}), Unreadable());
  EXPECT_EQ(Check({"0", "0", "5000", "-1", ""}), Unreadable());
}

TEST_F(TrackChecker, ANumberBeyond32BitsCountsAsAMissingFile) {
  const std::string large = "2147483648";
  EXPECT_EQ(Check({large}), Unreadable());
  EXPECT_EQ(Check({"0", "-" + large + ".6"}), Unreadable());
  EXPECT_EQ(Check({"0", "0", large}), Unreadable());
  EXPECT_EQ(Check({"0", "0", "5000", large}), Unreadable());
  EXPECT_EQ(Check({"0", "0", "5000", "-1", large}), Unreadable());
  EXPECT_EQ(Check({"0", "0", "1E999"}), Unreadable());
}

TEST_F(TrackChecker, FractionsAreRoundedHalvesToEven) {
  EXPECT_EQ(Check({"12.5", "0.5", "4999.5", "-1.4", "0.5"}), Passed(5, 1));
  EXPECT_EQ(Check({"12", "2.5", "5000.5", "-0.6", "1.4"}), Passed(5, 1));
  EXPECT_EQ(Check({"12", "3", "4999.4"}).code, TrackFault::LengthTooLow);
  // -1.5 is -2, which is no end marker but a curve.
  EXPECT_EQ(Check({"12", "3", "5000", "-1.5"}),
            (Verdict{4, TrackFault::CurveOutOfRange, std::string("(L1P2): ") + CurveRange}));
}

TEST_F(TrackChecker, NumbersAreReadAsTheUserWritesThem) {
  machine.locale.SetSeparators(",", ".");
  EXPECT_EQ(Check({" 12 ", "2,5", "12.000", "-1", "0,4"}), Passed(5, 1));
  EXPECT_EQ(Check({"1", "2", "5.000,5", "-1", "0"}), Passed(5, 1));
  machine.locale.SetSeparators(".", ",");
  EXPECT_EQ(Check({"1", "2", "12,000", "-1", "0"}), Passed(5, 1));
  EXPECT_EQ(Check({"1", "2", "5.000"}).code, TrackFault::LengthTooLow);
}

TEST_F(TrackChecker, CrAloneEndsALineAndTheLastLineNeedsNoEnd) {
  EXPECT_EQ(CheckBytes("0\r0\r5000\r-1\r1\r"), Passed(5, 1));
  EXPECT_EQ(CheckBytes("0\r\n0\r5000\r\n-1\r1"), Passed(5, 1));
  EXPECT_EQ(CheckBytes("0\r\n0\r\n12"),
            (Verdict{3, TrackFault::LengthTooLow, std::string("(L3P1): ") + LengthRange}));
}

TEST_F(TrackChecker, AMissingFileOrFolderIsTold) {
  EXPECT_EQ(CheckFile(), Unreadable());
  machine.files.PutFolder(Folder);
  EXPECT_EQ(CheckFile(), Unreadable());
  machine.files.PutFolder(Path);
  EXPECT_EQ(CheckFile(), Unreadable());
}

TEST_F(TrackChecker, AFileThatAnotherProgramHasForItselfIsToldAsMissing) {
  machine.files.Put(Path, "0\r\n0\r\n5000\r\n-1\r\n0\r\n");
  machine.files.HoldAlone(Path);
  EXPECT_EQ(CheckFile(), Unreadable());
  machine.files.Release(Path);
  machine.files.Hold(Path);
  EXPECT_EQ(CheckFile(), Passed(5, 1));
}

TEST_F(TrackChecker, ALineOfTenMegabytesIsJudgedByTheSameRules) {
  const auto stretch = [](char c) { return std::string(10 << 20, c); };
  const Verdict noNumber{1, TrackFault::CurveNotNumeric,
                         "(L1P1): Invalid track curve format. All track lines must be a number."};
  EXPECT_EQ(Check({stretch('x')}), noNumber);
  EXPECT_EQ(Check({"1" + stretch(' ') + "x", "0", "5000", "-1", "0"}), noNumber);
  EXPECT_EQ(Check({stretch(' ') + "1" + stretch(' '), "0", "5000", "-1", "0"}), Passed(5, 1));
  EXPECT_EQ(Check({"0", stretch('0') + "4"}),
            (Verdict{2, TrackFault::SurfaceOutOfRange, std::string("(L2P1): ") + SurfaceRange}));
  EXPECT_EQ(Check({"0", "0", stretch('9')}), Unreadable()) << "a number beyond 32 bits";
}

TEST_F(TrackChecker, TheCheckedFileStaysAsItWas) {
  const std::string bytes = "0\r\n0\r12";
  CheckBytes(bytes);
  EXPECT_EQ(machine.files.Text(Path), bytes);
  EXPECT_EQ(machine.files.Names(Folder), Names("hill.trk"));
}

TEST_F(TrackChecker, MessagesComeFromTheLanguageFile) {
  machine.files.Put(
      "C:\\Program Files\\SK2Pack\\sk2pack.lng",
      "LineFirstLetter=Z\r\nPartFirstLetter=T\r\nEnd=Ende\r\nGeneral=Allgemein\r\n"
      "DoesNotExist=fehlt.\r\nCTFInvalidTrackCurveFormat=Kurve?\r\n"
      "CTFInvalidTrackSurfaceTypeFormat=Belag?\r\nCTFInvalidTrackLengthFormat=Strecke?\r\n"
      "CTFTrackPartOutOfRange=Kurve von\r\nCTFTrackSurfaceTypeOutOfRange=Belag von\r\n"
      "And=bis\r\nCTFTrackSectionLengthTooLow=Mindestens\r\nOrMore=oder mehr\r\n"
      "CTFWeatherOutOfRange=Wetter\r\nOr=oder\r\nNoTrackEnd=Kein Ende.\r\nLines=Zeilen\r\n"
      "Parts=Teile\r\nCTFCheckTrackSuccessful=gut.\r\n");
  EXPECT_EQ(Check({"x"}).message, "(Z1T1): Kurve?");
  EXPECT_EQ(Check({"0", "x"}).message, "(Z2T1): Belag?");
  EXPECT_EQ(Check({"0", "0", "x"}).message, "(Z3T1): Strecke?");
  EXPECT_EQ(Check({"13"}).message, "(Z1T1): Kurve von 0 bis 12.");
  EXPECT_EQ(Check({"0", "4"}).message, "(Z2T1): Belag von 0 bis 3.");
  EXPECT_EQ(Check({"0", "0", "1"}).message, "(Z3T1): Mindestens 5000 oder mehr.");
  EXPECT_EQ(Check({"0", "0", "5000", "-1", "2"}).message, "(Ende): Wetter 0 oder 1.");
  EXPECT_EQ(Check({}).message, "(Ende): Kein Ende.");
  EXPECT_EQ(Check({"0", "0", "5000", "-1"}).message, "4 Zeilen, 1 Teile, gut.");
  EXPECT_EQ(Check({"0", "0", "5000", "x"}).message, "(Allgemein): " + Path + " fehlt.");
}

TEST_F(TrackChecker, AHundredMegabytesAreCheckedInLittleMemory) {
  constexpr size_t Megabyte = 1 << 20;
  HostFile file;
  // Mostly lines as long as can be, for the sake of the test's speed.
  const size_t parts = file.Repeat("0\r\n3\r\n12000\r\n", Megabyte);
  file.Repeat("-1\r\n1\r\n", 1);
  const size_t texts = file.Repeat(std::string(5 * Megabyte, 'x') + "\r\n", 99 * Megabyte);
  machine.files.MountHostFile(Path, file.path());
  Verdict found{};
  const auto growth = PeakMemory::Of([&] { found = CheckFile(); });
  EXPECT_EQ(found, Passed(static_cast<int>(3 * parts + 2 + texts), static_cast<int>(parts)));
  if (!growth) GTEST_SKIP() << "nobody tells how much memory is in use";
  EXPECT_LT(*growth, 16 * Megabyte);
}

// Whatever call fails first, the checker returns a verdict of its contract.
TEST(TrackCheckerSweep, AnyFailureIsAVerdict) {
  const std::string path = "C:\\Games\\Skidrun2\\tracks\\hill.trk";
  const std::string bytes = "0\r\n0\r\n5000\r\n-1\r\n0\r\n";
  const auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After after) {
    machine.files.Put(path, bytes);
    machine.FailAnyCall(after);
    Verdict found{};
    found.result = CheckTrackFile(path, found.code, found.message);
    if (machine.FailedCall() == "Open " + path || machine.FailedCall() == "Read " + path) {
      EXPECT_EQ(found,
                (Verdict{-1, TrackFault::Unreadable, "(General): " + path + " doesn't exist."}));
    } else {
      EXPECT_EQ(found, (Verdict{0, 0,
                                "5 lines, 1 parts, track file was checked successfully with no "
                                "errors."}));
    }
    EXPECT_EQ(machine.files.Text(path), bytes);
  });
  EXPECT_GT(calls.size(), 2U) << "hardly a call was made to fail";
}

}  // namespace
