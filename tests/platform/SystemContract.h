// What every machine with windows promises of the small services that only its programs need: what
// the program carries, the named mutex, opening documents. Included once by each machine's tests.
#pragma once

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/NamedMutex.h"
#include "platform/Resources.h"
#include "platform/ShellOpen.h"
#include "tests/machine/TestMachine.h"
#include "tests/platform/ProgramContract.h"
#include "ui/Forms.h"

class SystemContract : public ContractTest {};

TEST_F(SystemContract, AMutexIsHeldAndMayBeHeldTwice) {
  const std::string name = "SK2PackContractTest";
  EXPECT_FALSE(TestMachine::HasMutex(name));
  Platform::HoldNamedMutex(name);
  EXPECT_TRUE(TestMachine::HasMutex(name));
  EXPECT_NO_THROW(Platform::HoldNamedMutex(name));
}

TEST_F(SystemContract, ANameThatTheSystemRefusesFails) {
  try {
    Platform::HoldNamedMutex("No\\Such\\Place");
    ADD_FAILURE() << "did not fail";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), RuntimeError::DeviceError);
  }
}

TEST_F(SystemContract, TheProgramReadsWhatItCarriesWhateverTheLetterCase) {
  const std::string name = TestMachine::NameOfResource();
  const std::string bytes = TestMachine::BytesOfResource();
  EXPECT_EQ(Platform::ReadResource(Platform::SoundResource, name), bytes);
  EXPECT_EQ(Platform::ReadResource(Platform::SoundResource, Text::LowerAscii(name)), bytes);
  EXPECT_EQ(Platform::ReadResource(Platform::SoundResource, "CONTRACTSOUND"), bytes);
}

TEST_F(SystemContract, WhatTheProgramDoesNotCarryIsNotThere) {
  const std::string name = TestMachine::NameOfResource();
  EXPECT_EQ(Platform::ReadResource(Platform::SoundResource + 1, name), std::nullopt);
  for (const std::string& other : {name + "s", name.substr(1), std::string("car9engine"),
                                   std::string(), std::string("#1"), std::string("#")}) {
    EXPECT_EQ(Platform::ReadResource(Platform::SoundResource, other), std::nullopt) << other;
  }
}

class ShellOpenContract : public ContractTest {
 protected:
  ShellOpenContract() { Platform::StartProgram(owner); }

  const std::string folder = TestMachine::ScratchFolder();
  Platform::Form owner{FixedText("Owner")};
};

TEST_F(ShellOpenContract, ADocumentIsOpenedAsOneArgumentWhateverItsNameHolds) {
  const std::string path = folder + "\\a b & c (d)" + TestMachine::DocumentExtension();
  TestMachine::PutFile(path, "1");
  Platform::ShellOpen(path);
  EXPECT_EQ(TestMachine::OpenedDocument(), path);
}

TEST_F(ShellOpenContract, WhatIsNotThereIsToldByTheSystemOverTheWindow) {
  std::string told;
  TestMachine::WhenModalWindowOpens([&] {
    told = TestMachine::MessageBoxOnScreen().text;
    TestMachine::Press("Enter");
  });
  EXPECT_NO_THROW(Platform::ShellOpen(folder + "\\no such" + TestMachine::DocumentExtension()));
  EXPECT_NE(told, "");
  EXPECT_EQ(TestMachine::VisibleWindows(), std::vector<std::string>{"Owner"});
}
