// What every machine promises of the registry. Included once by each machine's tests.
#pragma once

#include <gtest/gtest.h>

#include "platform/Registry.h"
#include "tests/machine/TestMachine.h"

using Platform::QueryRegistryValue;
using Platform::RegistryRoot;
using Platform::RegistryType;
using Platform::RegistryView;

class RegistryContract : public ContractTest {
 protected:
  void Put(RegistryView view, const std::string& name, RegistryType type,
           const std::string& bytes) {
    TestMachine::PutRegistryValue(RegistryRoot::LocalMachine, view, subkey, name, {type, bytes});
  }

  std::optional<Platform::RegistryValue> Query(RegistryView view, const std::string& name,
                                               size_t capacity = 1024) {
    return QueryRegistryValue(RegistryRoot::LocalMachine, view, subkey, name, capacity);
  }

  const std::string subkey = TestMachine::ScratchSubkey();
};

TEST_F(RegistryContract, GivesAStringAsItIsStored) {
  Put(RegistryView::Of32Bit, "WithNul", RegistryType::String, std::string("C:\\Games\0", 9));
  Put(RegistryView::Of32Bit, "WithoutNul", RegistryType::String, "C:\\Games");
  const auto withNul = Query(RegistryView::Of32Bit, "WithNul");
  ASSERT_TRUE(withNul);
  EXPECT_EQ(withNul->type, RegistryType::String);
  EXPECT_EQ(withNul->bytes, std::string("C:\\Games\0", 9));
  const auto withoutNul = Query(RegistryView::Of32Bit, "WithoutNul");
  ASSERT_TRUE(withoutNul);
  EXPECT_EQ(withoutNul->bytes, "C:\\Games");
}

TEST_F(RegistryContract, GivesANumberInFourBytes) {
  Put(RegistryView::Of32Bit, "Number", RegistryType::Number, std::string("\x01\x02\x03\xFF", 4));
  const auto number = Query(RegistryView::Of32Bit, "Number");
  ASSERT_TRUE(number);
  EXPECT_EQ(number->type, RegistryType::Number);
  EXPECT_EQ(number->bytes, std::string("\x01\x02\x03\xFF", 4));
}

TEST_F(RegistryContract, GivesOtherTypesAsSuch) {
  Put(RegistryView::Of32Bit, "Binary", RegistryType::Other, std::string("\0\1\2", 3));
  const auto value = Query(RegistryView::Of32Bit, "Binary");
  ASSERT_TRUE(value);
  EXPECT_EQ(value->type, RegistryType::Other);
  EXPECT_EQ(value->bytes, std::string("\0\1\2", 3));
}

TEST_F(RegistryContract, GivesAnEmptyValue) {
  Put(RegistryView::Of32Bit, "Empty", RegistryType::Other, "");
  const auto value = Query(RegistryView::Of32Bit, "Empty");
  ASSERT_TRUE(value);
  EXPECT_EQ(value->bytes, "");
}

TEST_F(RegistryContract, IgnoresLetterCase) {
  Put(RegistryView::Of32Bit, "InstallLocation", RegistryType::Other, "x");
  EXPECT_TRUE(Query(RegistryView::Of32Bit, "INSTALLlocation"));
}

TEST_F(RegistryContract, GivesNothingForWhatIsMissing) {
  Put(RegistryView::Of32Bit, "Here", RegistryType::Other, "x");
  EXPECT_FALSE(Query(RegistryView::Of32Bit, "There"));
  EXPECT_FALSE(QueryRegistryValue(RegistryRoot::LocalMachine, RegistryView::Of32Bit,
                                  subkey + "\\Deeper", "Here", 1024));
}

TEST_F(RegistryContract, GivesNothingThatIsLargerThanTheCapacity) {
  Put(RegistryView::Of32Bit, "Fits", RegistryType::String, std::string(1023, 'x') + '\0');
  Put(RegistryView::Of32Bit, "TooLarge", RegistryType::String, std::string(1024, 'x') + '\0');
  ASSERT_TRUE(Query(RegistryView::Of32Bit, "Fits"));
  EXPECT_EQ(Query(RegistryView::Of32Bit, "Fits")->bytes.size(), 1024u);
  EXPECT_FALSE(Query(RegistryView::Of32Bit, "TooLarge"));
}

TEST_F(RegistryContract, KeepsTheTwoViewsApart) {
  Put(RegistryView::Of32Bit, "Only32", RegistryType::Other, "x");
  Put(RegistryView::Of64Bit, "Only64", RegistryType::Other, "x");
  EXPECT_TRUE(Query(RegistryView::Of32Bit, "Only32"));
  EXPECT_FALSE(Query(RegistryView::Of64Bit, "Only32"));
  EXPECT_TRUE(Query(RegistryView::Of64Bit, "Only64"));
  EXPECT_FALSE(Query(RegistryView::Of32Bit, "Only64"));
}

TEST_F(RegistryContract, TellsWhichKeysThereAreInEachView) {
  const auto has = [this](RegistryView view, const std::string& key) {
    return Platform::HasRegistryKey(RegistryRoot::LocalMachine, view, key);
  };
  EXPECT_FALSE(has(RegistryView::Of32Bit, subkey + "\\Deeper"));
  TestMachine::PutRegistryValue(RegistryRoot::LocalMachine, RegistryView::Of32Bit,
                                subkey + "\\Deeper", "Value", {RegistryType::Other, "x"});
  EXPECT_TRUE(has(RegistryView::Of32Bit, subkey + "\\Deeper"));
  EXPECT_TRUE(has(RegistryView::Of32Bit, subkey + "\\DEEPER"));
  EXPECT_TRUE(has(RegistryView::Of32Bit, subkey)) << "the key above it";
  EXPECT_FALSE(has(RegistryView::Of64Bit, subkey + "\\Deeper"));
  EXPECT_FALSE(has(RegistryView::Of32Bit, subkey + "\\Deep"));
  EXPECT_FALSE(has(RegistryView::Of32Bit, subkey + "\\Deeper\\Deeper"));
}

TEST_F(RegistryContract, ReadsTheUsersOwnPart) {
  TestMachine::PutRegistryValue(RegistryRoot::CurrentUser, RegistryView::Of64Bit, subkey, "Mine",
                                {RegistryType::Other, "x"});
  EXPECT_TRUE(
      QueryRegistryValue(RegistryRoot::CurrentUser, RegistryView::Of64Bit, subkey, "Mine", 1024));
  EXPECT_FALSE(Query(RegistryView::Of64Bit, "Mine"));
}
