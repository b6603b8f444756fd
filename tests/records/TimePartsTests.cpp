// How times divide into hours, minutes and seconds, against a reference that works differently.
#include "records/TimeParts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <ostream>

std::ostream& operator<<(std::ostream& out, const TimeParts& parts) {
  return out << parts.hours << " h " << parts.minutes << " min " << parts.milliseconds << " ms";
}

namespace {

constexpr int32_t ThreeHours = 3 * 60 * 60 * 1000;
constexpr int32_t Lowest = std::numeric_limits<int32_t>::min();
constexpr int32_t Highest = std::numeric_limits<int32_t>::max();

// The whole number nearest to a fraction, found by comparing its distances from the whole numbers
// below and above it; at equal distances the even one.
int64_t Nearest(int64_t numerator, int64_t denominator) {
  int64_t below = numerator / denominator;
  if (below * denominator > numerator) --below;
  const int64_t above = below + 1;
  const int64_t toBelow = numerator - below * denominator;
  const int64_t toAbove = above * denominator - numerator;
  if (toBelow == toAbove) return below % 2 == 0 ? below : above;
  return toBelow < toAbove ? below : above;
}

// What is left of a number once all whole multiples of a divisor are taken from its absolute value.
int64_t Remainder(int64_t number, int64_t divisor) {
  return number < 0 ? -(-number % divisor) : number % divisor;
}

TimeParts Expected(int64_t milliseconds) {
  const int64_t totalMinutes = Nearest(milliseconds, 60 * 1000);
  int64_t hours = Nearest(totalMinutes, 60);
  int64_t minutes = Remainder(totalMinutes, 60);
  const int64_t rest = Remainder(milliseconds, 60 * 1000);
  if (rest >= 30 * 1000) minutes -= 1;
  if (minutes >= 30) hours -= 1;
  return {static_cast<int32_t>(hours), static_cast<int32_t>(minutes), static_cast<int32_t>(rest)};
}

// The rule in the arithmetic of doubles. The seconds are exact only to the last binary digits.
TimeParts ExpectedOfDoubles(int32_t milliseconds) {
  const double s = milliseconds / 1000.0;
  const double totalMinutes = std::nearbyint(s / 60);
  double hours = std::nearbyint(totalMinutes / 60);
  double minutes = std::nearbyint(std::fmod(totalMinutes, 60));
  const double secs = std::fmod(s, 60);
  if (secs >= 30) minutes -= 1;
  if (minutes >= 30) hours -= 1;
  return {static_cast<int32_t>(hours), static_cast<int32_t>(minutes),
          static_cast<int32_t>(std::lround(secs * 1000))};
}

// Compares the times from the first up to the last, a step apart. True if all agree.
bool Agree(int64_t first, int64_t last, int64_t step) {
  for (int64_t time = first; time <= last; time += step) {
    const int32_t milliseconds = static_cast<int32_t>(time);
    const TimeParts parts = Divide(milliseconds);
    if (parts == Expected(milliseconds) && parts == ExpectedOfDoubles(milliseconds)) continue;
    ADD_FAILURE() << milliseconds << " gives " << parts << ", not " << Expected(milliseconds)
                  << "; by doubles " << ExpectedOfDoubles(milliseconds);
    return false;
  }
  return true;
}

}  // namespace

TEST(TimeParts, TakeOneOffWhateverTheRoundingDid) {
  EXPECT_EQ(Divide(90000), (TimeParts{0, 1, 30000}));   // 1.5 minutes, rounded up to 2
  EXPECT_EQ(Divide(150000), (TimeParts{0, 1, 30000}));  // 2.5 minutes, rounded down to 2
  EXPECT_EQ(Divide(210000), (TimeParts{0, 3, 30000}));  // 3.5 minutes, rounded up to 4
  EXPECT_EQ(Divide(30000), (TimeParts{0, -1, 30000}));  // half a minute, rounded down to 0
  EXPECT_EQ(Divide(29999), (TimeParts{0, 0, 29999}));
  EXPECT_EQ(Divide(30001), (TimeParts{0, 0, 30001}));
}

TEST(TimeParts, TakeAnHourOffFromThirtyMinutesOn) {
  EXPECT_EQ(Divide(30 * 60000), (TimeParts{-1, 30, 0}));  // half an hour, rounded down to 0
  EXPECT_EQ(Divide(31 * 60000), (TimeParts{0, 31, 0}));
  EXPECT_EQ(Divide(90 * 60000), (TimeParts{1, 30, 0}));              // 1.5 hours, rounded up to 2
  EXPECT_EQ(Divide(150 * 60000), (TimeParts{1, 30, 0}));             // 2.5 hours, rounded down to 2
  EXPECT_EQ(Divide(89 * 60000 + 45000), (TimeParts{2, 29, 45000}));  // the minutes escape the rule
}

TEST(TimeParts, KeepAMinuteLessThanNoneBeforeAFullHour) {
  EXPECT_EQ(Divide(3585000), (TimeParts{1, -1, 45000}));
}

TEST(TimeParts, FollowTheArithmeticOfDoublesBelowZero) {
  EXPECT_EQ(Divide(-500), (TimeParts{0, 0, -500}));
  EXPECT_EQ(Divide(-61000), (TimeParts{0, -1, -1000}));
  EXPECT_EQ(Divide(-90000), (TimeParts{0, -2, -30000}));
  EXPECT_EQ(Divide(-150000), (TimeParts{0, -2, -30000}));
  EXPECT_EQ(Divide(Lowest), Expected(Lowest));
}

TEST(TimeParts, AreRightAtEveryMillisecondOfThreeHours) {
  EXPECT_TRUE(Agree(0, ThreeHours, 1));
}

TEST(TimeParts, AreRightOverTheWholeRange) {
  EXPECT_TRUE(Agree(Lowest, Highest, 4999));  // a prime: every remainder comes by
  EXPECT_TRUE(Agree(Highest - 60000, Highest, 1));
  EXPECT_TRUE(Agree(Lowest, Lowest + 60000, 1));
  EXPECT_TRUE(Agree(-60000, 60000, 1));
}

TEST(TimeParts, AreRightAroundEveryHalfMinuteOfTheRange) {
  for (int64_t half = -71580; half <= 71580; ++half) {
    if (!Agree(half * 30000 - 1, half * 30000 + 1, 1)) break;
  }
}
