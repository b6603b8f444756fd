// The saves of the real machine, cut off and refused at every call of the system's file functions.
#include <gmock/gmock.h>

#include <cstdlib>
#include <functional>

#include "base/RuntimeError.h"
#include "platform/InterruptedSave.h"
#include "platform/Paths.h"
#include "tests/machine/RealMachine.h"
#include "tests/machine/RealMachineFileFaults.h"
#include "tests/machine/TestMachine.h"
#include "tests/platform/SaveScenarios.h"

namespace {

using RealMachine::FileFaults;
using testing::AnyOf;
using testing::Eq;
using testing::IsEmpty;

constexpr char Option[] = "--save";

class RealSaves : public ContractTest, public testing::WithParamInterface<SaveScenario> {
 protected:
  void Prepare() {
    if (scenario.before) {
      TestMachine::PutFile(path, *scenario.before);
    } else {
      DeleteFileA(path.c_str());
    }
    if (std::string(scenario.name) == "copy") TestMachine::PutFile(path + ".from", scenario.after);
    before = TestMachine::NamesIn(folder);
    if (scenario.isHeld) TestMachine::Hold(path, TestMachine::Sharing::ForReadingAndWriting);
  }
  void LetGo() const {
    if (scenario.isHeld) TestMachine::LetGo(path);
  }

  std::vector<std::string> Rescued() const {
    return TestMachine::NamesIn(Platform::FolderOf(Platform::RescueFiles(path).old));
  }

  // What is in the folder while the file is there.
  std::vector<std::string> Names() const {
    auto names = before;
    if (!scenario.before) names.push_back("highscore.cfg");
    return names;
  }

  // The file is used again: it is whole, and after a save nothing is left.
  void ExpectWholeAndTidy() const {
    EXPECT_THAT(Platform::ReadWholeFile(path),
                AnyOf(Eq(scenario.before), Eq(std::optional(scenario.after))));
    Platform::WriteWholeFile(path, "next");
    EXPECT_EQ(TestMachine::BytesOf(path), "next");
    EXPECT_EQ(TestMachine::NamesIn(folder), Names());
    EXPECT_THAT(Rescued(), IsEmpty());
  }

  // Makes the save in a process of its own, which ends at a call. Returns its exit code.
  DWORD SaveInAProcess(int calls) const {
    char program[MAX_PATH + 1];
    GetModuleFileNameA(nullptr, program, sizeof program);
    std::string command = std::string("\"") + program + "\" " + Option + " " + scenario.name +
                          " \"" + path + "\" " + std::to_string(calls);
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!CreateProcessA(program, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &start, &process)) {
      return GetLastError();
    }
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code;
  }

  // Makes the save as often as it has calls, and has each of them refused in turn.
  //   look  looks at what has become of the file, given the failure if there was one.
  void RefuseEachCall(FileFaults::What what,
                      const std::function<void(const std::optional<RuntimeError>&)>& look) {
    bool isRefused = true;
    for (int n = 0; isRefused && !HasFailure(); ++n) {
      Prepare();
      std::optional<RuntimeError> failure;
      std::string refused;
      {
        const FileFaults faults(what, n);
        try {
          scenario.save(path);
        } catch (const RuntimeError& error) {
          failure = error;
        }
        refused = faults.refused();
      }
      isRefused = !refused.empty();
      SCOPED_TRACE(std::to_string(n) + " " + refused);
      LetGo();
      look(failure);
      ExpectWholeAndTidy();
    }
  }

  const SaveScenario& scenario = GetParam();
  const std::string folder = TestMachine::ScratchFolder();
  const std::string path = folder + "\\highscore.cfg";
  const TestMachine::OwnTemporaryFolder temporary;
  std::vector<std::string> before;
};

TEST_P(RealSaves, CutOffAtAnyCallTheFileIsWhole) {
  DWORD code = FileFaults::EndedExitCode;
  int n = 0;
  for (; code == FileFaults::EndedExitCode && !HasFailure(); ++n) {
    SCOPED_TRACE(n);
    Prepare();
    code = SaveInAProcess(n);
    EXPECT_THAT(code, AnyOf(FileFaults::EndedExitCode, 0u));
    LetGo();
    if (!scenario.isHeld) {
      EXPECT_THAT(TestMachine::BytesOf(path),
                  AnyOf(Eq(scenario.before), Eq(std::optional(scenario.after))));
    }
    ExpectWholeAndTidy();
  }
  EXPECT_GT(n, 5);
  RecordProperty("calls", n);
}

TEST_P(RealSaves, RefusedOnceNothingIsLeftAndNothingIsLost) {
  RefuseEachCall(FileFaults::What::RefusesOnce, [this](const auto& failure) {
    EXPECT_EQ(TestMachine::BytesOf(path),
              failure ? scenario.before : std::optional(scenario.after));
    EXPECT_EQ(TestMachine::NamesIn(folder), failure ? before : Names());
    Platform::ReadWholeFile(path);
    EXPECT_THAT(Rescued(), IsEmpty());
  });
}

TEST_P(RealSaves, RefusedForGoodTheCopyIsNamedIfTheFileIsMixed) {
  RefuseEachCall(FileFaults::What::RefusesFromThere, [this](const auto& failure) {
    const auto bytes = TestMachine::BytesOf(path);
    if (bytes == scenario.before || bytes == scenario.after) return;
    ASSERT_TRUE(failure);
    EXPECT_EQ(TestMachine::BytesOf(failure->copy()), scenario.before);
  });
}

INSTANTIATE_TEST_SUITE_P(Saves, RealSaves, testing::ValuesIn(SaveScenarios()),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace

bool RealMachine::WasStartedToSave(int count, char** arguments) {
  if (count != 5 || std::string(arguments[1]) != Option) return false;
  for (const SaveScenario& scenario : SaveScenarios()) {
    if (std::string(scenario.name) != arguments[2]) continue;
    const std::string path = arguments[3];
    const FileFaults faults(FileFaults::What::EndsProcess, std::atoi(arguments[4]));
    scenario.save(path);
  }
  return true;
}
