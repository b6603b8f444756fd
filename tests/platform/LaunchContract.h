// What every machine promises of starting programs. Included once by each machine's tests.
#pragma once

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "platform/FileGuard.h"
#include "platform/Launch.h"
#include "tests/machine/TestMachine.h"
#include "ui/Forms.h"

class LaunchContract : public ContractTest {
 protected:
  LaunchContract() { Platform::StartProgram(owner); }

  // The number of the failure; 0 if there is none.
  static int FailureOf(const std::string& path) {
    try {
      Platform::LaunchMinimised(path, "");
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.file(), path);
      return error.number();
    }
    return 0;
  }

  const std::string folder = TestMachine::ScratchFolder();
  Platform::Form owner{FixedText("Owner")};
};

TEST_F(LaunchContract, AProgramIsStartedMinimisedWithItsArgumentsAsTheyAre) {
  const std::string arguments = "/SP- /SILENT  \"a b\" /X=\"c\\\" d&e %PATH% ";
  const std::string program = folder + "\\setup.exe";
  TestMachine::PutProgram(program);
  Platform::LaunchMinimised(program, arguments);
  const TestMachine::ProgramStart start = TestMachine::StartOf(program);
  EXPECT_EQ(start.arguments, arguments);
  EXPECT_TRUE(start.isMinimised);
}

TEST_F(LaunchContract, AProgramNeedsNoArguments) {
  const std::string program = folder + "\\setup.exe";
  TestMachine::PutProgram(program);
  Platform::LaunchMinimised(program, "");
  EXPECT_EQ(TestMachine::StartOf(program).arguments, "");
}

TEST_F(LaunchContract, BlanksInThePathHaveNoMeaning) {
  TestMachine::PutFolder(folder + "\\Games of (mine) & yours");
  const std::string program = folder + "\\Games of (mine) & yours\\my setup.exe";
  // What would be started if a blank ended the path.
  TestMachine::PutFile(folder + "\\Games", "MZ");
  TestMachine::PutProgram(program);
  Platform::LaunchMinimised(program, "/SILENT");
  EXPECT_EQ(TestMachine::StartOf(program).arguments, "/SILENT");
}

TEST_F(LaunchContract, AProgramThatIsNotThereFails) {
  EXPECT_EQ(FailureOf(folder + "\\setup.exe"), RuntimeError::FileNotFound);
  EXPECT_EQ(FailureOf(folder + "\\missing\\setup.exe"), RuntimeError::FileNotFound);
}

TEST_F(LaunchContract, WhatIsNoProgramFails) {
  const std::string page = folder + "\\setup.exe";
  TestMachine::PutFile(page, "<html>404 Not Found</html>");
  EXPECT_EQ(FailureOf(page), RuntimeError::DeviceError);
  TestMachine::PutFile(page, "");
  EXPECT_EQ(FailureOf(page), RuntimeError::DeviceError);
}

// So that what is started is what was read.
TEST_F(LaunchContract, AProgramThatIsGuardedIsStarted) {
  const std::string program = folder + "\\setup.exe";
  TestMachine::PutProgram(program);
  {
    const Platform::FileGuard guard(program);
    Platform::LaunchMinimised(program, "/SILENT");
  }
  EXPECT_EQ(TestMachine::StartOf(program).arguments, "/SILENT");
}

TEST_F(LaunchContract, AProgramThatIsInUseByAnotherFails) {
  const std::string program = folder + "\\setup.exe";
  TestMachine::PutProgram(program);
  TestMachine::Hold(program, TestMachine::Sharing::WithNobody);
  EXPECT_EQ(FailureOf(program), RuntimeError::PermissionDenied);
}
