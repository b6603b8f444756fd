#include "internet/AddressPage.h"

#include <gtest/gtest.h>

#include "base/RuntimeError.h"

namespace {

using AddressPage::AddressIn;

const std::string Before = "0.1.2.3.4.5.6.7.8.9.10.";  // the fields before the address

TEST(AddressPage, TellsTheAddressBehindElevenDots) {
  EXPECT_EQ(AddressIn(Before + "Your address:   83.12.1.200 end"), "83.12.1.200");
  EXPECT_EQ(AddressIn(Before + "Your address:   83.12.1.200 end\r\n"), "83.12.1.200");
}

TEST(AddressPage, TakesFourCharactersOfTheFirstAndOfTheLastField) {
  EXPECT_EQ(AddressIn(Before + "12345.6.7.89012"), "2345.6.7.8901");
  EXPECT_EQ(AddressIn(Before + "1234.6.7.8901"), "1234.6.7.8901");
  EXPECT_EQ(AddressIn(Before + "123.6.7.890"), "123.6.7.890");
  EXPECT_EQ(AddressIn(Before + ".6.7."), ".6.7.");
}

TEST(AddressPage, KeepsWhateverElseFallsIntoThem) {
  EXPECT_EQ(AddressIn(Before + "<b>83.12.1.200<br>"), "b>83.12.1.200<");
  EXPECT_EQ(AddressIn(Before + "at\t83.long second field. third .200 "),
            "t\t83.long second field. third .200");
}

TEST(AddressPage, IsCutAtEveryDotBehindTheAddressToo) {
  EXPECT_EQ(AddressIn(Before + "1.2.3.4.5.6.7"), "1.2.3.4");
}

TEST(AddressPage, TellsTheAddressOfItsLastLine) {
  EXPECT_EQ(AddressIn(Before + "1.2.3.4\r\n" + Before + "5.6.7.8\r" + Before + "9.10.11.12"),
            "9.10.11.12");
}

TEST(AddressPage, IsOneLineWhereOnlyLineFeedsStand) {
  EXPECT_EQ(AddressIn("0.1.2\n.3.4.5.6\n.7.8.9.10.1.2.3.4"), "1.2.3.4");
}

TEST(AddressPage, ThatIsEmptyTellsNone) {
  EXPECT_EQ(AddressIn(""), "");
}

TEST(AddressPage, WithALineOfFewerThan15FieldsIsNotUnderstood) {
  for (const std::string& page :
       {std::string("sold"), Before + "1.2.3", Before + "1.2.3.4\r\n\r\n" + Before + "1.2.3.4",
        std::string("\r\n"), std::string(13, '.'), Before + "1.2.3.4\r\nend"}) {
    try {
      AddressIn(page);
      ADD_FAILURE() << "did not fail: " << page;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), RuntimeError::SubscriptOutOfRange);
      EXPECT_STREQ(error.cause().key, "AddressPageNotUnderstood");
    }
  }
  EXPECT_EQ(AddressIn(std::string(14, '.')), "...");
}

}  // namespace
