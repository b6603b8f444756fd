#include "vehicles/VehicleChecker.h"

#include "base/LineReader.h"
#include "tests/FailureSweep.h"
#include "tests/HostFile.h"
#include "tests/PeakMemory.h"
#include "tests/SimulatedGame.h"
#include "tests/Story.h"
#include "tests/vehicles/ReferenceVehicleChecker.h"
#include "vehicles/VehicleVariables.h"

namespace {

using Reference::Verdict;
using testing::StartsWith;

const char* const NoError = "Vehicle file checked with no errors.";
const char* const NoFile = "Vhc file does not exist.";
const char* const NotNumeric = "Invalid data entry. The value for this variable must be a number.";
const char* const SteeringFactorRange =
    "Invalid steering factor. Must be a number between 1 and 100.";
const char* const HasWipersRange = "haswipers out of range. Should be 0 or 1.";
const char* const NoEquals = "Invalid syntax. Line should be in the format variable=value.";

class VehicleChecker : public Story {
 protected:
  static inline const std::string Folder = "C:\\Games\\Skidrun2\\vehicles\\rocket";
  static inline const std::string Path = Folder + "\\rocket.vhc";

  // What the checker finds in a file with these bytes.
  Verdict Check(const std::string& bytes) {
    machine.files.Put(Path, bytes);
    return Check();
  }

  Verdict Check() {
    Verdict found{0, 0, "unset"};
    found.result = CheckVehicleFile(Path, found.code, found.message);
    return found;
  }

  static Verdict Passed() { return {0, 0, NoError}; }
  static Verdict Unreadable() { return {-1, VehicleFault::Unreadable, NoFile}; }
  static Verdict NoSound(int32_t line, const std::string& name) {
    return {line, VehicleFault::NonexistentSound,
            "The sound " + Folder + "\\" + name + " does not exist."};
  }
  static Verdict BadName(int32_t line, const std::string& name) {
    return {line, VehicleFault::InvalidVariable,
            "Invalid variable name (" + name +
                "). Please remember that variable names are case sensitive."};
  }
};

TEST_F(VehicleChecker, AWholeVehiclePasses) {
  machine.files.Put(Folder + "\\horn.wav", "");
  EXPECT_EQ(Check("enginesound=car1\r\nthrottlesound=car2\r\nstartsound=cycle1\r\n"
                  "hornsound=horn.wav\r\nacceleration=20\r\ndeceleration=30\r\nskidrun=250\r\n"
                  "idlefreq=22050\r\ntopfreq=44100\r\nshiftfreq=30000\r\nnumberofgears=5\r\n"
                  "steering=40\r\nsteeringfactor=50\r\nhaswipers=1\r\n"),
            Passed());
}

TEST_F(VehicleChecker, AnEmptyFilePasses) {
  EXPECT_EQ(Check(""), Passed());
}

TEST_F(VehicleChecker, ABlankLineAnywhereIsAFault) {
  EXPECT_EQ(Check("\r\nskidrun=1\r\n"), (Verdict{1, VehicleFault::InvalidSyntax, NoEquals}));
  EXPECT_EQ(Check("skidrun=1\r\n\r\nskidrun=1\r\n"),
            (Verdict{2, VehicleFault::InvalidSyntax, NoEquals}));
  EXPECT_EQ(Check("skidrun=1\r\n\r\n"), (Verdict{2, VehicleFault::InvalidSyntax, NoEquals}));
}

TEST_F(VehicleChecker, ALineWithoutEqualsIsAFault) {
  EXPECT_EQ(Check("skidrun=1\r\nskidrun 2"), (Verdict{2, VehicleFault::InvalidSyntax, NoEquals}));
}

TEST_F(VehicleChecker, TheNameOfAVariableMindsLetterCase) {
  EXPECT_EQ(Check("EngineSound=car1\r\n"), BadName(1, "EngineSound"));
}

TEST_F(VehicleChecker, TheNameOfAVariableIsNotTrimmed) {
  EXPECT_EQ(Check(" skidrun=1\r\n"), BadName(1, " skidrun"));
  EXPECT_EQ(Check("skidrun =1\r\n"), BadName(1, "skidrun "));
  EXPECT_EQ(Check("=1\r\n"), BadName(1, ""));
  EXPECT_EQ(Check("skidru=1\r\n"), BadName(1, "skidru"));
  EXPECT_EQ(Check("skidruns=1\r\n"), BadName(1, "skidruns"));
}

TEST_F(VehicleChecker, Car5IsNoInternalEngineSoundButMayBeAFile) {
  EXPECT_EQ(Check("enginesound=car5\r\n"), NoSound(1, "car5"));
  EXPECT_EQ(Check("hornsound=car6\r\n"), NoSound(1, "car6"));
  machine.files.Put(Folder + "\\car5", "");
  EXPECT_EQ(Check("enginesound=car5\r\n"), Passed());
}

TEST_F(VehicleChecker, ThrottleSoundHasTwoInternalSoundsOnly) {
  EXPECT_EQ(Check("throttlesound=car1\r\nthrottlesound=car2\r\n"), Passed());
  for (const char* name : {"car3", "car4", "cycle1", "cycle2"}) {
    EXPECT_EQ(Check("throttlesound=car1\r\nthrottlesound=" + std::string(name)), NoSound(2, name));
  }
}

TEST_F(VehicleChecker, TheOtherSoundsHaveSixInternalSounds) {
  for (const char* variable : {"enginesound", "startsound", "hornsound"}) {
    for (const char* name : {"car1", "car2", "car3", "car4", "cycle1", "cycle2"}) {
      EXPECT_EQ(Check(std::string(variable) + "=" + name), Passed());
    }
    EXPECT_EQ(Check(std::string(variable) + "=Car1"), NoSound(1, "Car1"));
    EXPECT_EQ(Check(std::string(variable) + "=cycle3"), NoSound(1, "cycle3"));
  }
}

TEST_F(VehicleChecker, AnEmptySoundNameStandsForTheFolderItself) {
  EXPECT_EQ(Check("enginesound=\r\nthrottlesound=\r\nstartsound=\r\nhornsound=\r\n"), Passed());
}

TEST_F(VehicleChecker, ASoundIsAnythingThatExistsInTheFolder) {
  InstallGame(machine, "C:\\Games\\Skidrun2");
  machine.files.Put(Folder + "\\Engine.wav", "");
  machine.files.PutFolder(Folder + "\\spare");
  EXPECT_EQ(Check("enginesound=engine.WAV\r\nhornsound=spare\r\nstartsound=rocket.vhc\r\n"),
            Passed());
  EXPECT_EQ(Check("enginesound=..\\..\\tracks\r\nhornsound=.\r\nstartsound=engine.wav \r\n"),
            Passed());
  EXPECT_EQ(Check("enginesound= engine.wav\r\n"), NoSound(1, " engine.wav"));
  EXPECT_EQ(Check("enginesound=engine.wav\\\r\n"), NoSound(1, "engine.wav\\"));
}

TEST_F(VehicleChecker, ASoundNameThatNoFileCanHaveDoesNotExist) {
  const std::string tooLong(300, 'x');
  const std::string nul("a\0b", 3);
  for (const std::string& name : {std::string("*.*"), std::string("a?"), std::string("<|>"),
                                  std::string("C:\\Games"), tooLong, nul, std::string(1, '\0')}) {
    EXPECT_EQ(Check("hornsound=" + name + "\r\n"), NoSound(1, name));
  }
}

TEST_F(VehicleChecker, TheVehicleFolderEndsAtTheLastBackslash) {
  machine.files.Put("C:\\lonely.vhc", "hornsound=bell\r\n");
  int32_t code = 0;
  std::string message;
  EXPECT_EQ(CheckVehicleFile("C:\\lonely.vhc", code, message), 1);
  EXPECT_EQ(message, "The sound C:\\bell does not exist.");
}

TEST_F(VehicleChecker, TheSteeringFactorIsRoundedBeforeItsRangeIsTested) {
  EXPECT_EQ(Check("steeringfactor=0.6\r\nsteeringfactor=100.5\r\nsteeringfactor=1\r\n"
                  "steeringfactor=100\r\n"),
            Passed());
  for (const char* value : {"101", "0", "0.5", "-1", "100.51", "2147483647"}) {
    EXPECT_EQ(Check("steeringfactor=" + std::string(value)),
              (Verdict{1, VehicleFault::SteeringFactorOutOfRange, SteeringFactorRange}))
        << value;
  }
}

TEST_F(VehicleChecker, HasWipersIsZeroOrOneOnceRounded) {
  EXPECT_EQ(Check("haswipers=0\r\nhaswipers=1\r\nhaswipers=1.4\r\nhaswipers=-0.5\r\n"), Passed());
  for (const char* value : {"2", "-1", "1.5", "-0.6"}) {
    EXPECT_EQ(Check("skidrun=1\r\nhaswipers=" + std::string(value)),
              (Verdict{2, VehicleFault::HasWipersOutOfRange, HasWipersRange}))
        << value;
  }
}

TEST_F(VehicleChecker, EveryNumericVariableRefusesTextAndAnEmptyValue) {
  for (size_t i = 4; i < VehicleVariableNames.size(); ++i) {
    const std::string name(VehicleVariableNames[i]);
    for (const char* value : {"abc", "", " ", "1x", "car1"}) {
      EXPECT_EQ(Check(name + "=" + value), (Verdict{1, VehicleFault::InvalidValue, NotNumeric}));
    }
  }
}

TEST_F(VehicleChecker, OnlyTheTwoVariablesHaveARange) {
  for (const char* name : {"acceleration", "deceleration", "skidrun", "idlefreq", "topfreq",
                           "shiftfreq", "numberofgears", "steering"}) {
    EXPECT_EQ(Check(std::string(name) + "=-2147483648\r\n" + name + "=2147483647\r\n"), Passed());
  }
}

TEST_F(VehicleChecker, WhatFollowsASecondEqualsIsIgnored) {
  EXPECT_EQ(Check("skidrun=1=2\r\nskidrun=1=\r\nskidrun=1=abc=def\r\nenginesound=car1=car9\r\n"),
            Passed());
  EXPECT_EQ(Check("skidrun==2\r\n"), (Verdict{1, VehicleFault::InvalidValue, NotNumeric}));
  EXPECT_EQ(Check("a=b=c\r\n"), BadName(1, "a"));
}

TEST_F(VehicleChecker, ANumberBeyond32BitsCountsAsAMissingFile) {
  for (const char* value :
       {"99999999999", "2147483648", "2147483647.5", "-2147483649", "1E300", "1E999", "-1E999"}) {
    EXPECT_EQ(Check("skidrun=" + std::string(value)), Unreadable()) << value;
  }
  EXPECT_EQ(Check("skidrun=2147483647.4\r\nskidrun=-2147483648.5\r\n"), Passed());
}

TEST_F(VehicleChecker, NumbersAreReadAsTheUserWritesThem) {
  machine.locale.SetSeparators(",", ".");
  EXPECT_EQ(Check("skidrun=1.250,75\r\nsteeringfactor=0,6\r\nhaswipers=1,4\r\n"), Passed());
  EXPECT_EQ(Check("steeringfactor=100,51"),
            (Verdict{1, VehicleFault::SteeringFactorOutOfRange, SteeringFactorRange}));
  // The separator of thousands says nothing: this is 14.
  EXPECT_EQ(Check("haswipers=1.4"),
            (Verdict{1, VehicleFault::HasWipersOutOfRange, HasWipersRange}));
  machine.locale.SetSeparators(".", ",");
  EXPECT_EQ(Check("skidrun=1,250.75\r\nskidrun= -12 \r\nskidrun=1e3\r\n"), Passed());
}

TEST_F(VehicleChecker, CrAloneEndsALineToo) {
  EXPECT_EQ(Check("skidrun=1\rhaswipers=1\rhaswipers=2\r"),
            (Verdict{3, VehicleFault::HasWipersOutOfRange, HasWipersRange}));
}

TEST_F(VehicleChecker, LfAloneEndsNoLine) {
  EXPECT_EQ(Check("skidrun=1\nhaswipers=1\n"),
            (Verdict{1, VehicleFault::InvalidValue, NotNumeric}));
}

TEST_F(VehicleChecker, TheLastLineNeedsNoEnd) {
  EXPECT_EQ(Check("skidrun=1\r\nhaswipers=1"), Passed());
  EXPECT_EQ(Check("skidrun=1\r\nhaswipers=9"),
            (Verdict{2, VehicleFault::HasWipersOutOfRange, HasWipersRange}));
}

TEST_F(VehicleChecker, MissingDoubledAndUnorderedVariablesAreNoFault) {
  EXPECT_EQ(Check("haswipers=1\r\nskidrun=1\r\nskidrun=2\r\nacceleration=1\r\n"), Passed());
}

TEST_F(VehicleChecker, OnlyTheFirstFaultIsTold) {
  EXPECT_EQ(Check("skidrun=1\r\nskidrun=x\r\nhaswipers=9\r\nnonsense"),
            (Verdict{2, VehicleFault::InvalidValue, NotNumeric}));
}

TEST_F(VehicleChecker, AMissingFileOrFolderIsTold) {
  EXPECT_EQ(Check(), Unreadable());
  machine.files.PutFolder(Folder);
  EXPECT_EQ(Check(), Unreadable());
}

TEST_F(VehicleChecker, AFolderInPlaceOfTheFileIsToldAsMissing) {
  machine.files.PutFolder(Path);
  EXPECT_EQ(Check(), Unreadable());
}

TEST_F(VehicleChecker, AFileThatAnotherProgramHasForItselfIsToldAsMissing) {
  machine.files.Put(Path, "skidrun=1\r\n");
  machine.files.HoldAlone(Path);
  EXPECT_EQ(Check(), Unreadable());
  machine.files.Release(Path);
  EXPECT_EQ(Check(), Passed());
}

TEST_F(VehicleChecker, AFileThatAnotherProgramReadsIsChecked) {
  machine.files.Put(Path, "skidrun=1\r\n");
  machine.files.Hold(Path);
  EXPECT_EQ(Check(), Passed());
}

TEST_F(VehicleChecker, ALineOfTenMegabytesIsJudgedByTheSameRules) {
  const std::string stretch(10 << 20, 'x');
  EXPECT_EQ(Check(stretch), (Verdict{1, VehicleFault::InvalidSyntax, NoEquals}));
  EXPECT_EQ(Check("skidrun=" + stretch), (Verdict{1, VehicleFault::InvalidValue, NotNumeric}));
  EXPECT_EQ(Check("skidrun=" + std::string(10 << 20, '9')), Unreadable());
  EXPECT_EQ(Check("skidrun=1=" + stretch + "\r\nskidrun=x"),
            (Verdict{2, VehicleFault::InvalidValue, NotNumeric}));
  for (const std::string& line : {stretch + "=1", "skidrun" + stretch + "=1"}) {
    const Verdict unknown = Check("skidrun=1\r\n" + line);
    EXPECT_EQ(unknown.result, 2);
    EXPECT_EQ(unknown.code, VehicleFault::InvalidVariable);
    EXPECT_THAT(unknown.message, StartsWith("Invalid variable name (" + line.substr(0, 100)));
    EXPECT_THAT(unknown.message, testing::EndsWith("variable names are case sensitive."));
  }
  const Verdict noSound = Check("hornsound=" + stretch);
  EXPECT_EQ(noSound.result, 1);
  EXPECT_EQ(noSound.code, VehicleFault::NonexistentSound);
  EXPECT_THAT(noSound.message, StartsWith("The sound " + Folder + "\\xxx"));
}

TEST_F(VehicleChecker, TheCheckedFileStaysAsItWas) {
  const std::string bytes = "skidrun=1\r\n\r\nhaswipers=9";
  Check(bytes);
  EXPECT_EQ(machine.files.Text(Path), bytes);
  EXPECT_EQ(machine.files.Names(Folder), Names("rocket.vhc"));
}

TEST_F(VehicleChecker, MessagesComeFromTheLanguageFile) {
  machine.files.Put("C:\\Program Files\\SK2Pack\\sk2pack.lng",
                    "And=und\r\nOr=oder\r\nCVFSteeringFactorOutOfRange=Lenkfaktor von\r\n"
                    "CVFHasWipersOutOfRange=Wischer:\r\nCVFInvalidVariable1=Unbekannt\r\n"
                    "CVFInvalidVariable2=Nur klein.\r\nCVFNonexistentSoundFile1=Der Klang\r\n"
                    "CVFNonexistentSoundFile2=fehlt.\r\nCVFInvalidSyntax=Kein {sc}\r\n"
                    "CVFInvalidValue=Keine Zahl.\r\nCVFNoError=Gut.\r\n"
                    "CVFNonexistentVhcFile=Keine Datei.\r\n");
  EXPECT_EQ(Check("steeringfactor=0").message, "Lenkfaktor von 1 und 100.");
  EXPECT_EQ(Check("haswipers=9").message, "Wischer: 0 oder 1.");
  EXPECT_EQ(Check("x=9").message, "Unbekannt (x). Nur klein.");
  EXPECT_EQ(Check("hornsound=x").message, "Der Klang " + Folder + "\\x fehlt.");
  EXPECT_EQ(Check("x").message, "Kein ;");
  EXPECT_EQ(Check("skidrun=x").message, "Keine Zahl.");
  EXPECT_EQ(Check("").message, "Gut.");
  EXPECT_EQ(Check("skidrun=1E99").message, "Keine Datei.");
}

TEST_F(VehicleChecker, AHundredMegabytesAreCheckedInLittleMemory) {
  constexpr size_t Megabyte = 1 << 20;
  HostFile file;
  // Mostly lines as long as can be, for the sake of the test's speed.
  file.Repeat("skidrun=250=" + std::string(Megabyte - 100, 'x') + "\r\n", 99 * Megabyte);
  file.Repeat("acceleration=20\r\nhaswipers=1\r\nhornsound=car1\r\n", Megabyte);
  machine.files.MountHostFile(Path, file.path());
  Verdict found{};
  const auto growth = PeakMemory::Of([&] { found = Check(); });
  EXPECT_EQ(found, Passed());
  if (!growth) GTEST_SKIP() << "nobody tells how much memory is in use";
  EXPECT_LT(*growth, 16 * Megabyte);
}

TEST_F(VehicleChecker, OtherProgramsAreAnsweredBeforeEachSoundIsLookedFor) {
  const int before = machine.screen.answers;
  machine.files.Put(Folder + "\\horn.wav", "");
  EXPECT_EQ(Check("hornsound=horn.wav\r\nhornsound=horn.wav\r\nhornsound=horn.wav\r\n"), Passed());
  EXPECT_GE(machine.screen.answers, before + 3);
}

// Whatever call fails first, the checker returns a verdict of its contract.
TEST(VehicleCheckerSweep, AnyFailureIsAVerdict) {
  const std::string folder = "C:\\Games\\Skidrun2\\vehicles\\rocket";
  const std::string path = folder + "\\rocket.vhc";
  const std::string bytes = "skidrun=1\r\nhornsound=horn.wav\r\nhaswipers=1\r\n";
  const auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After after) {
    machine.files.Put(path, bytes);
    machine.files.Put(folder + "\\horn.wav", "");
    machine.FailAnyCall(after);
    Verdict found{};
    found.result = CheckVehicleFile(path, found.code, found.message);
    if (machine.FailedCall() == "Open " + path || machine.FailedCall() == "Read " + path) {
      EXPECT_EQ(found, (Verdict{-1, VehicleFault::Unreadable, NoFile}));
    } else if (machine.FailedCall().starts_with("GetInfo " + folder)) {
      EXPECT_EQ(found, (Verdict{2, VehicleFault::NonexistentSound,
                                "The sound " + folder + "\\horn.wav does not exist."}));
    } else {
      EXPECT_EQ(found, (Verdict{0, 0, NoError}));
    }
    EXPECT_EQ(machine.files.Text(path), bytes);
  });
  EXPECT_GT(calls.size(), 2U) << "hardly a call was made to fail";
}

TEST_F(VehicleChecker, SoundsLieBesideAFileWhoseNameEndsInHalfABackslash) {
  machine.locale.codePage = 932;
  const std::string path = Folder + "\\\x95\x5C.vhc";
  machine.files.Put(path, "hornsound=horn.wav\r\n");
  Verdict found{0, 0, "unset"};
  found.result = CheckVehicleFile(path, found.code, found.message);
  EXPECT_EQ(found, NoSound(1, "horn.wav"));
  machine.files.Put(Folder + "\\horn.wav", "sound");
  found = {0, 0, "unset"};
  found.result = CheckVehicleFile(path, found.code, found.message);
  EXPECT_EQ(found, Passed());
}

}  // namespace
