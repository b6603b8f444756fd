// The simulated machine fails on demand, and complains about what a test would otherwise overlook.
#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <new>
#include <set>

#include "base/PerRun.h"
#include "game/Application.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/NamedMutex.h"
#include "platform/Registry.h"
#include "platform/Resources.h"
#include "platform/ShellOpen.h"
#include "platform/Sound.h"
#include "tests/ProjectFile.h"
#include "tests/SimulatedGame.h"
#include "tests/Story.h"
#include "ui/FileDialog.h"
#include "ui/FormView.h"
#include "ui/Forms.h"
#include "ui/InputBox.h"
#include "ui/MsgBox.h"
#include "ui/Timer.h"

namespace {

using namespace Platform;
using Simulated::After;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// Hears the complaints while it lives.
class Ear {
 public:
  Ear() {
    before_ = Simulated::OnComplaint([this](const std::string& what) { heard.push_back(what); });
  }
  ~Ear() { Simulated::OnComplaint(before_); }

  std::vector<std::string> heard;

 private:
  Simulated::ComplaintHandler before_;
};

// --- What is left over ---

TEST(Machine, ComplainsAboutStepsThatNeverCame) {
  Ear ear;
  {
    Simulated::Machine machine;
    machine.user.AnswersYes();
    machine.user.ChoosesFile("C:\\hill.trk");
    machine.user.WhenWindowOpens("Progress", [] {});
    machine.user.DuringLongStep([] {});
  }
  EXPECT_THAT(ear.heard,
              ElementsAre("nobody asked for the answer Yes", "no file dialog came for C:\\hill.trk",
                          "no window opened with the title Progress",
                          "no long step came in which the user could try something"));
}

TEST(Machine, TakesBackAtARunsEndWhatTheRunHeld) {
  Simulated::Machine machine;
  {
    Form main(FixedText("Main"));
    StartProgram(main);
    OpenSoundDevice();
    HoldNamedMutex("ORVSK2Pack");
    RunObjects::End();
  }
  EXPECT_FALSE(IsSoundDeviceOpen());
  EXPECT_THAT(machine.mutexes.Held(), IsEmpty());
}

TEST(Machine, ComplainsAboutOpenFiles) {
  Ear ear;
  std::unique_ptr<FileReader> forgotten;
  {
    Simulated::Machine machine;
    machine.files.Put("C:\\hill.trk", "1");
    forgotten = std::make_unique<FileReader>("C:\\hill.trk");
  }
  EXPECT_THAT(ear.heard, ElementsAre("the program left open: C:\\hill.trk"));
}

// --- What nobody expected ---

class Complaining : public Story {
 protected:
  Complaining() { StartProgram(main); }

  Form main{FixedText("Main")};
  Ear ear;
};

TEST_F(Complaining, AboutAnUnexpectedQuestion) {
  EXPECT_EQ(MsgBox("Really?", "Delete", Icon::Question, Buttons::YesNo), Answer::No);
  EXPECT_THAT(ear.heard, ElementsAre("an unexpected question: Really?"));
}

TEST_F(Complaining, ButNotAboutABoxThatOnlyTells) {
  EXPECT_EQ(MsgBox("Done.", "Delete", Icon::Information), Answer::Ok);
  EXPECT_THAT(ear.heard, IsEmpty());
}

TEST_F(Complaining, AboutAnUnexpectedFileDialogOrWindow) {
  FileDialog dialog(FileDialog::Kind::Open);
  dialog.title = "Open track";
  EXPECT_EQ(dialog.Show(), "");
  EXPECT_EQ(InputBox("How many?", "Random track"), "");
  EXPECT_THAT(ear.heard, testing::Contains("an unexpected file dialog: Open track"));
  EXPECT_THAT(ear.heard, testing::Contains("an unexpected window: Random track How many?"));
}

TEST_F(Complaining, AboutAWindowThatAStepLeavesOpen) {
  user.WhenWindowOpens("Random track", [] {});
  InputBox("How many?", "Random track");
  EXPECT_THAT(ear.heard, ElementsAre("the window stayed open: Random track"));
}

TEST_F(Complaining, AboutKeysAndClicksThatGoNowhere) {
  user.Presses("Ctrl+Nothing");
  user.Clicks("OK");
  user.DoubleClicks("hill");
  user.ChoosesMenu({"File"});
  EXPECT_THAT(ear.heard, ElementsAre("there is no key Nothing", "there is nothing to click: OK",
                                     "there is no row hill", "there is no menu item File"));
}

// --- Windows that cannot be heard or worked by keyboard ---

TEST_F(Complaining, AboutASharedAccessKey) {
  Form form(FixedText("Servers"));
  Button Add(form, {.text = FixedText("&Add")});
  TextBox Address(form, {.label = FixedText("&Address")});
  form.Show();
  EXPECT_THAT(ear.heard, ElementsAre("a shared access key in the window Servers: &Add / &Address"));
}

TEST_F(Complaining, AboutAControlWithoutAName) {
  Form form(FixedText("Servers"));
  ListBox List(form, {.label = FixedText("")});
  form.Show();
  EXPECT_THAT(ear.heard, ElementsAre("a control without a name in the window Servers"));
}

TEST_F(Complaining, AboutAWindowWithoutATitle) {
  Form form(FixedText(""));
  form.Show();
  EXPECT_THAT(ear.heard, ElementsAre("a window without a title"));
}

TEST_F(Complaining, AboutAccessKeysThatComeToBeShared) {
  Form form(FixedText("Servers"));
  Button Add(form, {.text = FixedText("&Add")});
  Button Delete(form, {.text = FixedText("&Delete")});
  form.Show();
  EXPECT_THAT(ear.heard, IsEmpty());
  Delete.SetCaption("&Abandon");
  EXPECT_THAT(ear.heard, ElementsAre(HasSubstr("a shared access key")));
}

// --- Failures on demand ---

class Failing : public Story {};

// Makes every service call that can fail, each once, but those on files (see FileFaultTests.cpp).
void UseEverything() {
  const auto attempt = [](const std::function<void()>& call) {
    try {
      call();
    } catch (const RuntimeError&) {  // the failure that its contract names
    } catch (const std::bad_alloc&) {
    }
  };
  attempt([&] {
    QueryRegistryValue(RegistryRoot::LocalMachine, RegistryView::Of32Bit, "SOFTWARE", "a", 9);
  });
  attempt([&] { ReadProgramVersion(); });
  attempt([&] { HoldNamedMutex("Name"); });
  attempt([&] { ShellOpen("http://a.example/"); });
  attempt([&] { OpenSoundDevice(); });
  attempt([&] { ReadResource(SoundResource, "a"); });
  Form tool(FixedText("Tool"));
  ListBox Rows(tool, {.label = FixedText("Rows")});
  Timer Clock(tool, {.milliseconds = 1000});
  attempt([&] { tool.Show(); });
  attempt([&] { tool.TranslateMenu(); });
  attempt([&] { Clock.Start(); });
  attempt([&] { Rows.SetRows({"hill"}, 0); });
  attempt([&] { Rows.Add("lake"); });
  attempt([&] {
    FileDialog dialog(FileDialog::Kind::Open);
    dialog.title = "Open";
    dialog.Show();
  });
}

TEST(Sweep, LetsEachCallFailInItsTurn) {
  std::set<std::string> failed;
  for (int n = 0;; ++n) {
    Ear ear;  // a dialog that fails leaves its step over
    Simulated::Machine machine;
    Form main(FixedText("Main"));
    StartProgram(main);
    machine.user.CancelsFileDialog();
    machine.FailAnyCall(After{n});
    UseEverything();
    if (!machine.FailureHappened()) break;
    failed.insert(machine.FailedCall().substr(0, machine.FailedCall().find(' ')));
  }
  EXPECT_THAT(failed,
              ElementsAre("FileDialog::Show", "FormView::FormView", "FormView::MenuChanged",
                          "FormView::RowAdded", "FormView::RowsSet", "FormView::Show",
                          "FormView::StartTimer", "HoldNamedMutex", "OpenSoundDevice",
                          "QueryRegistryValue", "ReadProgramVersion", "ReadResource", "ShellOpen"));
}

TEST_F(Failing, OneCallOnlyFails) {
  machine.files.Put("C:\\a", "1");
  machine.FailAnyCall(After{1});
  EXPECT_TRUE(FileExists("C:\\a"));
  EXPECT_FALSE(machine.FailureHappened());
  EXPECT_FALSE(FileExists("C:\\a"));
  EXPECT_TRUE(machine.FailureHappened());
  EXPECT_EQ(machine.FailedCall(), "GetInfo C:\\a");
  EXPECT_TRUE(FileExists("C:\\a"));
}

TEST_F(Failing, ADiskFillsUpAndStaysFull) {
  machine.files.FailWrites(After{3}, RuntimeError::DiskFull);  // a flush counts too
  WriteWholeFile("C:\\a", "1");
  AppendToFile("C:\\a", "2");
  for (int i = 0; i < 2; ++i) {
    try {
      WriteWholeFile("C:\\a", "3");
      ADD_FAILURE() << "did not fail";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), RuntimeError::DiskFull);
      EXPECT_EQ(error.file(), "C:\\a");
    }
  }
  EXPECT_EQ(machine.files.Text("C:\\a"), "12");
}

TEST_F(Failing, ADiskThatFillsUpWhileAFileIsWrittenLeavesTheOldOne) {
  machine.files.Put("C:\\a", "old");
  machine.files.FailWrites(After{1}, RuntimeError::DiskFull);
  {
    FileWriter writer("C:\\a");
    writer.Write("n");
    EXPECT_THROW(writer.Write("e"), RuntimeError);
  }
  EXPECT_EQ(machine.files.Text("C:\\a"), "old");
  EXPECT_EQ(machine.files.Names("C:"), Names("a", "Program Files", "Windows"));
}

TEST_F(Failing, AFileThatMayNotBeWrittenStaysAsItIs) {
  machine.files.Put("C:\\a", "old");
  machine.files.RefuseWrites("C:\\a");
  EXPECT_THROW(WriteWholeFile("C:\\a", "new"), RuntimeError);
  EXPECT_EQ(ReadWholeFile("C:\\a"), "old");
}

TEST_F(Failing, WithoutSpeakersThereIsNoSound) {
  machine.sound.Unplug();
  Form main(FixedText("Main"));
  StartProgram(main);
  EXPECT_THROW(OpenSoundDevice(), RuntimeError);
  EXPECT_FALSE(IsSoundDeviceOpen());
}

// --- What else tests rely on ---

class MachineStory : public Story {};

TEST_F(MachineStory, AHostFileIsReadPieceByPiece) {
  machine.files.MountHostFile("C:\\story.h", (ProjectFile::Root / "tests/Story.h").string());
  machine.files.LimitReads(100);
  FileReader reader("C:\\STORY.h");
  std::string read;
  char block[4096];
  while (const size_t count = reader.Read(block, sizeof block)) {
    EXPECT_LE(count, 100u);
    read.append(block, count);
  }
  EXPECT_EQ(read, machine.files.Text("C:\\story.h"));
  EXPECT_EQ(StampOf("C:\\story.h")->size, read.size());
  EXPECT_THAT(read, HasSubstr("class Story"));
}

TEST_F(MachineStory, TheClockStandsStillOrTicks) {
  machine.clock.Set(86399);
  EXPECT_EQ(SecondsSinceMidnight(), 86399);
  EXPECT_EQ(SecondsSinceMidnight(), 86399);
  machine.clock.TickPerCall(2);
  EXPECT_EQ(SecondsSinceMidnight(), 86399);
  EXPECT_EQ(SecondsSinceMidnight(), 1) << "past midnight";
}

TEST_F(MachineStory, TheClockGoesOnWhileTheUserWaits) {
  machine.clock.Set(86399);
  user.Waits(1500);
  EXPECT_EQ(SecondsSinceMidnight(), 0.5) << "past midnight";
  EXPECT_EQ(machine.clock.milliseconds(), 1500);
}

TEST_F(MachineStory, EachWriteMovesTheStampThoughTheClockStands) {
  machine.files.Put("C:\\a", "1");
  const auto first = StampOf("C:\\a");
  machine.files.Put("C:\\a", "2");
  const auto second = StampOf("C:\\a");
  EXPECT_NE(first, second);
  WriteWholeFile("C:\\a", "3");
  EXPECT_NE(StampOf("C:\\a"), second);
}

TEST_F(MachineStory, TheInstalledGameIsRegisteredInThe32BitView) {
  InstallGame(machine, "D:\\Games\\Skidrun2");
  EXPECT_EQ(machine.files.Names("D:\\Games\\Skidrun2"), Names("sounds", "tracks", "vehicles"));
  EXPECT_EQ(Application::GameFolder(), "D:\\Games\\Skidrun2");
}

TEST_F(MachineStory, TheProgramRunsUntilTheUserEndsIt) {
  Form main(FixedText("Main"));
  StartProgram(main);
  user.WhenProgramWaits([this] { user.Presses("Alt+F4"); });
  RunMessageLoop();
  EXPECT_TRUE(HasProgramEnded());
}

}  // namespace
