// Whatever fails while a track or a vehicle is packaged, and wherever the program is ended, nothing
// of it is lost.
#include "tests/FailureSweep.h"
#include "tests/archive/ZipBytes.h"
#include "tests/packaging/PackagingStory.h"

namespace {

using Packaged::File;
using testing::AnyOf;
using testing::IsEmpty;

const std::string Game = "C:\\Games\\Skidrun2";
const std::string Sounds = "C:\\Sounds";

struct Work {
  const char* name;
  std::string folder;
  std::vector<std::string> menu;
  std::vector<File> sources;   // the track or vehicle is the first
  std::string archiveBefore;   // empty if there is none
  std::vector<File> packaged;  // what the archive holds then
  bool isOpenedFromElsewhere;  // the description is the first of those packaged
};

std::vector<Work> Works() {
  const std::string old = ZipBytes::Bytes({.members = {{.name = "old.txt", .contents = "old"}}});
  const File track{"hill.trk", "a track"};
  const File spoken{"hill.wav", "a hill"};
  const File vehicle{"rocket.vhc", "enginesound=engine.wav\r\nhornsound=horn.wav\r\n"};
  const File description{"rocket.wav", "a rocket"};
  const File engine{"engine.wav", std::string(140'000, 'e')};
  const File horn{"horn.wav", "a horn"};
  const std::vector<std::string> trackMenu{"Track", "Package"};
  return {
      {"Track", Game + "\\tracks", trackMenu, {track, spoken}, "", {spoken, track}, false},
      {"TrackIntoAnArchive",
       Game + "\\tracks",
       trackMenu,
       {track, spoken},
       old,
       {{"old.txt", "old"}, spoken, track},
       false},
      {"TrackDescribedFromElsewhere",
       Game + "\\tracks",
       trackMenu,
       {track},
       "",
       {spoken, track},
       true},
      {"Vehicle",
       Game + "\\vehicles",
       {"Vehicle", "Package"},
       {vehicle, description, engine, horn},
       "",
       {description, vehicle, engine, horn},
       false},
  };
}

void PrintTo(const Work& work, std::ostream* out) {
  *out << work.name;
}

class PackagingSweep : public testing::TestWithParam<Work> {
 protected:
  static const Work& work() { return GetParam(); }
  static std::string ArchivePath() {
    const std::string& name = work().sources[0].name;
    return work().folder + "\\" + name.substr(0, name.size() - 3) + "zip";
  }

  static void Prepare(Simulated::Machine& machine) {
    InstallGame(machine, Game);
    PutSources(machine);
    if (!work().archiveBefore.empty()) machine.files.Put(ArchivePath(), work().archiveBefore);
    machine.files.Put(Sounds + "\\spoken.wav", work().packaged[0].bytes);
  }
  static void PutSources(Simulated::Machine& machine) {
    for (const File& source : work().sources) {
      machine.files.Put(work().folder + "\\" + source.name, source.bytes);
    }
  }

  static void Act(Simulated::User& user) {
    user.ChoosesFile(work().folder + "\\" + work().sources[0].name);
    if (work().isOpenedFromElsewhere) user.ChoosesFile(Sounds + "\\spoken.wav");
    user.ChoosesMenu(work().menu);
    // Also where the description is there, but could not be asked for.
    if (!user.SeesWindow().ends_with("What to do?")) return;
    user.Presses(work().isOpenedFromElsewhere ? "Enter" : "Escape");
  }
  static void Forget(Simulated::User& user) {
    user.script().files.clear();
    user.script().answers.clear();
  }

  static bool HasAllSources(const Simulated::Machine& machine) {
    return std::ranges::all_of(work().sources, [&](const File& source) {
      const std::string path = work().folder + "\\" + source.name;
      return machine.files.Exists(path) && machine.files.Text(path) == source.bytes;
    });
  }
  static bool IsArchiveComplete(const Simulated::Machine& machine) {
    return machine.files.Exists(ArchivePath()) && Packaged::In(ArchivePath()) == work().packaged;
  }
  // Nothing is lost, and what is there of the archive is the old one or the new one.
  static void ExpectNothingLost(const Simulated::Machine& machine) {
    EXPECT_TRUE(HasAllSources(machine) || IsArchiveComplete(machine));
    if (!machine.files.Exists(ArchivePath())) {
      EXPECT_THAT(work().archiveBefore, IsEmpty());
    } else if (machine.files.Text(ArchivePath()) != work().archiveBefore) {
      EXPECT_TRUE(IsArchiveComplete(machine));
    }
    EXPECT_EQ(machine.files.Text(Sounds + "\\spoken.wav"), work().packaged[0].bytes);
  }
  // Done once more, with the files that are missing put back, it succeeds and nothing is left over.
  static void ExpectSecondRunSucceeds(Simulated::Machine& machine) {
    if (!HasAllSources(machine)) PutSources(machine);
    // The main window could not be shown, and the one before it stayed.
    if (machine.user.SeesWindow().ends_with("What to do?")) machine.user.Presses("Escape");
    Act(machine.user);
    Forget(machine.user);
    EXPECT_TRUE(IsArchiveComplete(machine));
    const std::string& name = work().sources[0].name;
    EXPECT_THAT(machine.files.Names(work().folder),
                testing::ElementsAre(name.substr(0, name.size() - 3) + "zip"));
    EXPECT_THAT(machine.files.Names(Simulated::Disk::TemporaryFolder), IsEmpty());
  }
};

TEST_P(PackagingSweep, WhateverFailsNothingIsLost) {
  const auto calls = ForEachCallThatFails([](Simulated::Machine& machine, Simulated::After after) {
    Prepare(machine);
    StartPack();
    machine.FailAnyCall(after);
    Act(machine.user);
    Forget(machine.user);
    // What the test itself reads is not to fail.
    if (!machine.FailureHappened()) machine.faults = {};
    ExpectNothingLost(machine);
    if (machine.FailureHappened()) ExpectSecondRunSucceeds(machine);
    EXPECT_THAT(machine.screen.Titles(), testing::SizeIs(1));
  });
  EXPECT_GT(calls.size(), 30u);
}

TEST_P(PackagingSweep, WhereverTheDiskRefusesFromThenOnNothingIsLost) {
  bool isRefused = true;
  for (int n = 0; isRefused && !HasFailure(); ++n) {
    Simulated::Machine machine;
    Prepare(machine);
    StartPack();
    machine.faults.RefuseFileCallsFrom(Simulated::After{n}, Platform::SystemError::AccessDenied);
    Act(machine.user);
    Forget(machine.user);
    isRefused = !machine.faults.EndedAt().empty();
    SCOPED_TRACE(std::to_string(n) + " " + machine.faults.EndedAt());
    machine.faults = {};
    ExpectNothingLost(machine);
    if (isRefused) ExpectSecondRunSucceeds(machine);
  }
}

TEST_P(PackagingSweep, WhereverTheProgramIsEndedNothingIsLost) {
  bool isEnded = true;
  int n = 0;
  for (; isEnded && !HasFailure(); ++n) {
    Simulated::Machine machine;
    Prepare(machine);
    StartPack();
    machine.faults.EndProgramAtFileCall(Simulated::After{n});
    Act(machine.user);
    Forget(machine.user);
    isEnded = !machine.faults.EndedAt().empty();
    SCOPED_TRACE(std::to_string(n) + " " + machine.faults.EndedAt());
    machine.StartAnew();
    ExpectNothingLost(machine);
    StartPack();
    ExpectSecondRunSucceeds(machine);
  }
  EXPECT_GT(n, 20);
}

INSTANTIATE_TEST_SUITE_P(Packagers, PackagingSweep, testing::ValuesIn(Works()),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
