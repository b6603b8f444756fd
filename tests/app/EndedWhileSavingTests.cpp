// The pack is ended at each file call of what it writes: the user's file is whole, and the next
// time the same is done nothing is left behind.
#include <functional>

#include "base/LineReader.h"
#include "tests/Matchers.h"
#include "tests/StartedPack.h"
#include "tracks/TrackInWork.h"
#include "ui/Forms.h"

namespace {

using testing::HasSubstr;

const std::string Game = StartedPack::Game;
const std::string Records = Game + "\\highscore.cfg";
const std::string Race = Game + "\\tracks\\Race.trk";
const std::string OnePart = "3\r\n1\r\n7000\r\n";

// What the user does, from the main window on, and what the file may hold afterwards.
struct Work {
  const char* name;
  std::string path;
  std::string before;
  std::function<bool(const std::string&)> isDone;
  void (*act)(Simulated::User& user);
};

std::vector<Work> Works() {
  const std::string two = "hill=1000\r\nlake=2000\r\n";
  const auto equals = [](std::string bytes) {
    return [bytes = std::move(bytes)](const std::string& found) { return found == bytes; };
  };
  return {
      {"DeletingARecord", Records, two, equals("lake=2000\r\n"),
       [](Simulated::User& user) {
         user.ChoosesMenu({"Game", "Record Viewer"});
         user.AnswersYes();
         user.Presses("Alt+D");
       }},
      {"ResettingTheRecords", Records, two, equals(""),
       [](Simulated::User& user) {
         user.ChoosesMenu({"Game", "Record Viewer"});
         user.AnswersYes();
         user.Presses("Alt+R");
       }},
      {"SavingATrack", Race, "an old track", equals(OnePart + "-1\r\n0\r\n"),
       [](Simulated::User& user) {
         user.ChoosesFile("Race.trk");
         user.AnswersYes();
         user.ChoosesMenu({"Track", "New"});
         TheTrack().TrackText = OnePart;
         user.AnswersYes();
         user.Presses("Alt+S");
       }},
      {"MakingARandomTrack", Race, "an old track",
       [](const std::string& bytes) {
         const auto lines = LinesOf(bytes);
         return lines.size() == 3000 * 3 + 2u && lines.back() == "1";
       },
       [](Simulated::User& user) {
         user.ChoosesFile("Race.trk");
         user.AnswersYes();
         user.AnswersNo();
         user.TypesInBox("3000");
         user.AnswersNo();
         user.ChoosesMenu({"Track", "Random Track"});
       }},
  };
}

class EndedWhile : public testing::TestWithParam<Work> {
 protected:
  static void ExpectTidy(const Simulated::Machine& machine) {
    EXPECT_EQ(machine.files.Names(Game).size(), 4u);
    EXPECT_EQ(machine.files.Names(Game + "\\tracks").size(), 1u);
    EXPECT_THAT(machine.files.Names(Simulated::Disk::TemporaryFolder), testing::IsEmpty());
  }
};

TEST_P(EndedWhile, TheFileIsWholeAndTheNextTimeNothingIsLeft) {
  const Work& work = GetParam();
  bool isEnded = true;
  int n = 0;
  for (; isEnded && !HasFailure(); ++n) {
    Simulated::Machine machine;
    InstallGame(machine, Game);
    machine.files.Put(Records, "");
    machine.files.Put(Race, "");
    machine.files.Put(work.path, work.before);
    StartPack();
    machine.faults.EndProgramAtFileCall(Simulated::After{n});
    work.act(machine.user);
    isEnded = !machine.faults.EndedAt().empty();
    SCOPED_TRACE(std::to_string(n) + " " + machine.faults.EndedAt());
    ForgetPlans(machine.user);
    machine.StartAnew();
    const std::string found = machine.files.Text(work.path);
    EXPECT_TRUE(work.isDone(found) || (isEnded && found == work.before)) << found.substr(0, 80);

    machine.files.Put(work.path, work.before);
    StartPack();
    work.act(machine.user);
    EXPECT_TRUE(work.isDone(machine.files.Text(work.path)));
    ExpectTidy(machine);
  }
  EXPECT_GT(n, 10);
}

INSTANTIATE_TEST_SUITE_P(Pack, EndedWhile, testing::ValuesIn(Works()),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
