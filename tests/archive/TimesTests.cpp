#include "archive/Times.h"

#include "tests/Story.h"

namespace {

class TimesStory : public Story {
 protected:
  static uint32_t Dos(uint32_t years, uint32_t month, uint32_t day, uint32_t hours,
                      uint32_t minutes, uint32_t seconds) {
    return years << 25 | month << 21 | day << 16 | hours << 11 | minutes << 5 | seconds / 2;
  }
};

TEST_F(TimesStory, ATimeOfTwoSecondsGoesThereAndBack) {
  for (const uint32_t time : {Dos(0, 1, 1, 0, 0, 0), Dos(46, 10, 31, 12, 0, 2),
                              Dos(46, 2, 28, 23, 59, 58), Dos(44, 2, 29, 0, 1, 0)}) {
    const auto found = Archive::FromDosTime(time);
    ASSERT_TRUE(found);
    EXPECT_EQ(Archive::DosTimeOf(*found), time);
  }
}

TEST_F(TimesStory, ATimeThatNoClockShowsIsNone) {
  EXPECT_FALSE(Archive::FromDosTime(Dos(46, 10, 31, 24, 0, 0)));
  EXPECT_FALSE(Archive::FromDosTime(Dos(46, 10, 31, 23, 60, 0)));
  EXPECT_FALSE(Archive::FromDosTime(Dos(46, 10, 31, 23, 59, 60)));
  EXPECT_FALSE(Archive::FromDosTime(Dos(46, 10, 31, 0, 0, 62)));
}

TEST_F(TimesStory, ADayThatNoCalendarHasIsNone) {
  EXPECT_FALSE(Archive::FromDosTime(0));
  EXPECT_FALSE(Archive::FromDosTime(Dos(46, 0, 1, 0, 0, 0)));
  EXPECT_FALSE(Archive::FromDosTime(Dos(46, 13, 1, 0, 0, 0)));
  EXPECT_FALSE(Archive::FromDosTime(Dos(46, 2, 29, 0, 0, 0)));
}

}  // namespace
