// What every machine promises of the small services: the program's own file, the clock, letter
// case, the named mutex, opening documents. Included once by each machine's tests.
#pragma once

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/Clock.h"
#include "platform/Executable.h"
#include "platform/LetterCase.h"
#include "platform/LocalTime.h"
#include "platform/NamedMutex.h"
#include "platform/Resources.h"
#include "platform/ShellOpen.h"
#include "tests/machine/TestMachine.h"
#include "ui/Forms.h"

class SystemContract : public ContractTest {};

TEST_F(SystemContract, TheProgramKnowsItsFolderAndItsName) {
  EXPECT_EQ(Platform::ProgramFolder(), TestMachine::FolderOfExecutable());
  EXPECT_NE(Platform::ProgramFolder().back(), '\\');
  EXPECT_EQ(Platform::ExecutableName(), TestMachine::NameOfExecutable());
  EXPECT_FALSE(Platform::ExecutableName().ends_with(".exe"));
}

TEST_F(SystemContract, TheProgramKnowsItsVersion) {
  const Platform::ProgramVersion known = Platform::ReadProgramVersion();
  const Platform::ProgramVersion true_ = TestMachine::VersionOfExecutable();
  EXPECT_EQ(known.major, true_.major);
  EXPECT_EQ(known.minor, true_.minor);
  EXPECT_EQ(known.revision, true_.revision);
  EXPECT_EQ(known.productName, true_.productName);
  EXPECT_EQ(known.fileDescription, true_.fileDescription);
}

TEST_F(SystemContract, TheClockTellsTheSecondsOfTheDay) {
  const double first = Platform::SecondsSinceMidnight();
  const double second = Platform::SecondsSinceMidnight();
  for (const double seconds : {first, second}) {
    EXPECT_GE(seconds, 0);
    EXPECT_LT(seconds, 24 * 60 * 60);
  }
  const bool isPastMidnight = second < 60 && first > 23 * 60 * 60;
  EXPECT_TRUE(second >= first || isPastMidnight);
}

TEST_F(SystemContract, CapitalLettersBecomeSmallOnesBeyondAsciiToo) {
  EXPECT_EQ(Platform::LowerCase(""), "");
  EXPECT_EQ(Platform::LowerCase("C:\\Tracks\\HILL [1] @Z_09.Trk"),
            "c:\\tracks\\hill [1] @z_09.trk");
  EXPECT_EQ(Platform::LowerCase("\xC4RGER \xC9T\xC9 \xD1 \xD7 \xDF \xE4"),
            "\xE4rger \xE9t\xE9 \xF1 \xD7 \xDF \xE4");
}

// Whatever the zone of the machine is, summer time included.
TEST_F(SystemContract, LocalTimesAreThoseOfATimeZone) {
  constexpr uint64_t Minute = 60 * uint64_t{10'000'000};
  constexpr uint64_t Day = 24 * 60 * Minute;
  for (const uint64_t moment : {133'000'000'123'456'789u, 133'160'000'000'000'000u}) {
    const uint64_t shown = Platform::ToLocalTime(moment);
    EXPECT_EQ((shown - moment) % Minute, 0u);
    EXPECT_LE(shown - (moment - Day), 2 * Day);
    EXPECT_EQ(Platform::FromLocalTime(shown), moment);
  }
}

TEST_F(SystemContract, TimesBeyondTheCalendarStayAsTheyAre) {
  const uint64_t never = ~uint64_t{0};
  EXPECT_EQ(Platform::FromLocalTime(Platform::ToLocalTime(never)), never);
}

TEST_F(SystemContract, AMutexIsHeldAndMayBeHeldTwice) {
  const std::string name = "SK2PackContractTest";
  EXPECT_FALSE(TestMachine::HasMutex(name));
  Platform::HoldNamedMutex(name);
  EXPECT_TRUE(TestMachine::HasMutex(name));
  EXPECT_NO_THROW(Platform::HoldNamedMutex(name));
}

TEST_F(SystemContract, ANameThatTheSystemRefusesFails) {
  try {
    Platform::HoldNamedMutex("No\\Such\\Place");
    ADD_FAILURE() << "did not fail";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), RuntimeError::DeviceError);
  }
}

TEST_F(SystemContract, TheProgramReadsWhatItCarriesWhateverTheLetterCase) {
  const std::string name = TestMachine::NameOfResource();
  const std::string bytes = TestMachine::BytesOfResource();
  EXPECT_EQ(Platform::ReadResource(Platform::SoundResource, name), bytes);
  EXPECT_EQ(Platform::ReadResource(Platform::SoundResource, Text::LowerAscii(name)), bytes);
  EXPECT_EQ(Platform::ReadResource(Platform::SoundResource, "CONTRACTSOUND"), bytes);
}

TEST_F(SystemContract, WhatTheProgramDoesNotCarryIsNotThere) {
  const std::string name = TestMachine::NameOfResource();
  EXPECT_EQ(Platform::ReadResource(Platform::SoundResource + 1, name), std::nullopt);
  for (const std::string& other : {name + "s", name.substr(1), std::string("car9engine"),
                                   std::string(), std::string("#1"), std::string("#")}) {
    EXPECT_EQ(Platform::ReadResource(Platform::SoundResource, other), std::nullopt) << other;
  }
}

class ShellOpenContract : public ContractTest {
 protected:
  ShellOpenContract() { Platform::StartProgram(owner); }

  const std::string folder = TestMachine::ScratchFolder();
  Platform::Form owner{FixedText("Owner")};
};

TEST_F(ShellOpenContract, ADocumentIsOpenedAsOneArgumentWhateverItsNameHolds) {
  const std::string path = folder + "\\a b & c (d)" + TestMachine::DocumentExtension();
  TestMachine::PutFile(path, "1");
  Platform::ShellOpen(path);
  EXPECT_EQ(TestMachine::OpenedDocument(), path);
}

TEST_F(ShellOpenContract, WhatIsNotThereIsToldByTheSystemOverTheWindow) {
  std::string told;
  TestMachine::WhenModalWindowOpens([&] {
    told = TestMachine::MessageBoxOnScreen().text;
    TestMachine::Press("Enter");
  });
  EXPECT_NO_THROW(Platform::ShellOpen(folder + "\\no such" + TestMachine::DocumentExtension()));
  EXPECT_NE(told, "");
  EXPECT_EQ(TestMachine::VisibleWindows(), std::vector<std::string>{"Owner"});
}
