#include "base/Maths.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/RuntimeError.h"

namespace {

TEST(Maths, ToInt32TakesTheNearestWholeNumber) {
  EXPECT_EQ(Maths::ToInt32(2.4999999), 2);
  EXPECT_EQ(Maths::ToInt32(2.5000001), 3);
  EXPECT_EQ(Maths::ToInt32(-2.4), -2);
  EXPECT_EQ(Maths::ToInt32(-0.0), 0);
}

TEST(Maths, ToInt32TakesHalvesToEven) {
  EXPECT_EQ(Maths::ToInt32(0.5), 0);
  EXPECT_EQ(Maths::ToInt32(1.5), 2);
  EXPECT_EQ(Maths::ToInt32(2.5), 2);
  EXPECT_EQ(Maths::ToInt32(3.5), 4);
  EXPECT_EQ(Maths::ToInt32(-0.5), 0);
  EXPECT_EQ(Maths::ToInt32(-1.5), -2);
  EXPECT_EQ(Maths::ToInt32(-2.5), -2);
}

TEST(Maths, ToInt32ReachesFromEndToEndOf32Bits) {
  EXPECT_EQ(Maths::ToInt32(2147483647.0), 2147483647);
  EXPECT_EQ(Maths::ToInt32(2147483647.4999), 2147483647);
  EXPECT_EQ(Maths::ToInt32(-2147483648.0), std::numeric_limits<int32_t>::min());
  EXPECT_EQ(Maths::ToInt32(-2147483648.5), std::numeric_limits<int32_t>::min());
}

TEST(Maths, ToInt32FailsBeyond32Bits) {
  for (const double value : {2147483647.5, 2147483648.0, -2147483648.500001, 1e300,
                             std::numeric_limits<double>::infinity(),
                             -std::numeric_limits<double>::infinity(), std::nan("")}) {
    try {
      Maths::ToInt32(value);
      ADD_FAILURE() << value;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), RuntimeError::Overflow) << value;
    }
  }
}

}  // namespace
