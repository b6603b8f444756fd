// Add-ons: from the maker's web site in the small, and from servers and archives that are none.
#include <functional>

#include "e2e/driver/Keyboard.h"
#include "e2e/driver/PackTest.h"
#include "e2e/driver/WebServer.h"
#include "tests/archive/ZipBytes.h"

namespace E2e {
namespace {

constexpr const char* Kinds = "SK2 Package Downloader";
constexpr const char* Files = "Download directory";
constexpr const char* AddressPage = "http://address.orvane.example/";
const std::string Data = "http://www.orvane.example/orvane/games/sk2/data/";
const std::string Archives = "http://www.orvane.example/orvane/games/sk2/";

const std::string Success = "File successfully downloaded and installed.";

class Download : public PackTest {
 protected:
  // Leads to the server's list of a kind, counted from 0, by the keyboard alone.
  Window OpenFiles(int kind) {
    Pack& pack = RunningPack();
    pack.ChooseMenu({"Internet", "Package Downloader"});
    pack.WaitForWindow(Kinds);
    const char* names[] = {"Car", "Track", "Language"};
    for (int i = 0; i < kind; ++i) pack.Press("Down");
    pack.WaitForRow(names[kind]);
    pack.Press("Enter");
    return pack.WaitForWindow(Files);
  }
  // Gets the add-on that is selected there, and reads the box that comes of it.
  BoxText Get() {
    RunningPack().Press("Enter");
    return RunningPack().AnswerBox();
  }
  static BoxText DownloadError(const std::string& name) {
    return Critical("Download error", "The file " + name +
                                          " could not be accessed from server. If the error "
                                          "continues, please contact Orvane-Interactive.");
  }
  // From the window of kinds, where a failed download leads.
  void LeaveKinds() {
    EXPECT_EQ(RunningPack().WaitForWindow(Kinds).focus()->name(), "Select SK2 component:");
    RunningPack().Press("Escape");
    RunningPack().WaitForMain();
  }
  void ExpectNoLeftovers() const {
    for (const char* name : {"read.tmp", "list.tmp", "temp.zip"}) {
      EXPECT_FALSE(Exists(programFolder() + "\\" + name)) << name;
    }
  }
};

TEST_F(Download, PutsACarATrackAndALanguageIntoTheGame) {
  Pack& pack = StartPack();
  const char* files[] = {"vehicles\\Cricket\\Cricket.vhc", "tracks\\marsh.trk",
                         "sounds\\Francais\\welcome.wav"};
  const char* rows[] = {"Cricket", "Marsh", "Fran"};
  for (int kind = 0; kind < 3; ++kind) {
    const Window list = OpenFiles(kind);
    const std::string file = gameFolder() + "\\" + files[kind];
    EXPECT_FALSE(Exists(file));
    for (size_t i = 0; i < list.control("Select file:").rows().size(); ++i) {
      if (list.control("Select file:").selectedRow().find(rows[kind]) != std::string::npos) break;
      pack.Press("Down");
    }
    EXPECT_EQ(Get(), Information("Download completed.", Success));
    pack.WaitForMain();
    EXPECT_TRUE(Exists(file)) << file;
    ExpectNoLeftovers();
  }
  // What came is as good as what is made here.
  pack.ChooseMenu({"Vehicle", "Check .vhc file"});
  pack.ChooseFile("Cricket\\Cricket.vhc");
  EXPECT_EQ(pack.AnswerBox().icon, BoxIcon::Information);
  pack.WaitForMain();
  pack.ChooseMenu({"Track", "Check .trk file"});
  pack.ChooseFile("marsh.trk");
  EXPECT_EQ(pack.AnswerBox().icon, BoxIcon::Information);
}

// The tests that follow have a server of their own.
class BadDownload : public Download {
 protected:
  BadDownload() {
    server.Serve(AddressPage, "...........Your address:   203.0.113.7   ");
    server.Serve(Data + "cars.lst", "Buggy:buggy.zip\n");
    server.Serve(Archives + "cars/buggy.zip", archive);
  }

  static std::string Long() {
    std::string text;
    for (int i = 0; i < 40000; ++i) text += std::to_string(i * 7919 % 10007);
    return text;
  }

  const std::string archive = ZipBytes::Of({.name = "buggy.vhc", .contents = Long()});
  WebServer server;
};

TEST_F(BadDownload, IsToldAndLeavesNothing) {
  struct Bad {
    const char* what;
    std::function<void(WebAnswer&)> spoil;
    std::string told;
  };
  const std::string damaged = "The archive is damaged.";
  const std::string noZip = "This is not a zip archive.";
  const Bad all[] = {
      {"reset at the start", [](WebAnswer& answer) { answer.resetBehind = 0; }, ""},
      {"reset in the middle",
       [](WebAnswer& answer) { answer.resetBehind = answer.body.size() / 2; }, ""},
      {"reset at the last byte",
       [](WebAnswer& answer) { answer.resetBehind = answer.body.size() - 1; }, ""},
      {"more is declared than comes",
       [](WebAnswer& answer) {
         answer.declaredLength = answer.body.size();
         answer.body.resize(answer.body.size() / 2);
       },
       ""},
      {"less is declared than comes",
       [](WebAnswer& answer) { answer.declaredLength = answer.body.size() - 10; }, ""},
      {"a page instead",
       [](WebAnswer& answer) {
         answer = WebAnswer::Page("<html>404. Not found.</html>", "404 Not Found");
       },
       ""},
      {"an archive that is cut off",
       [](WebAnswer& answer) {
         answer = WebAnswer::Page(answer.body.substr(0, answer.body.size() - 30));
       },
       ""},
      {"an archive with other contents",
       [](WebAnswer& answer) { answer.body[answer.body.size() / 2] ^= 0x10; }, damaged},
      {"nothing", [](WebAnswer& answer) { answer = WebAnswer::Page(""); }, noZip},
  };
  Pack& pack = StartPack();
  const auto before = NamesIn(gameFolder() + "\\vehicles");
  for (const Bad& bad : all) {
    SCOPED_TRACE(bad.what);
    WebAnswer answer = WebAnswer::Page(archive);
    bad.spoil(answer);
    server.Answer(Archives + "cars/buggy.zip", answer);
    OpenFiles(0);
    const BoxText box = Get();
    EXPECT_EQ(box.icon, BoxIcon::Critical);
    // Whether the system calls the download a failure, or what came is no archive: either is told.
    if (box.title == "Download error") {
      EXPECT_EQ(box, DownloadError("buggy.zip"));
    } else {
      EXPECT_EQ(box.title, "Error");
      EXPECT_THAT(box.text, testing::HasSubstr("archive"));
      EXPECT_THAT(box.text, testing::HasSubstr("temp.zip"));
      EXPECT_THAT(box.text, testing::StartsWith(bad.told));
    }
    LeaveKinds();
    EXPECT_EQ(NamesIn(gameFolder() + "\\vehicles"), before);
    ExpectNoLeftovers();
  }
  // The next one that is good is as if nothing had been.
  server.Serve(Archives + "cars/buggy.zip", archive);
  OpenFiles(0);
  EXPECT_EQ(Get(), Information("Download completed.", Success));
  pack.WaitForMain();
  EXPECT_EQ(ReadFile(gameFolder() + "\\vehicles\\buggy.vhc"), Long());
}

TEST_F(BadDownload, OfAHostileArchivePutsNothingAnywhere) {
  StartPack();
  const auto before = NamesIn(gameFolder());
  for (const char* name :
       {"../evil.txt", "..\\evil.txt", "/evil.txt", "C:\\evil.txt", "\\\\server\\evil.txt",
        "nul.txt", "a.txt:stream", "dots.", "blank ", "a/../../evil.txt"}) {
    SCOPED_TRACE(name);
    server.Serve(Archives + "cars/buggy.zip",
                 ZipBytes::Bytes({.members = {{.name = "good.txt", .contents = "good"},
                                              {.name = name, .contents = "evil"}}}));
    OpenFiles(0);
    const BoxText box = Get();
    EXPECT_EQ(box.icon, BoxIcon::Critical);
    EXPECT_THAT(box.text, testing::HasSubstr("temp.zip"));
    LeaveKinds();
    EXPECT_FALSE(Exists(gameFolder() + "\\vehicles\\good.txt"));
    EXPECT_FALSE(Exists(gameFolder() + "\\evil.txt"));
    EXPECT_EQ(NamesIn(gameFolder()), before);
    ExpectNoLeftovers();
  }
}

TEST_F(BadDownload, OfANameThatIsNoneFetchesNothing) {
  server.Serve(Data + "cars.lst", "Buggy:..\\..\\evil.zip\n");
  StartPack();
  OpenFiles(0);
  EXPECT_EQ(Get(), DownloadError("..\\..\\evil.zip"));
  LeaveKinds();
  EXPECT_EQ(server.Requests().back(), Data + "cars.lst");
}

TEST_F(BadDownload, ARedirectIsFollowed) {
  server.Answer(Archives + "cars/buggy.zip",
                WebAnswer::RedirectTo("http://elsewhere.example/moved.zip"));
  server.Serve("http://elsewhere.example/moved.zip", archive);
  StartPack();
  OpenFiles(0);
  EXPECT_EQ(Get(), Information("Download completed.", Success));
  EXPECT_TRUE(Exists(gameFolder() + "\\vehicles\\buggy.vhc"));
}

TEST_F(BadDownload, AListWithABadLineIsToldAndLeadsBack) {
  server.Serve(Data + "cars.lst", "A:a.zip\r\nB:b.zip\r\nC\r\n");
  Pack& pack = StartPack();
  pack.ChooseMenu({"Internet", "Package Downloader"});
  pack.WaitForWindow(Kinds);
  pack.Press("Enter");
  EXPECT_EQ(pack.AnswerBox(),
            Critical("Error",
                     "Could not enumerate car list. The following error was encountered while "
                     "reading: Line 3, couldn't determine filename, format used does not match "
                     "required record format."));
  pack.WaitForMain();
  ExpectNoLeftovers();
}

TEST_F(BadDownload, AListWithCarriageReturnsIsReadAlike) {
  server.Serve(Data + "langs.lst", "German:deutsch.zip\r\nDutch:dutch.zip");
  server.Serve(Archives + "langs/dutch.zip", archive);
  Pack& pack = StartPack();
  OpenFiles(2);
  pack.Press("Down");
  pack.WaitForRow("Dutch");
  EXPECT_EQ(Get(), Information("Download completed.", Success));
  EXPECT_TRUE(Exists(gameFolder() + "\\sounds\\dutch\\buggy.vhc"));
}

TEST_F(BadDownload, WithoutAServerNothingOpens) {
  server.GoOffline();
  Pack& pack = StartPack();
  pack.ChooseMenu({"Internet", "Package Downloader"});
  EXPECT_EQ(pack.AnswerBox().icon, BoxIcon::Critical);
  pack.WaitForMain();
}

TEST_F(BadDownload, AServerThatIsGoneMeanwhileIsTold) {
  Pack& pack = StartPack();
  OpenFiles(0);
  server.GoOffline();
  pack.Press("Enter");
  EXPECT_EQ(pack.AnswerBox(),
            Critical("Retrieval error",
                     "Error retrieving data from server. Please contact Orvane Interactive if this "
                     "error continues."));
  pack.WaitForMain();
}

TEST_F(BadDownload, WhatIsGoingOnIsShownWhileTheServerKeepsSilent) {
  Pack& pack = StartPack();
  OpenFiles(0);
  WebAnswer silence;
  silence.isSilent = true;
  server.Answer(Archives + "cars/buggy.zip", silence);
  pack.Press("Enter");
  server.WaitForRequest(Archives + "cars/buggy.zip");
  // Its own words cannot be asked for now: it waits for the server. They are on the screen.
  const auto windows = TopWindows(pack.program().processId());
  ASSERT_EQ(windows.size(), 1U);
  EXPECT_TRUE(windows[0].IsForeground());
  EXPECT_EQ(windows[0].className(), "#32770");
  SavePictureOf(windows[0].rectangle(), "Progress");
  for (const char* keys : {"Escape", "Enter", "Alt+F4", "Space"}) Keyboard::Press(keys);
  server.EndTransfers();
  const BoxText box = pack.AnswerBox();
  EXPECT_EQ(box.icon, BoxIcon::Critical);
  LeaveKinds();
}

TEST_F(BadDownload, TheBoxOfSuccessStandsOverWhatWasDone) {
  Pack& pack = StartPack();
  OpenFiles(0);
  pack.Press("Enter");
  std::string title;
  std::vector<std::string> texts;
  WaitUntil("the window of what is done", [&] {
    for (const Window& window : TopWindows(pack.program().processId())) {
      if (window.text() != "Unpacking...") continue;
      for (const Window& text : window.controls("Static")) texts.push_back(text.text());
      return true;
    }
    return false;
  });
  EXPECT_EQ(texts, std::vector<std::string>{"Unpacking..."});
  EXPECT_EQ(pack.AnswerBox(), Information("Download completed.", Success));
  pack.WaitForMain();
}

TEST_F(Download, AnotherKindCanBeChosenAndLeft) {
  Pack& pack = StartPack();
  OpenFiles(1);
  pack.Press("Alt+R");
  pack.WaitForWindow(Kinds);
  pack.WaitForRow("Track");
  pack.Press("Alt+S");
  pack.WaitForWindow(Files);
  pack.Press("Escape");
  pack.WaitForMain();
}

}  // namespace
}  // namespace E2e
