// Whatever fails while a folder is published, and wherever the program is ended, the old state is
// served or the new one, and the next run finds its way.
#include "tests/FailureSweep.h"
#include "tests/tools/PublishStory.h"

namespace {

using namespace Published;
using Simulated::After;
using Simulated::Machine;
using testing::AnyOf;
using testing::ElementsAre;
using testing::IsEmpty;

using State = std::map<std::string, std::string>;

// Little of it, since each call of the system is swept over.
void PutSmallOffer(Machine& machine) {
  machine.files.Put(Folder + "\\tracks\\marsh.zip", Track("marsh"));
  machine.files.Put(Folder + "\\langs\\Francais.zip", Language());
}
void ChangeOffer(Machine& machine) {
  machine.files.Put(Folder + "\\tracks\\marsh.txt", "The Marsh");
  machine.files.Delete(Folder + "\\langs\\Francais.zip");
}

State ServedAfter(const std::function<void(Machine&)>& prepare) {
  Machine machine;
  prepare(machine);
  EXPECT_EQ(Publish().status, PublishCommand::Done);
  return Served(machine);
}

class PublishingSweep : public testing::Test {
 protected:
  const State before = ServedAfter(PutSmallOffer);
  const State after = ServedAfter([](Machine& machine) {
    PutSmallOffer(machine);
    ChangeOffer(machine);
  });

  static void PublishAndChange(Machine& machine) {
    PutSmallOffer(machine);
    ASSERT_EQ(Publish().status, PublishCommand::Done);
    ChangeOffer(machine);
  }
  void ExpectNextRunPublishes(Machine& machine) const {
    const Told told = Publish();
    EXPECT_EQ(told.status, PublishCommand::Done) << told.errors;
    EXPECT_EQ(Served(machine), after);
    EXPECT_THAT(machine.files.Names(Site), ElementsAre("current"));
    EXPECT_THAT(machine.files.Names(Simulated::Disk::TemporaryFolder), IsEmpty());
  }
};

TEST_F(PublishingSweep, ChangesAreSeen) {
  EXPECT_NE(before, after);
}

TEST_F(PublishingSweep, WhateverFailsOneOfTheTwoStatesIsServed) {
  const auto calls = ForEachCallThatFails([&](Machine& machine, After callsBefore) {
    PublishAndChange(machine);
    machine.FailAnyCall(callsBefore);
    const Told told = Publish();
    if (!machine.FailureHappened()) machine.faults = {};
    EXPECT_THAT(told.status, AnyOf(PublishCommand::Done, PublishCommand::Failed));
    EXPECT_EQ(told.errors.empty(), told.status == PublishCommand::Done);
    EXPECT_EQ(Served(machine), told.status == PublishCommand::Done ? after : before);
    ExpectNextRunPublishes(machine);
  });
  EXPECT_GT(calls.size(), 80U);
}

TEST_F(PublishingSweep, WhereverItIsEndedOneOfTheTwoStatesIsServed) {
  int ends = 0;
  for (;; ++ends) {
    Machine machine;
    PublishAndChange(machine);
    machine.faults.EndProgramAtFileCall(After{ends});
    Publish();
    const std::string endedAt = machine.faults.EndedAt();
    machine.StartAnew();
    SCOPED_TRACE("ended at call " + std::to_string(ends) + ": " + endedAt);
    if (machine.files.Exists(Site + "\\current")) {
      EXPECT_THAT(Served(machine), AnyOf(before, after));
    } else {
      // Between the two names. A run that publishes nothing serves it again, too.
      machine.files.Put(Folder + "\\cars\\stray.rar", "");
      EXPECT_EQ(Publish().status, PublishCommand::Refused);
      EXPECT_EQ(Served(machine), before);
      machine.files.Delete(Folder + "\\cars\\stray.rar");
    }
    ExpectNextRunPublishes(machine);
    if (endedAt.empty() || HasFailure()) break;
  }
  EXPECT_GT(ends, 80);
}

TEST_F(PublishingSweep, WhereverTheFirstRunIsEndedNothingIsServedHalf) {
  int ends = 0;
  for (;; ++ends) {
    Machine machine;
    PutSmallOffer(machine);
    machine.faults.EndProgramAtFileCall(After{ends});
    Publish();
    const std::string endedAt = machine.faults.EndedAt();
    machine.StartAnew();
    SCOPED_TRACE("ended at call " + std::to_string(ends) + ": " + endedAt);
    EXPECT_THAT(Served(machine), AnyOf(State(), before));
    ChangeOffer(machine);
    ExpectNextRunPublishes(machine);
    if (endedAt.empty() || HasFailure()) break;
  }
  EXPECT_GT(ends, 40);
}

TEST_F(PublishingSweep, OfARunThatIsRefusedNothingIsChanged) {
  int ends = 0;
  for (;; ++ends) {
    Machine machine;
    PublishAndChange(machine);
    machine.files.Put(Folder + "\\cars\\stray.rar", "");
    machine.faults.EndProgramAtFileCall(After{ends});
    Publish();
    const bool wasEnded = !machine.faults.EndedAt().empty();
    machine.StartAnew();
    EXPECT_EQ(Served(machine), before);
    if (!wasEnded || HasFailure()) break;
  }
  EXPECT_GT(ends, 10);
}

}  // namespace
