// What the shipped executables ask of the system, and tell of themselves: the pack, its installer,
// and its uninstaller.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "e2e/driver/Places.h"
#include "e2e/driver/RunningProgram.h"
#include "e2e/driver/Setup.h"

namespace E2e {
namespace {

using testing::HasSubstr;
using testing::Not;

// The manifest in a program, as it stands there. Fails if there is none.
std::string ManifestOf(const std::string& path) {
  const HMODULE program = LoadLibraryExA(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
  std::string manifest;
  if (const HRSRC found = FindResourceA(program, MAKEINTRESOURCEA(1), RT_MANIFEST)) {
    const HGLOBAL resource = LoadResource(program, found);
    manifest.assign(static_cast<const char*>(LockResource(resource)),
                    SizeofResource(program, found));
  }
  FreeLibrary(program);
  EXPECT_NE(manifest, "") << path;
  return manifest;
}

// The sizes of the pictures in the first icon of a program, which is the one that the system shows.
std::vector<int> SizesOfIcon(const std::string& path) {
  const HMODULE program = LoadLibraryExA(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
  std::vector<int> sizes;
  HRSRC first = nullptr;
  EnumResourceNamesA(
      program, RT_GROUP_ICON,
      [](HMODULE module, LPCSTR type, LPSTR name, LONG_PTR found) -> BOOL {
        *reinterpret_cast<HRSRC*>(found) = FindResourceA(module, name, type);
        return FALSE;
      },
      reinterpret_cast<LONG_PTR>(&first));
  if (first) {
    const auto* bytes = static_cast<const BYTE*>(LockResource(LoadResource(program, first)));
    // Behind a head of six bytes one entry of fourteen for each picture, which begins with its
    // width; 0 means 256.
    for (int i = 0; i < bytes[4]; ++i) {
      const int width = bytes[6 + 14 * i];
      sizes.push_back(width ? width : 256);
    }
  }
  FreeLibrary(program);
  return sizes;
}

// The program under test and how its file is told of; the uninstaller is there once it is
// installed.
class Programs : public testing::TestWithParam<std::string> {
 protected:
  std::string path() {
    if (GetParam() == "sk2pack") return Given().pack + "\\sk2pack.exe";
    if (GetParam() == "sk2up") return Given().installer;
    UninstallQuietly();
    RunningProgram(Given().installer, "/S /D=" + scratch.path() + "\\Pack").WaitForEnd();
    return scratch.path() + "\\Pack\\uninstall.exe";
  }
  void TearDown() override { UninstallQuietly(); }

  ScratchFolder scratch;
};

INSTANTIATE_TEST_SUITE_P(Shipped, Programs, testing::Values("sk2pack", "sk2up", "uninstall"),
                         [](const auto& program) { return program.param; });

TEST_P(Programs, HaveManifestIconAndVersion) {
  const std::string program = path();
  const std::string manifest = ManifestOf(program);
  EXPECT_THAT(manifest,
              HasSubstr("name=\"Microsoft.Windows.Common-Controls\" version=\"6.0.0.0\""));
  EXPECT_THAT(manifest, HasSubstr(">PerMonitorV2"));
  EXPECT_THAT(manifest, HasSubstr("level=\"asInvoker\" uiAccess=\"false\""));
  EXPECT_THAT(manifest, HasSubstr("{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}")) << "Windows 10";
  EXPECT_THAT(SizesOfIcon(program), testing::ElementsAre(16, 20, 24, 32, 40, 48, 64, 128, 256));
  const VersionResource version = VersionOf(program);
  EXPECT_EQ(version.numbers, "1.0.0.0");
  EXPECT_EQ(version.texts.at("CompanyName"), "Orvane Interactive");
  EXPECT_EQ(version.texts.at("ProductName"), "Skidrun2 Utility Pack");
  EXPECT_EQ(version.texts.at("ProductVersion"), "1.0.0");
  EXPECT_THAT(version.texts.at("FileDescription"), testing::StartsWith("Skidrun2 Utility Pack"));
}

TEST(Manifest, AsksForWhatTheWindowsNeed) {
  const std::string manifest = ManifestOf(Given().pack + "\\sk2pack.exe");
  EXPECT_THAT(manifest,
              HasSubstr("name=\"Microsoft.Windows.Common-Controls\" version=\"6.0.0.0\""));
  EXPECT_THAT(manifest, HasSubstr(">PerMonitorV2</dpiAwareness>"));
  EXPECT_THAT(manifest, HasSubstr(">true/pm</dpiAware>"));
  EXPECT_THAT(manifest, HasSubstr("{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}")) << "Windows 10";
}

// A screen reader with the user's rights reaches no program with more of them.
TEST(Manifest, AsksForNoRightsBeyondTheUsers) {
  const std::string manifest = ManifestOf(Given().pack + "\\sk2pack.exe");
  EXPECT_THAT(manifest, HasSubstr("level=\"asInvoker\" uiAccess=\"false\""));
  EXPECT_THAT(manifest, Not(HasSubstr("requireAdministrator")));
  EXPECT_THAT(manifest, Not(HasSubstr("highestAvailable")));
}

// The game's files are in the system's code page, and so is every text of the program.
TEST(Manifest, KeepsTheSystemsCodePage) {
  EXPECT_THAT(ManifestOf(Given().pack + "\\sk2pack.exe"), Not(HasSubstr("activeCodePage")));
}

}  // namespace
}  // namespace E2e
