// The check for updates against a server of the tests' own, and the update that it leads to.
#include "e2e/driver/Keyboard.h"
#include "e2e/driver/PackTest.h"
#include "e2e/driver/Setup.h"
#include "e2e/driver/StartedProgram.h"
#include "e2e/driver/WebServer.h"

namespace E2e {
namespace {

constexpr const char* AddressPage = "http://address.orvane.example/";
constexpr const char* Records = "http://www.orvane.example/orvane/software/versions.dat";
constexpr const char* Installer = "http://www.orvane.example/orvane/software/sk2up.exe";

class Update : public PackTest {
 protected:
  Update() {
    server.Serve(AddressPage, "...........Your address:   203.0.113.7   ");
    server.Serve(Installer, ProgramToStart());
  }

  std::string updater() const { return programFolder() + "\\orvsk2packupdater.exe"; }
  std::string settings() const { return programFolder() + "\\sk2pack.cfg"; }

  void Publish(const std::string& version) {
    server.Serve(Records, "other=9.9.9\r\nSK2UP=" + version + "\r\n");
  }
  void Check() { RunningPack().ChooseMenu({"Help", "Check for Updates"}); }

  static BoxText Prompt() {
    return Question("Update",
                    "An update is currently available for Skidrun2 Utility Pack.\r\n"
                    "Current Version: 1.0.0\r\nVersion available: 1\r\n"
                    "Would you like to update now?");
  }
  static std::vector<MenuLine> OptionLine(const Window& main) {
    std::vector<MenuLine> lines;
    for (const MenuLine& line : ReadMenu(main)) {
      if (line.caption == "Automatically update on startup") lines.push_back(line);
    }
    return lines;
  }
  // The first window of a program that has just been started, a message box.
  static Window FirstBox(const RunningProgram& program) {
    return WaitFor<Window>("a message box", [&]() -> std::optional<Window> {
      for (const Window& window : TopWindows(program.processId())) {
        if (IsBox(window) && window.IsForeground()) return window;
      }
      return std::nullopt;
    });
  }

  WebServer server;
};

TEST_F(Update, IsOfferedFetchedAndStartedAndThePackEnds) {
  Publish("1.0.1");
  Pack& pack = StartPack();
  WriteFile(updater(), "an old one");
  Check();
  EXPECT_EQ(pack.AnswerBox("Y"), Prompt());
  EXPECT_EQ(pack.program().WaitForEnd(), 0U);
  const Start start = StartOf(updater());
  EXPECT_EQ(start.arguments, "/SP- /SILENT /SUPPRESSMSGBOXES /NOCANCEL");
  EXPECT_TRUE(start.isMinimised);
  EXPECT_EQ(ReadFile(updater()), ProgramToStart());
  // The next start takes it away.
  StartPack();
  EXPECT_FALSE(Exists(updater()));
}

TEST_F(Update, CanBeDeclined) {
  Publish("2");
  Pack& pack = StartPack();
  Check();
  EXPECT_EQ(pack.AnswerBox("N"), Prompt());
  pack.WaitForMain();
  EXPECT_FALSE(Exists(updater()));
}

TEST_F(Update, EveryOutcomeOfTheCheckIsTold) {
  Pack& pack = StartPack();
  Publish("1.0.0");
  Check();
  EXPECT_EQ(
      pack.AnswerBox(),
      Information("Information", "You are currently running the latest version of this product."));
  Publish("2.1");
  Check();
  EXPECT_THAT(pack.AnswerBox().text, testing::HasSubstr("is an invalid version format."));
  server.Serve(Records, "other=1\r\n");
  Check();
  EXPECT_THAT(pack.AnswerBox().text, testing::HasSubstr("no version data available for this"));
  server.Serve(Records, "sk2up=2\r\nno record\r\n");
  Check();
  EXPECT_THAT(pack.AnswerBox().text, testing::HasSubstr("version data file format is invalid"));
  server.Serve(AddressPage, "sold");
  Check();
  EXPECT_THAT(pack.AnswerBox().text, testing::HasSubstr("This will affect all software"));
  server.GoOffline();
  Check();
  EXPECT_THAT(pack.AnswerBox().text, testing::HasSubstr("not connected to the internet"));
  pack.WaitForMain();
  for (const char* name : {"read.tmp", "version.tmp"}) {
    EXPECT_FALSE(Exists(programFolder() + "\\" + name)) << name;
  }
}

TEST_F(Update, ThatIsNoProgramIsToldAndThePackStays) {
  Publish("2");
  server.Serve(Installer, "no program");
  Pack& pack = StartPack();
  Check();
  EXPECT_EQ(pack.AnswerBox("Y"), Prompt());
  const BoxText box = pack.AnswerBox();
  EXPECT_EQ(box.icon, BoxIcon::Critical);
  EXPECT_THAT(box.text, testing::StartsWith("The program could not be started."));
  EXPECT_THAT(box.text, testing::HasSubstr(updater()));
  pack.WaitForMain();
}

TEST_F(Update, TheOptionIsToldCheckedAndKept) {
  PutProgramFolder();
  {
    Pack& pack = StartPack();
    EXPECT_FALSE(OptionLine(pack.WaitForMain()).at(0).isChecked);
    pack.ChooseMenu({"Options", "Automatically update on startup"});
    EXPECT_EQ(pack.AnswerBox(),
              Information("Information", "Automatic update checks are now turned on."));
    EXPECT_TRUE(OptionLine(pack.WaitForMain()).at(0).isChecked);
    const std::string file = ReadFile(settings());
    ASSERT_EQ(file.size(), 3U);
    EXPECT_GE(file[0], 'P');
    EXPECT_LE(file[0], '~');
    pack.ChooseMenu({"Options", "Automatically update on startup"});
    EXPECT_EQ(pack.AnswerBox(),
              Information("Information", "Automatic update checks are now turned off."));
    EXPECT_FALSE(OptionLine(pack.WaitForMain()).at(0).isChecked);
    EXPECT_LT(ReadFile(settings())[0], 'P');
  }
}

TEST_F(Update, AQuietStartWithoutConnectionSaysNothing) {
  PutProgramFolder();
  WriteFile(settings(), "P\r\n");
  server.GoOffline();
  Pack& pack = StartPack();
  EXPECT_TRUE(OptionLine(pack.WaitForMain()).at(0).isChecked);
  EXPECT_EQ(TopWindows(pack.program().processId()).size(), 1U);
}

TEST_F(Update, IsOfferedBeforeThePackComesIfTheOptionIsOn) {
  PutProgramFolder();
  WriteFile(settings(), "P\r\n");
  Publish("2");
  const RunningProgram program(programFolder() + "\\sk2pack.exe");
  AllowSetForegroundWindow(program.processId());
  const Window box = FirstBox(program);
  EXPECT_EQ(ReadBox(box), Prompt());
  EXPECT_EQ(TopWindows(program.processId()).size(), 1U) << "there is more than the question";
  Keyboard::Press("N");
  WaitUntil("the main window", [&] {
    const auto windows = TopWindows(program.processId());
    return windows.size() == 1 && GetMenu(windows[0].handle()) != nullptr;
  });
}

TEST_F(Update, AtTheStartEndsThePackBeforeItComes) {
  PutProgramFolder();
  WriteFile(settings(), "~\r\n");
  Publish("2");
  const RunningProgram program(programFolder() + "\\sk2pack.exe");
  AllowSetForegroundWindow(program.processId());
  FirstBox(program).WaitUntilDrawn();
  Keyboard::Press("Y");
  EXPECT_EQ(program.WaitForEnd(), 0U);
  EXPECT_TRUE(StartOf(updater()).isMinimised);
}

// --- With the installer itself, from one version to the next ---

class InstalledUpdate : public Update {
 protected:
  InstalledUpdate() {
    UninstallQuietly();
    RunningProgram(Given().installer, "/S /D=" + folder_).WaitForEnd();
    WriteFile(folder_ + "\\sk2pack.lng", "XFile=&Mine\r\n");
    WriteFile(folder_ + "\\sk2pack.cfg", "!\r\n");
    WriteFile(folder_ + "\\iplist.dat", "Here=203.0.113.7\r\n");
    Publish(ShortVersionOf(NextInstaller()));
    pack_ = std::make_unique<Pack>(program());
  }
  void TearDown() override {
    Update::TearDown();
    pack_.reset();
    UninstallQuietly();
  }

  std::string program() const { return folder_ + "\\sk2pack.exe"; }
  std::string fetched() const { return folder_ + "\\orvsk2packupdater.exe"; }

  // Asks for the update from the menu.
  void TakeTheUpdate() {
    pack_->ChooseMenu({"Help", "Check for Updates"});
    EXPECT_EQ(pack_->AnswerBox("Y"), Prompt());
  }
  void ExpectSettings() const {
    EXPECT_THAT(ReadFile(folder_ + "\\sk2pack.lng"), testing::StartsWith("XFile=&Mine\r\n"));
    EXPECT_EQ(ReadFile(folder_ + "\\sk2pack.cfg"), "!\r\n");
    EXPECT_EQ(ReadFile(folder_ + "\\iplist.dat"), "Here=203.0.113.7\r\n");
  }

  std::string folder_ = scratch.path() + "\\Installed Pack";
  std::unique_ptr<Pack> pack_;
};

TEST_F(InstalledUpdate, EndsInTheNextVersionWithTheUsersSettings) {
  server.Serve(Installer, ReadFile(NextInstaller()));
  TakeTheUpdate();
  EXPECT_EQ(pack_->program().WaitForEnd(), 0U);
  pack_ = std::make_unique<Pack>(RunningProgram::StartedByOthers{program()});
  const Window main = pack_->WaitForMain();
  EXPECT_EQ(main.text(), "Skidrun2 Utility Pack V1.0.1");
  EXPECT_EQ(ReadMenu(main).at(0).caption, "&Mine");
  ExpectSettings();
  EXPECT_EQ(InstalledEntry::Text("DisplayVersion"), ShortVersionOf(NextInstaller()));
  WaitUntil("the updater gone", [&] { return !Exists(fetched()); });
  // It is the newest one now.
  pack_->ChooseMenu({"Help", "Check for Updates"});
  EXPECT_EQ(
      pack_->AnswerBox(),
      Information("Information", "You are currently running the latest version of this product."));
}

// The server says that it sends all, and ends half way.
TEST_F(InstalledUpdate, ThatCameInPartLeavesTheOldVersionInOrder) {
  const auto before = ReadFile(program());
  const std::string whole = ReadFile(NextInstaller());
  server.Serve(Installer, whole.substr(0, whole.size() / 2));
  TakeTheUpdate();
  EXPECT_EQ(pack_->program().WaitForEnd(), 0U);
  // What came says of itself that it is incomplete.
  const RunningProgram installer(RunningProgram::StartedByOthers{fetched()});
  const Window box = FirstBox(installer);
  EXPECT_THAT(ReadBox(box).text, testing::HasSubstr("incomplete"));
  SavePictureOf(box.rectangle(), "half an installer");
  Keyboard::Press("Enter");
  EXPECT_EQ(installer.WaitForEnd(), 2U);
  EXPECT_EQ(ReadFile(program()), before);
  ExpectSettings();
  // The next start takes it away.
  pack_ = std::make_unique<Pack>(program());
  EXPECT_EQ(pack_->WaitForMain().text(), "Skidrun2 Utility Pack V1.0");
  EXPECT_FALSE(Exists(fetched()));
}

TEST_F(InstalledUpdate, WhoseConnectionBreaksIsToldAndThePackStays) {
  const auto before = ReadFile(program());
  WebAnswer half = WebAnswer::Page(ReadFile(NextInstaller()));
  half.resetBehind = half.body.size() / 2;
  server.Answer(Installer, half);
  TakeTheUpdate();
  EXPECT_THAT(pack_->AnswerBox().text, testing::StartsWith("The program could not be started."));
  pack_->WaitForMain();
  EXPECT_EQ(ReadFile(program()), before);
  ExpectSettings();
}

}  // namespace
}  // namespace E2e
