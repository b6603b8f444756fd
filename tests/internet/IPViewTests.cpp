// The viewer of the public address.
#include "tests/FailureSweep.h"
#include "tests/internet/InternetStory.h"

namespace {

using Platform::Icon;
using testing::HasSubstr;
using testing::SizeIs;

class IPViewStory : public InternetStory {
 protected:
  IPViewStory() { StartPack(); }

  void OpenViewer() { user.ChoosesMenu({"Internet", "Personal IP Viewer"}); }
};

TEST_F(IPViewStory, TheAddressIsHeardAndCopied) {
  OpenViewer();
  EXPECT_EQ(user.SeesWindow(), "Personal IP Viewer");
  EXPECT_EQ(user.Hears(), "IP:, edit, read only, 203.0.113.7");
  EXPECT_THAT(machine.web.Downloads(), testing::ElementsAre(AddressPage, AddressPage));
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Copy IP, button, Alt+C");
  machine.clipboard.SetText("before");
  user.Presses("Space");
  EXPECT_EQ(machine.clipboard.text(), "203.0.113.7");
  EXPECT_EQ(user.SeesWindow(), "Personal IP Viewer");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Exit Viewer, button, Alt+X");
  user.Presses("Enter");
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(IPViewStory, EnterInTheAddressCopiesIt) {
  OpenViewer();
  user.Presses("Enter");
  EXPECT_EQ(machine.clipboard.text(), "203.0.113.7");
}

TEST_F(IPViewStory, EveryWayOutLeadsBackToTheMainWindow) {
  for (const char* key : {"Escape", "Alt+X", "Alt+F4"}) {
    OpenViewer();
    EXPECT_EQ(user.SeesWindow(), "Personal IP Viewer");
    user.Presses(key);
    EXPECT_EQ(user.SeesWindow(), PackTitle) << key;
  }
}

TEST_F(IPViewStory, TheAddressIsAskedForAnewEachTime) {
  OpenViewer();
  user.Presses("Escape");
  machine.web.Serve(AddressPage, PageWith("198", "51", "100", "255"));
  OpenViewer();
  EXPECT_EQ(user.Hears(), "IP:, edit, read only, 198.51.100.255");
}

TEST_F(IPViewStory, WithoutConnectionTheUserIsTold) {
  machine.web.GoOffline();
  OpenViewer();
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Critical,
                    "It seems that you don't have an active internet connection at present. Please "
                    "connect to the internet and try again.",
                    "Error"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(IPViewStory, AConnectionThatIsLostMeanwhileLeavesTheAddressEmpty) {
  machine.web.TakeAway(AddressPage);
  machine.web.AnswerOnce(AddressPage, {0, PageWith("1", "2", "3", "4")});
  OpenViewer();
  EXPECT_EQ(user.Hears(), "IP:, edit, read only");
}

TEST_F(IPViewStory, APageThatIsNotUnderstoodIsToldInPlainWords) {
  machine.web.Serve(AddressPage, "<html>It works!</html>");
  OpenViewer();
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Critical,
                    "The web page that tells your IP address could not be understood.", "Error"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(IPViewStory, NothingBeginsWhileThePageIsFetched) {
  user.DuringLongStep([this] {
    user.Presses("Ctrl+N");
    user.ClosesWindow();
    OpenViewer();
  });
  user.DuringLongStep([this] { user.ClosesFromTaskbar(PackTitle); });
  OpenViewer();
  EXPECT_EQ(user.SeesWindow(), "Personal IP Viewer");
  EXPECT_THAT(machine.web.Downloads(), SizeIs(2));
}

TEST_F(IPViewStory, AClipboardInUseIsWaitedForAndToldIfItStaysSo) {
  OpenViewer();
  machine.clipboard.SetText("before");
  machine.clipboard.Hold(2);
  user.Presses("Alt+C");
  EXPECT_EQ(machine.clipboard.text(), "203.0.113.7");
  EXPECT_TRUE(user.Boxes().empty());
  machine.clipboard.SetText("before");
  machine.clipboard.Hold();
  user.Presses("Alt+C");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical,
                                    "The clipboard is in use by another program.\r\n"
                                    "Opening the clipboard: system error 5",
                                    "Error"));
  EXPECT_EQ(machine.clipboard.text(), "before");
  EXPECT_EQ(user.SeesWindow(), "Personal IP Viewer");
}

TEST(IPViewSweep, WhateverFailsTheUserIsToldAndKeepsAWindow) {
  const auto calls = ForEachCallThatFails([](auto& machine, Simulated::After after) {
    machine.web.Serve("http://address.orvane.example/",
                      "..........."
                      "1.2.3.4");
    StartPack();
    machine.FailAnyCall(after);
    machine.user.ChoosesMenu({"Internet", "Personal IP Viewer"});
    EXPECT_THAT(machine.screen.Titles(), SizeIs(1));
    if (machine.user.SeesWindow() == "Personal IP Viewer") {
      machine.user.Presses("Alt+C");
      EXPECT_TRUE(machine.clipboard.text() == "1.2.3.4" || !machine.user.Boxes().empty() ||
                  machine.user.Hears().empty() || machine.FailureHappened());
    } else {
      EXPECT_FALSE(machine.user.Boxes().empty());
    }
  });
  EXPECT_THAT(calls, testing::Contains(HasSubstr("DownloadToFile")));
  EXPECT_THAT(calls, testing::Contains(HasSubstr("SetClipboardText")));
}

}  // namespace
