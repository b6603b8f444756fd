// The viewer of the public address, on the web that is there and on one that is not.
#include "e2e/driver/Clipboard.h"
#include "e2e/driver/PackTest.h"
#include "e2e/driver/ServedFile.h"
#include "e2e/driver/WebServer.h"

namespace E2e {
namespace {

constexpr const char* Title = "Personal IP Viewer";
constexpr const char* AddressPage = "http://address.orvane.example/";

class IPView : public PackTest {
 protected:
  // The page as it comes from the maker's server, for an address.
  static std::string PageWith(const std::string& address) {
    return "...........Your address:   " + address + "   ";
  }

  void ChooseViewer() { RunningPack().ChooseMenu({"Internet", "Personal IP Viewer"}); }

  std::string Address() { return RunningPack().WaitForWindow(Title).control("IP:").text(); }

  void ExpectNoConnectionIsTold() {
    EXPECT_EQ(RunningPack().AnswerBox(),
              Critical("Error",
                       "It seems that you don't have an active internet connection at present. "
                       "Please connect to the internet and try again."));
    RunningPack().WaitForMain();
  }
};

TEST_F(IPView, ShowsTheAddressThatTheMakersServerTells) {
  Pack& pack = StartPack();
  ChooseViewer();
  EXPECT_EQ(Address(), "127.0.0.1");
  EXPECT_EQ(pack.WaitForWindow(Title).focus()->name(), "IP:");
  pack.Press("Escape");
  pack.WaitForMain();
  EXPECT_FALSE(Exists(programFolder() + "\\read.tmp"));
}

TEST_F(IPView, CopiesTheAddressByTheKeyboardAlone) {
  const ServedFile page("address.orvane.example", "/index.html", PageWith("203.0.113.7"));
  HeldClipboard().SetText(L"before");
  Pack& pack = StartPack();
  ChooseViewer();
  EXPECT_EQ(Address(), "203.0.113.7");
  pack.TabTo("Copy IP");
  EXPECT_EQ(ClipboardText(), L"before");
  pack.Press("Space");
  WaitUntil("the address copied", [] { return ClipboardText() == L"203.0.113.7"; });
  EXPECT_EQ(Address(), "203.0.113.7");
  for (const char* key : {"Enter", "Alt+C"}) {
    HeldClipboard().SetText(L"before");
    pack.Press(key);
    WaitUntil("the address copied", [] { return ClipboardText() == L"203.0.113.7"; });
  }
  pack.TabTo("Exit Viewer");
  pack.Press("Enter");
  pack.WaitForMain();
}

TEST_F(IPView, EveryWayOutLeadsBackAndTheAddressIsAskedForAnew) {
  WebServer server;
  Pack& pack = StartPack();
  int visits = 0;
  for (const char* key : {"Escape", "Alt+X", "Alt+F4"}) {
    const std::string address = "198.51.100." + std::to_string(++visits);
    server.Serve(AddressPage, PageWith(address));
    ChooseViewer();
    EXPECT_EQ(Address(), address);
    pack.Press(key);
    pack.WaitForMain();
  }
}

TEST_F(IPView, AClipboardThatAnotherProgramHoldsIsTold) {
  HeldClipboard().SetText(L"before");
  Pack& pack = StartPack();
  ChooseViewer();
  pack.WaitForWindow(Title);
  {
    const HeldClipboard held;
    pack.Press("Alt+C");
    EXPECT_EQ(pack.AnswerBox(), Critical("Error",
                                         "The clipboard is in use by another program.\r\n"
                                         "Opening the clipboard: system error 5"));
    pack.WaitForWindow(Title);
    EXPECT_EQ(held.text(), L"before");
  }
  pack.Press("Alt+C");
  WaitUntil("the address copied", [] { return ClipboardText() == L"127.0.0.1"; });
}

TEST_F(IPView, WithoutAServerNoConnectionIsTold) {
  WebServer server;
  server.GoOffline();
  StartPack();
  ChooseViewer();
  ExpectNoConnectionIsTold();
}

TEST_F(IPView, AConnectionThatIsResetAtOnceIsNone) {
  WebServer server;
  WebAnswer answer = WebAnswer::Page(PageWith("203.0.113.7"));
  answer.resetBehind = 0;
  server.Answer(AddressPage, answer);
  StartPack();
  ChooseViewer();
  ExpectNoConnectionIsTold();
}

TEST_F(IPView, AServerThatMovedThePageIsFollowed) {
  WebServer server;
  server.Answer(AddressPage, WebAnswer::RedirectTo("http://elsewhere.example/address"));
  server.Serve("http://elsewhere.example/address", PageWith("8.8.4.4"));
  StartPack();
  ChooseViewer();
  EXPECT_EQ(Address(), "8.8.4.4");
}

// The system calls all of these a success.
TEST_F(IPView, APageThatIsNotUnderstoodIsToldInPlainWords) {
  WebServer server;
  Pack& pack = StartPack();
  WebAnswer tooShort = WebAnswer::Page("....." + PageWith("203.0.113.7"));
  tooShort.body.resize(10);
  for (const WebAnswer& answer :
       {WebAnswer::Page("<html>404. Not found.</html>", "404 Not Found"),
        WebAnswer::Page("<html>It is our fault.</html>", "500 Internal Server Error"),
        WebAnswer::Page("<html>It works!</html>"), tooShort}) {
    server.Answer(AddressPage, answer);
    ChooseViewer();
    EXPECT_EQ(pack.AnswerBox(),
              Critical("Error", "The web page that tells your IP address could not be understood."))
        << answer.body;
    pack.WaitForMain();
    EXPECT_FALSE(Exists(programFolder() + "\\read.tmp"));
  }
}

// A page that is cut off is no page, unless nothing of the address is missing.
TEST_F(IPView, APageThatIsCutOffIsNoAddress) {
  WebServer server;
  Pack& pack = StartPack();
  const std::string page = PageWith("203.0.113.7");
  WebAnswer inTheMiddle = WebAnswer::Page(page);
  inTheMiddle.resetBehind = 5;
  WebAnswer saidToBeShorter = WebAnswer::Page(page);
  saidToBeShorter.declaredLength = 5;
  WebAnswer saidToBeLonger = WebAnswer::Page(page.substr(0, 5));
  saidToBeLonger.declaredLength = page.size();
  for (const WebAnswer& answer : {inTheMiddle, saidToBeShorter, saidToBeLonger}) {
    server.Answer(AddressPage, answer);
    ChooseViewer();
    EXPECT_EQ(pack.AnswerBox().icon, BoxIcon::Critical);
    pack.WaitForMain();
  }
}

TEST_F(IPView, AResetAtTheLastByteLeavesTheRightAddressOrNone) {
  WebServer server;
  Pack& pack = StartPack();
  const std::string page = PageWith("203.0.113.7");
  WebAnswer answer = WebAnswer::Page(page);
  answer.resetBehind = page.size() - 1;
  server.Answer(AddressPage, answer);
  ChooseViewer();
  server.WaitForRequest(AddressPage);
  WaitUntil("what came of it", [&] {
    const Window front(GetForegroundWindow());
    return IsBox(front) || front.text() == Title;
  });
  if (IsBox(Window(GetForegroundWindow()))) {
    EXPECT_EQ(pack.AnswerBox().icon, BoxIcon::Critical);
  } else {
    const std::string address = Address();
    EXPECT_TRUE(address == "203.0.113.7" || address.empty()) << address;
    pack.Press("Escape");
  }
  pack.WaitForMain();
}

TEST_F(IPView, AnEmptyPageTellsNoAddress) {
  WebServer server;
  server.Serve(AddressPage, "");
  StartPack();
  ChooseViewer();
  ExpectNoConnectionIsTold();
}

}  // namespace
}  // namespace E2e
