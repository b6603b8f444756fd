// While the pack hands over between its windows, no other program comes to the front: a screen
// reader would begin to read that one.
#include "e2e/Openings.h"
#include "e2e/driver/ForegroundWatch.h"
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A window of this very program, brought to the front.
class OwnWindow {
 public:
  explicit OwnWindow(const std::string& title)
      : window_(CreateWindowExA(0, "STATIC", title.c_str(), WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40,
                                40, 200, 100, nullptr, nullptr, nullptr, nullptr)) {
    SetForegroundWindow(window_);
    WaitUntil(title + " in front", [this] { return GetForegroundWindow() == window_; });
  }
  ~OwnWindow() { DestroyWindow(window_); }
  OwnWindow(const OwnWindow&) = delete;
  OwnWindow& operator=(const OwnWindow&) = delete;
  HWND handle() const { return window_; }

 private:
  HWND window_;
};

// The watch finds what it is there for.
using ForegroundWatching = PackTest;

TEST_F(ForegroundWatching, FindsAnotherProgramThatComesToTheFront) {
  const OwnWindow own("Own");
  ForegroundWatch watch(GetCurrentProcessId());
  EXPECT_THAT(watch.Strangers(), IsEmpty());
  StartPack();
  WaitUntil("the pack found by the watch", [&] {
    return watch.Strangers() == std::set<std::wstring>{L"Skidrun2 Utility Pack V1.0"};
  });
}

TEST_F(ForegroundWatching, FindsWhoeverIsLetInByAWindowThatGoesTooEarly) {
  const OwnWindow first("First");
  const OwnWindow second("Second");
  ShowWindow(first.handle(), SW_HIDE);
  ForegroundWatch watch(GetCurrentProcessId());
  EXPECT_THAT(watch.Strangers(), IsEmpty());
  ShowWindow(second.handle(), SW_HIDE);
  ShowWindow(first.handle(), SW_SHOW);
  EXPECT_THAT(watch.Strangers(), ElementsAre(ForegroundWatch::BystanderTitle));
}

class Foreground : public PackTest {
 protected:
  void TearDown() override {
    if (watch_) {
      EXPECT_THAT(watch_->Strangers(), IsEmpty());
    }
    watch_.reset();
    PackTest::TearDown();
  }

  Pack& StartWatchedPack() {
    Pack& pack = StartPack();
    watch_ = std::make_unique<ForegroundWatch>(pack.program().processId());
    return pack;
  }

 private:
  std::unique_ptr<ForegroundWatch> watch_;
};

TEST_F(Foreground, StaysWithThePackWhileEachWindowOpensAndCloses) {
  Pack& pack = StartWatchedPack();
  for (const Opening& opening : Openings()) {
    opening.open(pack);
    pack.WaitForWindow(opening.title);
    pack.Press("Escape");
    opening.leave(pack);
  }
}

TEST_F(Foreground, StaysWithThePackFromAChooserToItsToolAndBack) {
  Pack& pack = StartWatchedPack();
  pack.Press("Ctrl+N");
  pack.WaitForWindow("New what?");
  pack.Press("Down");
  pack.WaitForRow("Track");
  pack.Press("Enter");
  pack.ChooseFile("Race");
  pack.WaitForWindow("SK2 Trackmaker by Orvane Interactive");
  pack.Press("Escape");
  pack.WaitForMain();
}

TEST_F(Foreground, StaysWithThePackWhileABoxIsAnswered) {
  Pack& pack = StartWatchedPack();
  pack.ChooseMenu({"Help", "About"});
  pack.AnswerBox();
  pack.WaitForMain();
  pack.ChooseMenu({"Game", "Record Viewer"});
  pack.WaitForWindow("Record Viewer");
  pack.Press("Alt+R");
  pack.AnswerBox("N");
  pack.WaitForWindow("Record Viewer");
}

TEST_F(Foreground, StaysWithThePackWhileAFileDialogIsCancelled) {
  Pack& pack = StartWatchedPack();
  for (const char* opener : {"Check .trk file", "New"}) {
    pack.ChooseMenu({"Track", opener});
    pack.CancelFileDialog();
    pack.AnswerBox();
    pack.WaitForMain();
  }
}

}  // namespace
}  // namespace E2e
