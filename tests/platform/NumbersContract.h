// What every machine takes for a number, by the user's separators. Included once by each machine's
// tests.
#pragma once

#include <gtest/gtest.h>

#include <limits>

#include "base/RuntimeError.h"
#include "platform/Numbers.h"
#include "tests/machine/TestMachine.h"

class NumbersContract : public ContractTest {
 protected:
  NumbersContract() { TestMachine::SetSeparators(".", ","); }

  struct Case {
    const char* text;
    double value;
  };

  template <size_t Count>
  static void ExpectValues(const Case (&cases)[Count]) {
    for (const auto& [text, value] : cases) {
      const auto number = Platform::ParseNumber(text);
      ASSERT_TRUE(number) << '"' << text << '"';
      EXPECT_DOUBLE_EQ(*number, value) << '"' << text << '"';
    }
  }

  template <size_t Count>
  static void ExpectNoNumbers(const char* const (&texts)[Count]) {
    for (const char* text : texts) {
      EXPECT_EQ(Platform::ParseNumber(text), std::nullopt) << '"' << text << '"';
    }
  }

  static constexpr double Infinite = std::numeric_limits<double>::infinity();
};

TEST_F(NumbersContract, TakesPlainNumbers) {
  ExpectValues({{"1", 1},
                {"0", 0},
                {"00012", 12},
                {"1.5", 1.5},
                {".5", 0.5},
                {"5.", 5},
                {"1.5e2", 150},
                {"1e3", 1000},
                {"1E+3", 1000},
                {"1e-3", 0.001},
                {"4294967296", 4294967296.0},
                {"99999999999999999999999999999999", 1e32}});
}

TEST_F(NumbersContract, TakesASignBeforeOrBehind) {
  ExpectValues({{"+1", 1},
                {"-1", -1},
                {"- 1", -1},
                {"1-", -1},
                {"1 -", -1},
                {"1+", 1},
                {"-0", 0},
                {"+-1", -1}});
}

TEST_F(NumbersContract, TakesParenthesesForANegativeNumber) {
  ExpectValues({{"(1)", -1}, {"( 1 )", -1}, {"(-1)", -1}, {"-(1)", -1}});
}

TEST_F(NumbersContract, TakesWhiteSpaceAround) {
  ExpectValues({{" 1 ", 1}, {"\t1\t", 1}, {"1\n", 1}, {"\n1", 1}, {"1\r", 1}, {"  -7  ", -7}});
}

TEST_F(NumbersContract, TakesTheCurrencySign) {
  ExpectValues({{"$1", 1}, {"1$", 1}, {"$ 1", 1}, {"-$1", -1}, {"$-1", -1}});
}

TEST_F(NumbersContract, SkipsThousandsSeparatorsWhereverTheyStand) {
  ExpectValues({{"1,000", 1000},
                {"1,5", 15},
                {"1,2,3", 123},
                {"1,", 1},
                {"5,", 5},
                {"1,,0", 10},
                {"1,000.5", 1000.5},
                {"1.5,0", 1.5},
                {"1.000,5", 1.0005}});
}

TEST_F(NumbersContract, TakesHexadecimalAndOctalDigits) {
  ExpectValues({{"&H10", 16},
                {"&hFF", 255},
                {"&O17", 15},
                {"&HFFFF", 65535},
                {"&H7FFFFFFF", 2147483647},
                {"&H10e1", 4321},
                {"(&H10)", 16},
                {"-&H10", 16},
                {"&H10-", 16}});
}

TEST_F(NumbersContract, TakesADoublesRange) {
  ExpectValues({{"1e300", 1e300}, {"1e-300", 1e-300}, {"1e-400", 0}});
  EXPECT_EQ(Platform::ParseNumber("1e400"), Infinite);
  EXPECT_EQ(Platform::ParseNumber("&HFFFFFFFF"), Infinite);
}

TEST_F(NumbersContract, RefusesWhatIsNoNumber) {
  ExpectNoNumbers({"",    " ",        "abc",   ",1",    ",5",  "1e", "1e+", "1e 3", "1d3", "0x10",
                   "1 2", "infinity", "nan",   "1.5.5", "--1", "-",  "+",   ".",    "&",   "&H",
                   "&HG", "&O8",      "&H10)", "1%",    "1&",  "1#", "1!",  "1;",   "one", "1.e"});
}

TEST_F(NumbersContract, ANulIsNoNumber) {
  using std::string_view_literals::operator""sv;
  EXPECT_EQ(Platform::ParseNumber("1\0"sv), std::nullopt);
  EXPECT_EQ(Platform::ParseNumber("1\0002"sv), std::nullopt);
  EXPECT_EQ(Platform::ParseNumber("\0"sv), std::nullopt);
}

TEST_F(NumbersContract, FollowsADecimalComma) {
  TestMachine::SetSeparators(",", ".");
  ExpectValues({{"1,5", 1.5},
                {"-1,5", -1.5},
                {",5", 0.5},
                {"5,", 5},
                {"1.000", 1000},
                {"1.5", 15},
                {"1.000,5", 1000.5},
                {"1,5e2", 150},
                {"12", 12}});
  ExpectNoNumbers({"1,5,5", ".5"});
}

TEST_F(NumbersContract, FollowsABlankBetweenThousands) {
  TestMachine::SetSeparators(",", "\xA0");  // the blank that does not break a line
  ExpectValues({{"1\xA0"
                 "000,5",
                 1000.5},
                {"1,5", 1.5}});
}

TEST_F(NumbersContract, ShortPlainIntegersGiveWhatTheSystemsParserGives) {
  for (const char* separators : {".,", ",."}) {
    TestMachine::SetSeparators(std::string(1, separators[0]), std::string(1, separators[1]));
    for (const char* text : {"0", "-0", "7", "-7", "007", "999999999", "-999999999", "-", ""}) {
      EXPECT_EQ(Platform::ParseNumber(text), Platform::ParseLocaleNumber(text)) << text;
    }
  }
}

TEST_F(NumbersContract, ConvertsToWholeNumbersWithHalvesToEven) {
  EXPECT_EQ(Platform::ParseInt32("2.5"), 2);
  EXPECT_EQ(Platform::ParseInt32("3.5"), 4);
  EXPECT_EQ(Platform::ParseInt32("(2.5)"), -2);
  EXPECT_EQ(Platform::ParseInt32("2,147,483,647.4"), 2147483647);
  EXPECT_EQ(Platform::ParseInt32("-2147483648"), -2147483647 - 1);
}

TEST_F(NumbersContract, TellsWhyATextIsNoWholeNumber) {
  const auto failureOf = [](const char* text) {
    try {
      Platform::ParseInt32(text);
    } catch (const RuntimeError& error) {
      return static_cast<int>(error.number());
    }
    return 0;
  };
  EXPECT_EQ(failureOf("abc"), RuntimeError::TypeMismatch);
  EXPECT_EQ(failureOf(""), RuntimeError::TypeMismatch);
  EXPECT_EQ(failureOf("2147483648"), RuntimeError::Overflow);
  EXPECT_EQ(failureOf("2147483647.5"), RuntimeError::Overflow);
  EXPECT_EQ(failureOf("1e400"), RuntimeError::Overflow);
  EXPECT_EQ(failureOf("&HFFFFFFFF"), RuntimeError::Overflow);
}
