// While the pack waits for a server: it stays as it is, and nothing that the user presses then
// takes effect, neither at once nor when the server has answered.
#include <cstdio>

#include "e2e/driver/Keyboard.h"
#include "e2e/driver/PackTest.h"
#include "e2e/driver/Picture.h"
#include "e2e/driver/WebServer.h"

namespace E2e {
namespace {

constexpr const char* AddressPage = "http://address.orvane.example/";

class Transfer : public PackTest {
 protected:
  // The pack waits for the page that tells the address, which comes so.
  Window StartTransfer(const WebAnswer& answer) {
    server.Answer(AddressPage, answer);
    Pack& pack = StartPack();
    const Window main = pack.WaitForMain();
    pack.ChooseMenu({"Internet", "Personal IP Viewer"});
    server.WaitForRequest(AddressPage);
    return main;
  }

  // How many of ten questions by another program the window answers, each within half a second.
  // That is the system's doing, and told, not judged: see docs/architecture.md.
  void TellAnswers(const Window& window, const char* what) {
    int answers = 0;
    for (int i = 0; i < 10; ++i) {
      DWORD_PTR answer = 0;
      if (SendMessageTimeoutA(window.handle(), WM_GETTEXTLENGTH, 0, 0, SMTO_NORMAL, 500, &answer)) {
        ++answers;
      }
    }
    std::printf("%s: %d of 10 questions are answered, the system calls the window %s\n", what,
                answers, IsHungAppWindow(window.handle()) ? "hung" : "well");
    RecordProperty("answers", answers);
  }

  // Presses what would begin something in the main window, and waits until the system has it.
  void PressAllSorts() {
    for (const char* keys : {"Ctrl+N", "Ctrl+C", "Enter", "Escape", "Alt+F4"}) {
      Keyboard::Press(keys);
    }
  }

  WebServer server;
};

TEST_F(Transfer, OfNothingAtAllKeepsThePackAsItIs) {
  WebAnswer silence;
  silence.isSilent = true;
  const Window main = StartTransfer(silence);
  TellAnswers(main, "A server that sends nothing");
  PressAllSorts();
  PostMessageA(main.handle(), WM_CLOSE, 0, 0);
  EXPECT_TRUE(main.IsVisible());
  EXPECT_EQ(TopWindows(RunningPack().program().processId()).size(), 1U);
  server.EndTransfers();
  // Not answered by any of the keys.
  EXPECT_THAT(RunningPack().AnswerBox().text, testing::StartsWith("It seems that you don't have"));
  RunningPack().PressInVain("Ctrl+A");
  EXPECT_EQ(TopWindows(RunningPack().program().processId()).size(), 1U);
  EXPECT_EQ(RunningPack().WaitForMain(), main);
}

TEST_F(Transfer, OfOneByteASecondKeepsThePackAsItIs) {
  WebAnswer page = WebAnswer::Page("...........Your address:   203.0.113.7   ");
  page.isSlow = true;
  const Window main = StartTransfer(page);
  TellAnswers(main, "A server that sends one byte a second");
  PressAllSorts();
  PostMessageA(main.handle(), WM_CLOSE, 0, 0);
  EXPECT_TRUE(main.IsVisible());
  server.EndTransfers();
  // What has come by then is no page.
  EXPECT_EQ(RunningPack().AnswerBox(),
            Critical("Error", "The web page that tells your IP address could not be understood."));
  RunningPack().PressInVain("Ctrl+A");
  EXPECT_EQ(TopWindows(RunningPack().program().processId()).size(), 1U);
  EXPECT_EQ(RunningPack().WaitForMain(), main);
}

TEST_F(Transfer, ThatSucceedsOpensItsToolAndNothingElse) {
  server.Serve(AddressPage, "...........Your address:   203.0.113.7   ");
  Pack& pack = StartPack();
  pack.WaitForMain();
  server.BeforeNextAnswer([this] { PressAllSorts(); });
  pack.ChooseMenu({"Internet", "Personal IP Viewer"});
  const Window viewer = pack.WaitForWindow("Personal IP Viewer");
  EXPECT_EQ(viewer.control("IP:").text(), "203.0.113.7");
  EXPECT_EQ(server.Requests().size(), 2U);
  pack.Press("Escape");
  pack.WaitForMain();
  pack.PressInVain("Ctrl+A");
  EXPECT_EQ(TopWindows(pack.program().processId()).size(), 1U);
}

}  // namespace
}  // namespace E2e
