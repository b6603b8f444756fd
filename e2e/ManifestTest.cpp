// What the shipped executable asks of the system.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "e2e/driver/Places.h"

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
