// What every machine promises any program: its own file, the clock, letter case and local times.
// Included once by each machine's tests.
#pragma once

#include <gtest/gtest.h>

#include "platform/Clock.h"
#include "platform/Executable.h"
#include "platform/LetterCase.h"
#include "platform/LocalTime.h"
#include "tests/machine/TestMachine.h"

class ProgramContract : public ContractTest {};

TEST_F(ProgramContract, TheProgramKnowsItsFolderAndItsName) {
  EXPECT_EQ(Platform::ProgramFolder(), TestMachine::FolderOfExecutable());
  EXPECT_NE(Platform::ProgramFolder().back(), '\\');
  EXPECT_EQ(Platform::ExecutableName(), TestMachine::NameOfExecutable());
  EXPECT_FALSE(Platform::ExecutableName().ends_with(".exe"));
}

TEST_F(ProgramContract, TheProgramKnowsItsVersion) {
  const Platform::ProgramVersion known = Platform::ReadProgramVersion();
  const Platform::ProgramVersion true_ = TestMachine::VersionOfExecutable();
  EXPECT_EQ(known.major, true_.major);
  EXPECT_EQ(known.minor, true_.minor);
  EXPECT_EQ(known.revision, true_.revision);
  EXPECT_EQ(known.productName, true_.productName);
  EXPECT_EQ(known.fileDescription, true_.fileDescription);
}

TEST_F(ProgramContract, TheClockTellsTheSecondsOfTheDay) {
  const double first = Platform::SecondsSinceMidnight();
  const double second = Platform::SecondsSinceMidnight();
  for (const double seconds : {first, second}) {
    EXPECT_GE(seconds, 0);
    EXPECT_LT(seconds, 24 * 60 * 60);
  }
  const bool isPastMidnight = second < 60 && first > 23 * 60 * 60;
  EXPECT_TRUE(second >= first || isPastMidnight);
}

TEST_F(ProgramContract, CapitalLettersBecomeSmallOnesBeyondAsciiToo) {
  EXPECT_EQ(Platform::LowerCase(""), "");
  EXPECT_EQ(Platform::LowerCase("C:\\Tracks\\HILL [1] @Z_09.Trk"),
            "c:\\tracks\\hill [1] @z_09.trk");
  EXPECT_EQ(Platform::LowerCase("\xC4RGER \xC9T\xC9 \xD1 \xD7 \xDF \xE4"),
            "\xE4rger \xE9t\xE9 \xF1 \xD7 \xDF \xE4");
}

// Whatever the zone of the machine is, summer time included.
TEST_F(ProgramContract, LocalTimesAreThoseOfATimeZone) {
  constexpr uint64_t Minute = 60 * uint64_t{10'000'000};
  constexpr uint64_t Day = 24 * 60 * Minute;
  for (const uint64_t moment : {133'000'000'123'456'789u, 133'160'000'000'000'000u}) {
    const uint64_t shown = Platform::ToLocalTime(moment);
    EXPECT_EQ((shown - moment) % Minute, 0u);
    EXPECT_LE(shown - (moment - Day), 2 * Day);
    EXPECT_EQ(Platform::FromLocalTime(shown), moment);
  }
}

TEST_F(ProgramContract, TimesBeyondTheCalendarStayAsTheyAre) {
  const uint64_t never = ~uint64_t{0};
  EXPECT_EQ(Platform::FromLocalTime(Platform::ToLocalTime(never)), never);
}
