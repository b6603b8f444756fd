// Whatever file call a save is cut off or refused at, the file is whole, and the next save of it
// leaves nothing behind.
#include <gmock/gmock.h>

#include "base/RuntimeError.h"
#include "machine/simulated/Machine.h"
#include "platform/InterruptedSave.h"
#include "tests/platform/SaveScenarios.h"

namespace {

using Platform::SystemError;
using Simulated::After;
using Simulated::Disk;
using testing::AnyOf;
using testing::Eq;
using testing::IsEmpty;

const std::string Folder = "C:\\Game";
const std::string Path = Folder + "\\highscore.cfg";

class SaveSweep : public testing::TestWithParam<SaveScenario> {
 protected:
  // A machine on which the save is about to be made. What is read comes in pieces, so that much is
  // written in several calls.
  struct Prepared {
    explicit Prepared(const SaveScenario& scenario) {
      machine.files.PutFolder(Folder);
      if (scenario.before) machine.files.Put(Path, *scenario.before);
      if (std::string(scenario.name) == "copy") machine.files.Put(Path + ".from", scenario.after);
      if (scenario.isHeld) machine.files.HoldShared(Path);
      machine.files.LimitReads(4);
      names = machine.files.Names(Folder);
    }
    Simulated::Machine machine;
    std::vector<std::string> names;
  };

  // The failure of an action, if it fails.
  template <class Action>
  static std::optional<RuntimeError> FailureOf(const Action& action) {
    try {
      action();
    } catch (const RuntimeError& error) {
      return error;
    }
    return std::nullopt;
  }

  static std::optional<std::string> Bytes(Simulated::Machine& machine) {
    if (!machine.files.Exists(Path)) return std::nullopt;
    return machine.files.Text(Path);
  }

  // The pack is started again and uses the file: it is whole, and after a save nothing is left.
  static void ExpectWholeAndTidy(Prepared& prepared, const SaveScenario& scenario) {
    Simulated::Machine& machine = prepared.machine;
    if (scenario.isHeld) machine.files.Release(Path);
    EXPECT_THAT(Platform::ReadWholeFile(Path),
                AnyOf(Eq(scenario.before), Eq(std::optional(scenario.after))));
    Platform::WriteWholeFile(Path, "next");
    EXPECT_EQ(machine.files.Text(Path), "next");
    if (!scenario.before) prepared.names.push_back("highscore.cfg");
    EXPECT_EQ(machine.files.Names(Folder), prepared.names);
    EXPECT_THAT(machine.files.Names(Disk::TemporaryFolder), IsEmpty());
  }
};

TEST_P(SaveSweep, CutOffAtAnyCallTheFileIsWhole) {
  const SaveScenario& scenario = GetParam();
  int n = 0;
  for (bool isCutOff = true; isCutOff && !HasFailure(); ++n) {
    Prepared prepared(scenario);
    prepared.machine.faults.EndProgramAtFileCall(After{n});
    const auto failure = FailureOf([&] { scenario.save(Path); });
    const std::string endedAt = prepared.machine.faults.EndedAt();
    isCutOff = !endedAt.empty();
    SCOPED_TRACE(std::to_string(n) + " " + endedAt);
    prepared.machine.StartAnew();
    if (!isCutOff) {
      EXPECT_FALSE(failure);
      EXPECT_EQ(Bytes(prepared.machine), scenario.after);
    }
    // Nothing is read that is half of this and half of that, even before it is made good.
    if (!scenario.isHeld) {
      EXPECT_THAT(Bytes(prepared.machine),
                  AnyOf(Eq(scenario.before), Eq(std::optional(scenario.after))));
    }
    ExpectWholeAndTidy(prepared, scenario);
  }
  EXPECT_GT(n, 5);
}

TEST_P(SaveSweep, CutOffAgainWhileItIsMadeGoodTheFileIsWhole) {
  const SaveScenario& scenario = GetParam();
  bool isCutOff = true;
  for (int n = 0; isCutOff && !HasFailure(); ++n) {
    bool isCutOffAgain = true;
    for (int again = 0; isCutOffAgain && !HasFailure(); ++again) {
      Prepared prepared(scenario);
      Simulated::Machine& machine = prepared.machine;
      machine.faults.EndProgramAtFileCall(After{n});
      FailureOf([&] { scenario.save(Path); });
      isCutOff = !machine.faults.EndedAt().empty();
      machine.StartAnew();
      machine.faults.EndProgramAtFileCall(After{again});
      FailureOf([&] { Platform::ReadWholeFile(Path); });
      isCutOffAgain = !machine.faults.EndedAt().empty();
      SCOPED_TRACE(std::to_string(n) + " and " + std::to_string(again) + " " +
                   machine.faults.EndedAt());
      machine.StartAnew();
      ExpectWholeAndTidy(prepared, scenario);
    }
  }
}

TEST_P(SaveSweep, RefusedOnceNothingIsLeftAndNothingIsLost) {
  const SaveScenario& scenario = GetParam();
  bool isRefused = true;
  for (int n = 0; isRefused && !HasFailure(); ++n) {
    Prepared prepared(scenario);
    Simulated::Machine& machine = prepared.machine;
    machine.FailAnyCall(After{n});
    const auto failure = FailureOf([&] { scenario.save(Path); });
    isRefused = machine.FailureHappened();
    SCOPED_TRACE(std::to_string(n) + " " + machine.FailedCall());
    if (failure) {
      EXPECT_EQ(failure->copy(), "");
      EXPECT_EQ(Bytes(machine), scenario.before) << failure->what();
    } else {
      EXPECT_EQ(Bytes(machine), scenario.after);
      prepared.names = machine.files.Names(Folder);
      EXPECT_THAT(prepared.names, testing::SizeIs(std::string(scenario.name) == "copy" ? 2 : 1));
    }
    EXPECT_EQ(machine.files.Names(Folder), prepared.names);
    // The copy that could not be removed at once is removed by the next use.
    Platform::ReadWholeFile(Path);
    EXPECT_THAT(Platform::TakeSaveNotes(), IsEmpty());
    EXPECT_THAT(machine.files.Names(Disk::TemporaryFolder), IsEmpty());
  }
}

TEST_P(SaveSweep, RefusedForGoodTheCopyIsNamedIfTheFileIsMixed) {
  const SaveScenario& scenario = GetParam();
  int mixed = 0;
  bool isRefused = true;
  for (int n = 0; isRefused && !HasFailure(); ++n) {
    Prepared prepared(scenario);
    Simulated::Machine& machine = prepared.machine;
    machine.faults.RefuseFileCallsFrom(After{n}, SystemError::AccessDenied);
    const auto failure = FailureOf([&] { scenario.save(Path); });
    isRefused = !machine.faults.EndedAt().empty();
    SCOPED_TRACE(std::to_string(n) + " " + machine.faults.EndedAt());
    machine.faults = {};
    const auto bytes = Bytes(machine);
    if (bytes != scenario.before && bytes != scenario.after) {
      ++mixed;
      ASSERT_TRUE(failure);
      EXPECT_STREQ(failure->cause().key, RuntimeErrorTexts.SaveHalfDone.key);
      EXPECT_EQ(machine.files.Text(failure->copy()), scenario.before);
    }
    if (!failure) {
      EXPECT_EQ(bytes, scenario.after);
    }
    ExpectWholeAndTidy(prepared, scenario);
  }
  EXPECT_EQ(mixed > 0, scenario.isHeld) << "the sweep has met a file that is half rewritten";
}

INSTANTIATE_TEST_SUITE_P(Saves, SaveSweep, testing::ValuesIn(SaveScenarios()),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
