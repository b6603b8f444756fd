// What every machine promises of signatures. Included once by each machine's tests.
#pragma once

#include <gtest/gtest.h>

#include "base/Ecdsa.h"
#include "base/RuntimeError.h"
#include "base/SignatureTexts.h"
#include "platform/FileSum.h"
#include "platform/Signature.h"
#include "tests/machine/TestMachine.h"
#include "tests/platform/SignatureExamples.h"

class SignatureContract : public ContractTest {
 protected:
  void SetUp() override {
    ContractTest::SetUp();
    if (const std::string reason = TestMachine::LackOfSignatures(); !reason.empty()) {
      GTEST_SKIP() << reason;
    }
  }

  static bool IsRight(const std::string& contents, const std::string& signature,
                      const char* pem = SignatureExamples::MakerKey) {
    return Platform::IsSignatureRight(SumOfText(contents), signature, *Ecdsa::KeyInPem(pem));
  }

  static inline const std::string Contents = SignatureExamples::Contents;
  static inline const std::string Signature =
      SignatureExamples::FromHex(SignatureExamples::OfTheMaker[0]);
};

TEST_F(SignatureContract, ThoseOfOpensslAreRight) {
  for (const char* example : SignatureExamples::OfTheMaker) {
    EXPECT_TRUE(IsRight(Contents, SignatureExamples::FromHex(example))) << example;
  }
  EXPECT_TRUE(IsRight("", SignatureExamples::FromHex(SignatureExamples::OfNothing)));
  EXPECT_TRUE(IsRight(Contents, SignatureExamples::FromHex(SignatureExamples::OfTheOther),
                      SignatureExamples::OtherKey));
}

TEST_F(SignatureContract, AFileIsSummedUpInPieces) {
  std::string bytes;
  for (int i = 0; i < 1'000'000; ++i) bytes += static_cast<char>(i * 7);
  const std::string path = TestMachine::ScratchFolder() + "\\setup.exe";
  TestMachine::PutFile(path, bytes);
  const std::string signature = SignatureExamples::FromHex(SignatureExamples::OfAMillionBytes);
  const std::string key = *Ecdsa::KeyInPem(SignatureExamples::MakerKey);
  EXPECT_TRUE(Platform::IsSignatureRight(SumOfFile(path), signature, key));
  bytes.back() = static_cast<char>(bytes.back() ^ 1);
  TestMachine::PutFile(path, bytes);
  EXPECT_FALSE(Platform::IsSignatureRight(SumOfFile(path), signature, key));
}

TEST_F(SignatureContract, OfAnotherKeyIsNotRight) {
  EXPECT_FALSE(IsRight(Contents, SignatureExamples::FromHex(SignatureExamples::OfTheOther)));
  EXPECT_FALSE(IsRight(Contents, Signature, SignatureExamples::OtherKey));
}

TEST_F(SignatureContract, NoByteOfTheContentsMayBeAnother) {
  for (size_t at = 0; at < Contents.size(); ++at) {
    std::string changed = Contents;
    changed[at] = static_cast<char>(changed[at] ^ 1);
    EXPECT_FALSE(IsRight(changed, Signature)) << at;
  }
  EXPECT_FALSE(IsRight(Contents + " ", Signature));
  EXPECT_FALSE(IsRight("", Signature));
}

TEST_F(SignatureContract, NoBitOfTheSignatureMayBeAnother) {
  for (size_t at = 0; at < Signature.size(); ++at) {
    std::string changed = Signature;
    changed[at] = static_cast<char>(changed[at] ^ (1 << at % 8));
    EXPECT_FALSE(IsRight(Contents, changed)) << at;
  }
}

TEST_F(SignatureContract, WhatIsNoneIsNotRight) {
  for (const std::string& signature :
       {std::string(), std::string("<html>404 Not Found</html>"), Signature + Signature,
        Signature.substr(0, 40), std::string(1'000'000, '0')}) {
    EXPECT_FALSE(IsRight(Contents, signature));
  }
}

// In the right form, but beyond the curve: both numbers are all ones.
TEST_F(SignatureContract, NumbersThatAreTooLargeAreNotRight) {
  const std::string number = std::string("\x02\x21\0", 3) + std::string(32, '\xFF');
  EXPECT_FALSE(IsRight(Contents, "\x30\x46" + number + number));
}

TEST_F(SignatureContract, AKeyThatIsNoPointOfTheCurveIsRightForNothing) {
  try {
    EXPECT_FALSE(Platform::IsSignatureRight(SumOfText(Contents), Signature, std::string(64, '\1')));
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), RuntimeError::DeviceError);
    EXPECT_STREQ(error.system().step.key, SignatureTexts.CheckingSignature.key);
  }
}
