#include "platform/RandomRange.h"

#include <limits>
#include <set>

#include "base/PerRun.h"
#include "tests/Story.h"

namespace {

using Platform::RandomRange;

class RandomRangeStory : public Story {};

TEST_F(RandomRangeStory, TheLowEndIsReachedAndTheHighEndIsNot) {
  std::set<int32_t> seen;
  for (int i = 0; i < 10000; ++i) seen.insert(RandomRange(-2, 3));
  EXPECT_EQ(seen, (std::set<int32_t>{-2, -1, 0, 1, 2}));
}

TEST_F(RandomRangeStory, ARangeOfOneHasOneValue) {
  for (int i = 0; i < 100; ++i) EXPECT_EQ(RandomRange(7, 8), 7);
}

TEST_F(RandomRangeStory, TheWidestRangeHasBothHalvesAndNoOverflow) {
  constexpr int32_t Low = std::numeric_limits<int32_t>::min();
  constexpr int32_t High = std::numeric_limits<int32_t>::max();
  int negative = 0;
  for (int i = 0; i < 10000; ++i) {
    const int32_t value = RandomRange(Low, High);
    EXPECT_LT(value, High);
    if (value < 0) ++negative;
  }
  EXPECT_NEAR(negative, 5000, 300);
}

TEST_F(RandomRangeStory, AStandingClockDoesNotRepeatItself) {
  std::set<int32_t> seen;
  for (int i = 0; i < 1000; ++i) seen.insert(RandomRange(0, 1 << 30));
  EXPECT_EQ(seen.size(), 1000u);
}

TEST_F(RandomRangeStory, EveryDrawDependsOnTheTimeOfDay) {
  std::vector<int32_t> first;
  for (const double now : {1.0, 1.25}) {
    machine.clock.Set(now);
    RunObjects::End();
    first.push_back(RandomRange(0, 1 << 30));
  }
  EXPECT_NE(first[0], first[1]);
}

TEST_F(RandomRangeStory, ATimeThatComesBackDoesNotBringItsDrawsBack) {
  std::set<int32_t> seen;
  for (int i = 0; i < 1000; ++i) {
    machine.clock.Set(i % 2);
    seen.insert(RandomRange(0, 1 << 30));
  }
  EXPECT_EQ(seen.size(), 1000u);
}

}  // namespace
