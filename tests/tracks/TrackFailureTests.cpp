// Every call of the machine fails once while tracks are made: nothing is lost, nothing is left
// behind, and the user is told and never without a window.
#include "base/LineReader.h"
#include "tests/FailureSweep.h"
#include "tests/Matchers.h"
#include "tests/StartedPack.h"
#include "tracks/TrackInWork.h"

namespace {

using testing::AnyOf;
using testing::ElementsAre;

const std::string Tracks = StartedPack::Game + "\\tracks";
const std::string Race = Tracks + "\\Race.trk";
const std::string EditorTitle = "SK2 Trackmaker by Orvane Interactive";
const std::string PartTitle = "New track part";
const std::string PackTitle = "Skidrun2 Utility Pack V1.0";
const std::string OnePart = "3\r\n1\r\n7000\r\n";

// The parts that the open editor lists.
std::vector<std::string> ShownParts() {
  std::vector<std::string> parts;
  for (const Platform::Control* control : Platform::ActiveForm()->controls()) {
    if (control->kind() != Platform::Control::Kind::ListBox) continue;
    const auto& list = static_cast<const Platform::ListBox&>(*control);
    for (int i = 0; i < list.count(); ++i) parts.push_back(list.row(i));
  }
  return parts;
}

// Lets each call of an action in the started pack fail in turn.
void LetEachCallFail(const std::function<void(StartedPack&, Simulated::After)>& action) {
  const auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After after) {
    StartedPack pack(machine, Race, "an old track");
    action(pack, after);
    ASSERT_NE(Platform::ActiveForm(), nullptr);
    EXPECT_TRUE(Platform::ActiveForm()->IsVisible());
    // A random track has its name in small letters.
    EXPECT_THAT(machine.files.Names(Tracks), ElementsAre(AnyOf("Race.trk", "race.trk")));
  });
  EXPECT_GT(calls.size(), 3U) << "hardly a call was made to fail";
}

TEST(TrackFailureSweep, ANewTrackOpensTheEditorOrLeavesTheMainWindow) {
  LetEachCallFail([](StartedPack& pack, Simulated::After after) {
    pack.user.ChoosesFile("Race.trk");
    pack.user.AnswersYes();
    pack.machine.FailAnyCall(after);
    pack.user.ChoosesMenu({"Track", "New"});
    const bool failed = pack.machine.FailureHappened();
    if (TheTrack().TrackPath.empty()) {
      EXPECT_TRUE(failed && pack.WasToldOfAFailure());
      EXPECT_EQ(pack.user.SeesWindow(), PackTitle);
      pack.ForgetTheRest();
      pack.user.ChoosesFile("Race.trk");
      pack.user.AnswersYes();
      pack.user.ChoosesMenu({"Track", "New"});
    }
    EXPECT_EQ(TheTrack().TrackPath, Race);
    EXPECT_EQ(pack.user.SeesWindow(), EditorTitle);
  });
}

TEST(TrackFailureSweep, APartIsAddedWhateverFails) {
  LetEachCallFail([](StartedPack& pack, Simulated::After after) {
    pack.user.ChoosesFile("Race.trk");
    pack.user.AnswersYes();
    pack.user.ChoosesMenu({"Track", "New"});
    pack.machine.FailAnyCall(after);
    pack.user.Presses("Alt+P");
    if (pack.user.SeesWindow() != PartTitle) {  // without its rows the dialog does not open
      EXPECT_TRUE(pack.machine.FailureHappened() && pack.WasToldOfAFailure());
      EXPECT_EQ(pack.user.SeesWindow(), EditorTitle);
      pack.user.Presses("Alt+P");
    }
    pack.user.Types("7000");
    pack.user.Presses("Tab");
    pack.user.Presses("Down");
    pack.user.Presses("Tab");
    for (int i = 0; i < 3; ++i) pack.user.Presses("Down");
    pack.user.Presses("Enter");
    if (pack.user.SeesWindow() != EditorTitle) {
      EXPECT_TRUE(pack.WasToldOfAFailure());
      pack.user.Presses("Escape");
    }
    EXPECT_EQ(pack.user.SeesWindow(), EditorTitle);
    EXPECT_EQ(TheTrack().TrackText, OnePart);
    const std::string call = pack.machine.FailedCall();
    if (call == "FormView::RowAdded" || call.starts_with("FormView::Show")) {  // the part, no line
      EXPECT_TRUE(pack.WasToldOfAFailure());
    } else {
      EXPECT_THAT(ShownParts(),
                  testing::ElementsAre("Hard Left section on Gravel for 7000 units."));
    }
  });
}

TEST(TrackFailureSweep, ASaveWritesTheWholeTrackOrKeepsItAndTheOldFile) {
  LetEachCallFail([](StartedPack& pack, Simulated::After after) {
    pack.user.ChoosesFile("Race.trk");
    pack.user.AnswersYes();
    pack.user.ChoosesMenu({"Track", "New"});
    TheTrack().TrackText = OnePart;
    pack.user.AnswersYes();
    pack.machine.FailAnyCall(after);
    pack.user.Presses("Alt+S");
    const bool failed = pack.machine.FailureHappened();
    if (!TheTrack().TrackPath.empty()) {
      EXPECT_TRUE(failed && pack.WasToldOfAFailure());
      EXPECT_EQ(pack.user.SeesWindow(), EditorTitle);
      EXPECT_EQ(TheTrack().TrackText, OnePart);
      EXPECT_EQ(pack.machine.files.Text(Race), "an old track");
      pack.user.AnswersYes();
      pack.user.Presses("Alt+S");
    }
    if (pack.user.SeesWindow() == EditorTitle) {
      EXPECT_TRUE(failed && pack.WasToldOfAFailure());
      pack.user.Presses("Escape");
    }
    EXPECT_EQ(pack.user.SeesWindow(), PackTitle);
    EXPECT_EQ(pack.machine.files.Text(Race), OnePart + "-1\r\n0\r\n");
  });
}

TEST(TrackFailureSweep, ARandomTrackIsWholeOrNotThereAtAll) {
  LetEachCallFail([](StartedPack& pack, Simulated::After after) {
    const auto makesTrack = [&] {
      pack.user.ChoosesFile("Race.trk");
      pack.user.AnswersYes();
      pack.user.AnswersNo();
      pack.user.TypesInBox("9000");  // more than one block
      pack.user.AnswersNo();
      pack.user.ChoosesMenu({"Track", "Random Track"});
    };
    pack.machine.FailAnyCall(after);
    makesTrack();
    const bool failed = pack.machine.FailureHappened();
    EXPECT_EQ(pack.user.SeesWindow(), PackTitle);
    if (pack.WasToldOfAFailure()) {
      EXPECT_TRUE(failed);
      EXPECT_EQ(pack.machine.files.Text(Race), "an old track");
      pack.ForgetTheRest();
      makesTrack();
    }
    EXPECT_EQ(pack.user.LastBox().title, "Thank you!");
    const std::vector<std::string> lines = LinesOf(pack.machine.files.Text(Race));
    EXPECT_EQ(lines.size(), 9000 * 3 + 2u);
    EXPECT_EQ(lines.back(), "1");
  });
}

}  // namespace
