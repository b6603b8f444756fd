// The sounds of the game's vehicles inside the shipped executable.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "e2e/driver/Places.h"
#include "tests/resources/SoundChecksum.h"

namespace E2e {
namespace {

using testing::UnorderedElementsAreArray;

const char* const VehicleSounds = MAKEINTRESOURCEA(1408);

// In the order in which their checksum is taken.
const std::vector<std::string> Names = {
    "CAR1ENGINE",   "CAR2ENGINE",   "CAR3ENGINE",     "CAR4ENGINE",     "CAR5ENGINE",
    "CAR6ENGINE",   "CYCLE1ENGINE", "CYCLE2ENGINE",   "CAR1THROTTLE",   "CAR2THROTTLE",
    "CAR1IGNITION", "CAR2IGNITION", "CYCLE1IGNITION", "CYCLE2IGNITION", "CAR1HORN",
    "CAR2HORN",     "CAR3HORN",     "CAR4HORN",       "CAR5HORN",       "CAR6HORN",
    "CYCLE1HORN",   "CYCLE2HORN"};

std::string ProgramPath() {
  return Given().pack + "\\sk2pack.exe";
}

class VehicleSoundResources : public testing::Test {
 protected:
  void SetUp() override {
    program_ = LoadLibraryExA(ProgramPath().c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_NE(program_, nullptr);
  }
  void TearDown() override { FreeLibrary(program_); }

  std::vector<std::string> AllNames() const {
    std::vector<std::string> names;
    EnumResourceNamesA(
        program_, VehicleSounds,
        [](HMODULE, LPCSTR, LPSTR name, LONG_PTR list) -> BOOL {
          reinterpret_cast<std::vector<std::string>*>(list)->push_back(
              IS_INTRESOURCE(name) ? "a number" : name);
          return TRUE;
        },
        reinterpret_cast<LONG_PTR>(&names));
    return names;
  }

  // What stands in a resource; empty if there is none of that name.
  std::string BytesOf(const std::string& name) const {
    const HRSRC found = FindResourceA(program_, name.c_str(), VehicleSounds);
    if (!found) return "";
    const auto* bytes = static_cast<const char*>(LockResource(LoadResource(program_, found)));
    return {bytes, SizeofResource(program_, found)};
  }

 private:
  HMODULE program_ = nullptr;
};

TEST_F(VehicleSoundResources, AreThe22OfTheGame) {
  EXPECT_EQ(Names.size(), 22u);
  EXPECT_THAT(AllNames(), UnorderedElementsAreArray(Names));
}

// That each is a good sound is shown of the same bytes by the tests of the sounds.
TEST_F(VehicleSoundResources, AreTheSoundsThatWereTested) {
  uint32_t sum = 0;
  for (const std::string& name : Names) {
    const std::string bytes = BytesOf(name);
    EXPECT_TRUE(bytes.starts_with("RIFF")) << name;
    sum = Crc32(bytes, sum);
  }
  EXPECT_EQ(sum, InternalSoundsChecksum);
}

TEST_F(VehicleSoundResources, AreFoundInAnyLetterCase) {
  EXPECT_EQ(BytesOf("car1engine"), BytesOf("CAR1ENGINE"));
  EXPECT_EQ(BytesOf("Cycle2Ignition"), BytesOf("CYCLE2IGNITION"));
  EXPECT_NE(BytesOf("cycle2ignition"), "");
}

// It is downloaded by players with slow connections.
TEST(ShippedProgram, IsSmallerThanFourMegabytes) {
  EXPECT_LT(std::filesystem::file_size(ProgramPath()), 4'000'000u);
}

}  // namespace
}  // namespace E2e
