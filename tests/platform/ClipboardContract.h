// What every machine promises of the clipboard. Included once by each machine's tests.
#pragma once

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "platform/Clipboard.h"
#include "tests/machine/TestMachine.h"
#include "ui/Forms.h"

class ClipboardContract : public ContractTest {
 protected:
  ClipboardContract() { Platform::StartProgram(owner); }

  Platform::Form owner{FixedText("Owner")};
};

TEST_F(ClipboardContract, ATextTakesThePlaceOfWhatWasThere) {
  TestMachine::PutClipboardText("before");
  EXPECT_EQ(TestMachine::ClipboardText(), "before");
  Platform::SetClipboardText("203.0.113.7");
  EXPECT_EQ(TestMachine::ClipboardText(), "203.0.113.7");
  Platform::SetClipboardText("");
  EXPECT_EQ(TestMachine::ClipboardText(), "");
}

TEST_F(ClipboardContract, OtherProgramsReadTheCharactersThatWereMeant) {
  Platform::SetClipboardText(
      "Stra\xDF"
      "e\r\n\xC9t\xE9 & \xA3");
  EXPECT_EQ(TestMachine::ClipboardText(), "Stra\u00DFe\r\n\u00C9t\u00E9 & \u00A3");
}

TEST_F(ClipboardContract, AProgramThatHasItForAMomentIsWaitedFor) {
  TestMachine::HoldClipboardForAMoment();
  EXPECT_NO_THROW(Platform::SetClipboardText("203.0.113.7"));
  EXPECT_EQ(TestMachine::ClipboardText(), "203.0.113.7");
}

TEST_F(ClipboardContract, AProgramThatKeepsItIsToldAndKeepsWhatIsThere) {
  TestMachine::PutClipboardText("before");
  TestMachine::HoldClipboard();
  try {
    Platform::SetClipboardText("203.0.113.7");
    ADD_FAILURE() << "did not fail";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), RuntimeError::PermissionDenied);
    EXPECT_STREQ(error.cause().key, RuntimeErrorTexts.ClipboardInUse.key);
  }
  EXPECT_EQ(TestMachine::ClipboardText(), "before");
}
