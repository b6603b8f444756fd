#include "base/PerRun.h"

#include <gmock/gmock.h>

#include <string>

namespace {

std::vector<std::string>& Events() {
  static std::vector<std::string> events;
  return events;
}

struct First {
  First() { Events().push_back("first made"); }
  ~First() { Events().push_back("first gone"); }
  int value = 1;
};

struct Second {
  Second() { Events().push_back("second made"); }
  ~Second() { Events().push_back("second gone"); }
};

// Uses another object of the run while it goes.
struct Late {
  ~Late() { PerRun<Second>(); }
};

class PerRunTest : public testing::Test {
 protected:
  PerRunTest() {
    RunObjects::End();
    Events().clear();
  }
  ~PerRunTest() override { RunObjects::End(); }
};

TEST_F(PerRunTest, AnObjectIsMadeAtItsFirstUseAndIsAlwaysTheSame) {
  EXPECT_EQ(PerRun<First>().value, 1);
  PerRun<First>().value = 2;
  EXPECT_EQ(PerRun<First>().value, 2);
  EXPECT_THAT(Events(), testing::ElementsAre("first made"));
}

TEST_F(PerRunTest, TheRunsEndDestroysTheLastMadeFirst) {
  PerRun<First>();
  PerRun<Second>();
  RunObjects::End();
  EXPECT_THAT(Events(),
              testing::ElementsAre("first made", "second made", "second gone", "first gone"));
}

TEST_F(PerRunTest, TheNextRunHasNewObjects) {
  PerRun<First>().value = 2;
  RunObjects::End();
  EXPECT_EQ(PerRun<First>().value, 1);
}

TEST_F(PerRunTest, AnObjectThatIsMadeWhileTheRunEndsGoesToo) {
  PerRun<Late>();
  RunObjects::End();
  EXPECT_THAT(Events(), testing::ElementsAre("second made", "second gone"));
}

}  // namespace
