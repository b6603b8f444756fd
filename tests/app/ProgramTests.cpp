#include "app/Program.h"

#include "update/Updater.h"

#include <gtest/gtest.h>

#include "tests/Story.h"

namespace {

Platform::ProgramVersion Version(int major, int minor, int revision,
                                 const std::string& description = "Skidrun2 Utility Pack") {
  return {major, minor, revision, "Skidrun2 Utility Pack", description};
}

TEST(ProgramTitle, OfAnAlphaShowsTheRevisionAlone) {
  EXPECT_EQ(Program::Title(Version(0, 0, 7)), "Skidrun2 Utility Pack Alpha7");
  EXPECT_EQ(Program::Title(Version(0, 0, 0)), "Skidrun2 Utility Pack Alpha0");
}

TEST(ProgramTitle, OfABetaShowsTheWholeVersion) {
  EXPECT_EQ(Program::Title(Version(0, 5, 2)), "Skidrun2 Utility Pack Beta V0.5.2");
  EXPECT_EQ(Program::Title(Version(0, 5, 0)), "Skidrun2 Utility Pack Beta V0.5");
}

TEST(ProgramTitle, OfAReleaseLeavesOutARevisionOfZero) {
  EXPECT_EQ(Program::Title(Version(1, 2, 0)), "Skidrun2 Utility Pack V1.2");
  EXPECT_EQ(Program::Title(Version(1, 2, 3)), "Skidrun2 Utility Pack V1.2.3");
  EXPECT_EQ(Program::Title(Version(10, 0, 12)), "Skidrun2 Utility Pack V10.0.12");
}

TEST(ProgramTitle, OfAReleaseCandidateEndsInItsTag) {
  EXPECT_EQ(Program::Title(Version(1, 2, 3, "Skidrun2 Utility Pack RC1")),
            "Skidrun2 Utility Pack V1.2.3RC1");
  EXPECT_EQ(Program::Title(Version(1, 2, 0, "RC2 of the pack")),
            "Skidrun2 Utility Pack V1.2RC2 of the pack");
}

TEST(ProgramTitle, OfABetaOrAlphaHasNoTag) {
  EXPECT_EQ(Program::Title(Version(0, 5, 2, "RC1")), "Skidrun2 Utility Pack Beta V0.5.2");
  EXPECT_EQ(Program::Title(Version(0, 0, 2, "RC1")), "Skidrun2 Utility Pack Alpha2");
}

TEST(ProgramStatus, IsDerivedFromTheVersion) {
  EXPECT_EQ(Program::StatusOf(Version(0, 0, 9)), Program::ReleaseStatus::Alpha);
  EXPECT_EQ(Program::StatusOf(Version(0, 1, 0)), Program::ReleaseStatus::Beta);
  EXPECT_EQ(Program::StatusOf(Version(1, 0, 0)), Program::ReleaseStatus::Release);
}

class ProgramStory : public Story {};

TEST_F(ProgramStory, FilesBesideTheProgramBearItsName) {
  machine.executable.folder = "D:\\My Pack";
  machine.executable.name = "Pack";
  EXPECT_EQ(Platform::PathBesideProgram(".lng"), "D:\\My Pack\\Pack.lng");
  EXPECT_EQ(Updater::UpdaterPath(), "D:\\My Pack\\orvPackupdater.exe");
}

}  // namespace
