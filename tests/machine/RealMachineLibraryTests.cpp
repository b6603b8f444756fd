// Where the real machine's program finds its libraries.
#include <gmock/gmock.h>

#include <fstream>
#include <string>

#include "base/RuntimeError.h"
#include "machine/win32/SystemLibrary.h"

namespace {

struct Failure {
  int number;
  std::string cause;
  std::string file;
};

Failure FailureToFind(const char* library, const char* name) {
  try {
    Platform::FindSystemFunction(library, name);
  } catch (const RuntimeError& error) {
    return {error.number(), error.cause().key, error.file()};
  }
  return {};
}

TEST(SystemLibrary, GivesTheFunctionsOfTheSystem) {
  Platform::SystemFunction<decltype(::MulDiv)> mulDiv("kernel32.dll", "MulDiv");
  EXPECT_EQ(mulDiv(6, 7, 2), 21);
  EXPECT_EQ(mulDiv(10, 10, 4), 25);
}

TEST(SystemLibrary, WhatTheSystemLacksIsToldWithItsLibrary) {
  const Failure noLibrary = FailureToFind("sk2nowhere.dll", "Anything");
  EXPECT_EQ(noLibrary.number, RuntimeError::DeviceError);
  EXPECT_EQ(noLibrary.cause, "RTESystemLibrary");
  EXPECT_EQ(noLibrary.file, "sk2nowhere.dll");

  const Failure noFunction = FailureToFind("kernel32.dll", "NoSuchFunction");
  EXPECT_EQ(noFunction.number, RuntimeError::DeviceError);
  EXPECT_EQ(noFunction.cause, "RTESystemLibrary");
  EXPECT_EQ(noFunction.file, "kernel32.dll");
}

// Whoever asks for it: the system's own parts load others by their plain names.
TEST(SystemLibrary, NoPlainNameMeansALibraryBesideTheProgram) {
  char program[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, program, sizeof program);
  const std::string path = program;
  const std::string beside = path.substr(0, path.rfind('\\')) + "\\sk2beside.dll";
  std::ofstream(beside, std::ios::binary) << "no library, so that it is refused where it is found";

  SetLastError(0);
  EXPECT_EQ(LoadLibraryA(beside.c_str()), nullptr);
  EXPECT_EQ(GetLastError(), DWORD{ERROR_BAD_EXE_FORMAT}) << "by its full path it is found";
  SetLastError(0);
  EXPECT_EQ(LoadLibraryA("sk2beside.dll"), nullptr);
  EXPECT_EQ(GetLastError(), DWORD{ERROR_MOD_NOT_FOUND});

  DeleteFileA(beside.c_str());
}

}  // namespace
