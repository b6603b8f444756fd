// Times as text: the words, the colons, and every fraction of a second.
#include "records/TimeConverter.h"

#include <cinttypes>
#include <cstdio>

#include "records/TimeParts.h"
#include "tests/Story.h"

namespace {

class TimeConverterStory : public Story {
 protected:
  static std::string Words(int32_t milliseconds) {
    return TimeConverter(milliseconds, TimeForm::Words);
  }
  static std::string Colons(int32_t milliseconds) {
    return TimeConverter(milliseconds, TimeForm::Colons);
  }
};

// Seconds by way of a text with all three digits of the fraction, from which zeros are then taken.
std::string ExpectedSeconds(int32_t milliseconds) {
  char text[32];
  const int32_t positive = milliseconds < 0 ? -milliseconds : milliseconds;
  std::snprintf(text, sizeof text, "%s%" PRId32 ".%03" PRId32, milliseconds < 0 ? "-" : "",
                positive / 1000, positive % 1000);
  std::string seconds = text;
  while (seconds.back() == '0') seconds.pop_back();
  if (seconds.back() == '.') seconds.pop_back();
  return seconds;
}

std::string ExpectedColons(const TimeParts& parts) {
  return std::to_string(parts.hours) + ":" + std::to_string(parts.minutes) + ":" +
         ExpectedSeconds(parts.milliseconds);
}

std::string ExpectedWords(const TimeParts& parts) {
  std::string words;
  if (parts.hours == 1) words += "1 hour, ";
  if (parts.hours > 1) words += std::to_string(parts.hours) + " hours, ";
  if (parts.minutes == 1) words += "1 minute, ";
  if (parts.minutes > 1) words += std::to_string(parts.minutes) + " minutes, ";
  if (parts.milliseconds == 1000) words += "1 second";
  if (parts.milliseconds > 1000) words += ExpectedSeconds(parts.milliseconds) + " seconds";
  return words;
}

TEST_F(TimeConverterStory, SpellsOutHoursMinutesAndSeconds) {
  EXPECT_EQ(Words(61000), "1 minute, 1 second");
  EXPECT_EQ(Words(125500), "2 minutes, 5.5 seconds");
  EXPECT_EQ(Words(72345), "1 minute, 12.345 seconds");
  EXPECT_EQ(Words(3661000), "1 hour, 1 minute, 1 second");
  EXPECT_EQ(Words(7325250), "2 hours, 2 minutes, 5.25 seconds");
}

TEST_F(TimeConverterStory, LeavesOutWhatIsBelowOne) {
  EXPECT_EQ(Words(0), "");
  EXPECT_EQ(Words(500), "");
  EXPECT_EQ(Words(999), "");
  EXPECT_EQ(Words(1000), "1 second");
  EXPECT_EQ(Words(1001), "1.001 seconds");
  EXPECT_EQ(Words(3600000), "1 hour, ");
  EXPECT_EQ(Words(120000), "2 minutes, ");
  EXPECT_EQ(Words(60999), "1 minute, ");
}

TEST_F(TimeConverterStory, KeepsTheHalvesThatWereRoundedToEven) {
  EXPECT_EQ(Words(90000), "1 minute, 30 seconds");
  EXPECT_EQ(Words(150000), "1 minute, 30 seconds");
  EXPECT_EQ(Words(30000), "30 seconds");
  EXPECT_EQ(Words(90 * 60000), "1 hour, 30 minutes, ");
  EXPECT_EQ(Words(150 * 60000), "1 hour, 30 minutes, ");
  EXPECT_EQ(Words(30 * 60000), "30 minutes, ");
  EXPECT_EQ(Words(3585000), "1 hour, 45 seconds");
}

TEST_F(TimeConverterStory, SeparatesByColons) {
  EXPECT_EQ(Colons(0), "0:0:0");
  EXPECT_EQ(Colons(72345), "0:1:12.345");
  EXPECT_EQ(Colons(3661000), "1:1:1");
  EXPECT_EQ(Colons(10), "0:0:0.01");
  EXPECT_EQ(Colons(30 * 60000), "-1:30:0");
  EXPECT_EQ(Colons(-61000), "0:-1:-1");
  EXPECT_EQ(Colons(-500), "0:0:-0.5");
}

TEST_F(TimeConverterStory, HasNoWordsForNegativeTimes) {
  EXPECT_EQ(Words(-500), "");
  EXPECT_EQ(Words(-61000), "");
  EXPECT_EQ(Words(INT32_MIN), "");
}

TEST_F(TimeConverterStory, MarksDecimalsByAPointInEveryLocale) {
  machine.locale.SetSeparators(",", ".");
  EXPECT_EQ(Words(72345), "1 minute, 12.345 seconds");
}

TEST_F(TimeConverterStory, SpeaksTheUsersLanguage) {
  machine.files.Put(machine.executable.folder + "\\sk2pack.lng",
                    "Hour=Stunde\r\nMinutes=Minuten\r\nSecond=Sekunde\r\nSeconds=Sekunden\r\n");
  EXPECT_EQ(Words(3601000), "1 Stunde, 1 Sekunde");
  EXPECT_EQ(Words(125500), "2 Minuten, 5.5 Sekunden");
}

// How each time divides is TimePartsTests' business; here, what becomes of each part as text.
TEST_F(TimeConverterStory, ShowsEveryMillisecondOfAMinuteWithoutDust) {
  for (int32_t time = 61 * 60000; time < 62 * 60000; ++time) {
    ASSERT_EQ(Colons(time), ExpectedColons(Divide(time)));
  }
  for (int32_t time = 61 * 60000; time < 62 * 60000; time += 7) {
    ASSERT_EQ(Words(time), ExpectedWords(Divide(time)));
    ASSERT_EQ(Colons(-time), ExpectedColons(Divide(-time)));
  }
}

TEST_F(TimeConverterStory, ShowsTimesOfTheWholeRangeWithoutDust) {
  for (int64_t time = INT32_MIN; time <= INT32_MAX; time += 655211) {  // a prime
    const auto milliseconds = static_cast<int32_t>(time);
    ASSERT_EQ(Words(milliseconds), ExpectedWords(Divide(milliseconds)));
    ASSERT_EQ(Colons(milliseconds), ExpectedColons(Divide(milliseconds)));
  }
}

}  // namespace
