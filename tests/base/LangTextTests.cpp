#include "base/LangText.h"

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "base/SharedTexts.h"

namespace {

TEST(LangText, ATableListsItsTextsInOrder) {
  const auto texts = TextsOf(SharedTexts);
  EXPECT_STREQ(texts.front().key, SharedTexts.OKButton.key);
  EXPECT_STREQ(texts.front().english, "OK");
  EXPECT_STREQ(texts.back().key, SharedTexts.Or.key);
}

TEST(LangText, ATableMayHoldFixedTexts) {
  struct Table {
    LangText One{"One", "1"};
    LangText Two = FixedText("2");
    LangText Three{"Three", "3"};
  };
  const auto texts = TextsOf(Table{});
  ASSERT_EQ(texts.size(), 3U);
  EXPECT_EQ(texts[1].key, nullptr);
  EXPECT_STREQ(texts[1].english, "2");
  EXPECT_STREQ(texts[2].key, "Three");
}

TEST(LangText, AFixedTextHasNoKey) {
  constexpr LangText Name = FixedText("Gloamworks");
  EXPECT_EQ(Name.key, nullptr);
  EXPECT_STREQ(Name.english, "Gloamworks");
}

TEST(RuntimeError, CarriesItsUsualCauseAndTheFile) {
  const RuntimeError error(RuntimeError::DiskFull, "C:\\hill.trk");
  EXPECT_EQ(error.number(), 61);
  EXPECT_STREQ(error.cause().key, RuntimeErrorTexts.DiskFull.key);
  EXPECT_EQ(error.file(), "C:\\hill.trk");
  EXPECT_STREQ(error.what(), "The disk is full.");
}

TEST(RuntimeError, EachNumberHasACauseOfItsOwn) {
  const RuntimeError::Number numbers[] = {
      RuntimeError::InvalidCall,  RuntimeError::Overflow,
      RuntimeError::OutOfMemory,  RuntimeError::TypeMismatch,
      RuntimeError::FileNotFound, RuntimeError::DeviceError,
      RuntimeError::DiskFull,     RuntimeError::PermissionDenied,
      RuntimeError::DiskNotReady, RuntimeError::PathFileAccess,
      RuntimeError::PathNotFound, RuntimeError::FileAlreadyExists};
  for (const auto number : numbers) {
    EXPECT_STRNE(RuntimeError(number).cause().key, RuntimeErrorTexts.Unexpected.key) << number;
    for (const auto other : numbers) {
      if (other == number) continue;
      EXPECT_STRNE(RuntimeError(number).what(), RuntimeError(other).what());
    }
  }
}

TEST(RuntimeError, MayHaveACauseInWordsOfItsOwn) {
  const RuntimeError error(RuntimeError::InvalidCall, RuntimeErrorTexts.NameNotUsable);
  EXPECT_EQ(error.number(), 5);
  EXPECT_STREQ(error.cause().key, "RTENameNotUsable");
  EXPECT_EQ(error.file(), "");
}

}  // namespace
