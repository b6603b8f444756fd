// Updates of a pack that was built with the maker's key: only what that key has signed is started.
#include "tests/FailureSweep.h"
#include "tests/update/SignedInstaller.h"
#include "tests/update/UpdateStory.h"
#include "update/Updater.h"

namespace {

using Platform::Icon;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

const std::string Error = "There was an error updating Skidrun2 Utility Pack. ";
const std::string Missing =
    Error +
    "The signature of the update could not be fetched, so the update was not started. Please try "
    "again later.";
const std::string Wrong =
    Error +
    "The signature of the update is not right, so the update was not started: the file was "
    "damaged or replaced on its way, or is just being changed on the server. Please try again "
    "later.";

class SignedUpdateStory : public UpdateStory {
 protected:
  static inline const std::string SignatureUrl = Installer + ".sig";
  static inline const std::string SignatureFile = Pack + "signature.tmp";

  SignedUpdateStory() {
    machine.executable.resources = {SignedInstaller::KeyResource()};
    machine.web.Serve(Installer, SignedInstaller::Bytes);
    machine.web.Serve(SignatureUrl, SignedInstaller::Signature);
    Publish("2");
  }

  void Updates() {
    StartPack();
    user.AnswersYes();
    Checks();
  }

  // Before the signature's, that of the address page, and those of records and installer, twice.
  static constexpr size_t DownloadsBefore = 5;

  // Acts in each step of what the user waits for, for as long as the action asks for it.
  void WithEachStep(std::function<bool()> action) {
    user.DuringLongStep([this, action = std::move(action)] {
      if (action()) WithEachStep(action);
    });
  }

  void ExpectStarted() {
    ASSERT_THAT(machine.launches.All(), SizeIs(1));
    EXPECT_EQ(machine.launches.All()[0].path, UpdaterFile);
    EXPECT_EQ(machine.launches.All()[0].arguments, "/SP- /SILENT /SUPPRESSMSGBOXES /NOCANCEL");
    EXPECT_EQ(machine.launches.All()[0].bytes, SignedInstaller::Bytes);
    EXPECT_TRUE(Platform::HasProgramEnded());
    EXPECT_FALSE(machine.files.Exists(SignatureFile));
  }
  // Told in one box; the pack stays, and nothing of the update.
  void ExpectRefused(const std::string& text) {
    EXPECT_THAT(user.Boxes(), SizeIs(2)) << "the question, and why it was not started";
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, text, "Error"));
    ExpectNothingLeft();
  }
  void ExpectNothingLeft() {
    EXPECT_THAT(machine.launches.All(), IsEmpty());
    EXPECT_FALSE(machine.files.Exists(UpdaterFile));
    EXPECT_FALSE(machine.files.Exists(SignatureFile));
    EXPECT_FALSE(Platform::HasProgramEnded());
    EXPECT_EQ(user.SeesWindow(), Title);
  }
};

TEST_F(SignedUpdateStory, AnInstallerThatTheMakerHasSignedIsStarted) {
  Updates();
  ExpectStarted();
  EXPECT_THAT(user.Boxes(), SizeIs(1));
  EXPECT_THAT(machine.web.Downloads(),
              ElementsAre(AddressPage, Records, Records, Installer, Installer, SignatureUrl));
}

TEST_F(SignedUpdateStory, NobodyMayExchangeTheInstallerWhileItIsJudged) {
  bool couldBeWritten = true;
  StartPack();
  user.AnswersYes();
  WithEachStep([&] {
    if (machine.web.Downloads().size() <= DownloadsBefore) return true;
    const Simulated::Opening writing{.writes = true, .letsRead = true, .letsWrite = true};
    const Simulated::DiskEntry* const installer = machine.files.Find(UpdaterFile);
    couldBeWritten = installer->Allows(writing) || installer->AllowsToGo();
    return false;
  });
  Checks();
  ExpectStarted();
  EXPECT_FALSE(couldBeWritten);
}

TEST_F(SignedUpdateStory, WithoutAKeyNoSignatureIsAskedFor) {
  machine.executable.resources = {SignedInstaller::KeyResource("none\n")};
  machine.web.Serve(Installer, "MZ signed by nobody");
  machine.web.TakeAway(SignatureUrl);
  Updates();
  ASSERT_THAT(machine.launches.All(), SizeIs(1));
  EXPECT_EQ(machine.launches.All()[0].bytes, "MZ signed by nobody");
  EXPECT_THAT(machine.web.Downloads(),
              ElementsAre(AddressPage, Records, Records, Installer, Installer));
  EXPECT_THAT(machine.web.Dropped(), ElementsAre(AddressPage));
}

TEST_F(SignedUpdateStory, AKeyThatIsUnreadableTakesNoInstaller) {
  for (const std::vector<Simulated::Resource>& resources :
       {std::vector<Simulated::Resource>{},
        {SignedInstaller::KeyResource("")},
        {SignedInstaller::KeyResource("-----BEGIN PUBLIC KEY-----")}}) {
    machine.StartAnew();
    machine.executable.resources = resources;
    ::StartPack();
    user.AnswersYes();
    Checks();
    EXPECT_EQ(user.LastBox().icon, Icon::Critical);
    ExpectNothingLeft();
  }
}

TEST_F(SignedUpdateStory, AnotherKeysSignatureIsNotRight) {
  machine.web.Serve(SignatureUrl, SignatureExamples::FromHex(SignatureExamples::OfTheOther));
  Updates();
  ExpectRefused(Wrong);
}

TEST_F(SignedUpdateStory, AByteThatWasChangedIsNotRight) {
  std::string changed = SignedInstaller::Bytes;
  changed.back() = 'R';
  machine.web.Serve(Installer, changed);
  Updates();
  ExpectRefused(Wrong);
}

TEST_F(SignedUpdateStory, AnInstallerThatWasCutOffIsNotRight) {
  machine.web.Serve(Installer, SignedInstaller::Bytes.substr(0, 5));
  Updates();
  ExpectRefused(Wrong);
}

TEST_F(SignedUpdateStory, WhatIsNoSignatureIsNotRight) {
  // The page that many a server sends for a file that it has not got, and worse.
  for (const std::string& page :
       {std::string("<html><h1>404 Not Found</h1></html>"), std::string(),
        std::string(SignedInstaller::Signature + '\n'), std::string(10 << 20, '\x30'),
        SignedInstaller::Signature.substr(0, 70)}) {
    machine.StartAnew();
    machine.web.Serve(SignatureUrl, page);
    ::StartPack();
    user.AnswersYes();
    Checks();
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, Wrong, "Error"));
    ExpectNothingLeft();
  }
}

TEST_F(SignedUpdateStory, WithoutASignatureNothingIsStarted) {
  machine.web.TakeAway(SignatureUrl);
  Updates();
  ExpectRefused(Missing);
}

TEST_F(SignedUpdateStory, AResultWithoutAFileIsNoSignature) {
  machine.web.Answer(SignatureUrl, {0, {}});
  Updates();
  ExpectRefused(Missing);
}

TEST_F(SignedUpdateStory, AnOldSignatureFileIsNeverTaken) {
  machine.web.TakeAway(SignatureUrl);
  StartPack();
  machine.files.Put(SignatureFile, SignedInstaller::Signature);
  user.AnswersYes();
  Checks();
  ExpectRefused(Missing);
}

TEST_F(SignedUpdateStory, WhenTheServerIsExchangedBetweenTheTwoNothingIsStarted) {
  // The older installer comes, and then the newer one's signature.
  machine.web.AnswerOnce(Installer, {0, "MZ probed"});
  machine.web.AnswerOnce(Installer, {0, "MZ older one"});
  Updates();
  ExpectRefused(Wrong);
  // The next time all is of one piece.
  user.AnswersYes();
  Checks();
  ExpectStarted();
}

TEST_F(SignedUpdateStory, CopiesThatTheSystemHasKeptAreFetchedAnew) {
  machine.web.KeepInCache(Installer, "MZ older one");
  machine.web.KeepInCache(SignatureUrl, "of the older one");
  Updates();
  ExpectStarted();
}

TEST_F(SignedUpdateStory, WhenTheConnectionGoesBeforeTheSignatureThatIsTold) {
  StartPack();
  user.AnswersYes();
  WithEachStep([this] {
    if (machine.web.Downloads().size() < DownloadsBefore) return true;
    machine.web.GoOffline();
    return false;
  });
  Checks();
  ExpectRefused(Missing);
}

TEST_F(SignedUpdateStory, AnInstallerThatDoesNotComeIsTold) {
  machine.web.AnswerOnce(Installer, {0, "MZ probed"});
  machine.web.AnswerOnce(Installer, {0, {}});
  Updates();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical,
                                    "The file was not found.\r\nFile: " + UpdaterFile +
                                        "\r\nOpening a file: system error 2",
                                    "Error"));
  ExpectNothingLeft();
}

TEST_F(SignedUpdateStory, FilesThatCannotBeReadStartNothing) {
  for (const std::string& call : {"Open " + UpdaterFile, "Read " + UpdaterFile,
                                  "Open " + SignatureFile, "Read " + SignatureFile}) {
    SCOPED_TRACE(call);
    machine.StartAnew();
    ::StartPack();
    machine.faults.FailAnyCall(Simulated::After{0}, call);
    user.AnswersYes();
    Checks();
    EXPECT_TRUE(machine.FailureHappened());
    EXPECT_EQ(user.LastBox().icon, Icon::Critical);
    EXPECT_THAT(user.LastBox().text, HasSubstr(call.substr(5)));
    ExpectNothingLeft();
  }
}

TEST_F(SignedUpdateStory, AnInstallerThatIsNotRightAndCannotBeDeletedIsNamed) {
  machine.web.Serve(SignatureUrl, "none");
  StartPack();
  // The first two make room for it.
  machine.faults.FailAnyCall(Simulated::After{2}, "Delete " + UpdaterFile);
  user.AnswersYes();
  Checks();
  ASSERT_THAT(user.Boxes(), SizeIs(3));
  EXPECT_THAT(user.Boxes()[1], Shows(Icon::Critical, Wrong, "Error"));
  EXPECT_THAT(user.LastBox().text, HasSubstr(UpdaterFile));
  EXPECT_THAT(user.LastBox().text, HasSubstr("Deleting a file"));
  EXPECT_THAT(machine.launches.All(), IsEmpty());
  EXPECT_EQ(user.SeesWindow(), Title);
  // The next start takes it away, as it does with one that has run.
  machine.StartAnew();
  ::StartPack();
  EXPECT_FALSE(machine.files.Exists(UpdaterFile));
}

TEST_F(SignedUpdateStory, AnInstallerThatIsNoProgramIsToldAndGoes) {
  machine.web.Serve(Installer, "");
  machine.web.Serve(SignatureUrl, SignatureExamples::FromHex(SignatureExamples::OfNothing));
  Updates();
  EXPECT_THAT(user.LastBox().text, HasSubstr("The program could not be started."));
  ExpectNothingLeft();
}

TEST_F(SignedUpdateStory, NothingBeginsWhileItIsJudged) {
  machine.web.Serve(Installer, "MZ another");
  StartPack();
  user.AnswersYes();
  WithEachStep([this] {
    user.Presses("Ctrl+N");
    user.ClosesWindow();
    // The last time is while the file is summed up.
    return machine.web.Downloads().size() <= DownloadsBefore;
  });
  Checks();
  ExpectRefused(Wrong);
}

TEST_F(SignedUpdateStory, TheUpdateAtTheStartIsJudgedToo) {
  machine.files.Put(Settings, "P\r\n");
  user.AnswersYes();
  StartPack();
  ExpectStarted();
  EXPECT_THAT(machine.screen.Titles(), IsEmpty());
}

TEST_F(SignedUpdateStory, AnUpdateAtTheStartThatIsNotRightIsToldAndThePackComes) {
  machine.files.Put(Settings, "P\r\n");
  machine.web.Serve(SignatureUrl, "none");
  user.AnswersYes();
  StartPack();
  ExpectRefused(Wrong);
}

// Whatever fails, what is started is what the maker has signed, or nothing; and the user is told.
void ExpectSafe(const std::string& bytes, bool mayStart) {
  const std::string server = "http://www.orvane.example/orvane/software/";
  const auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After after) {
    machine.executable.resources = {SignedInstaller::KeyResource()};
    machine.web.Serve("http://address.orvane.example/", "...........1.2.3.4");
    machine.web.Serve(server + "versions.dat", "sk2up=2");
    machine.web.Serve(server + "sk2up.exe", bytes);
    machine.web.Serve(server + "sk2up.exe.sig", SignedInstaller::Signature);
    StartPack();
    machine.FailAnyCall(after);
    machine.user.WhenAnythingOpens([&] { machine.user.Presses("Enter"); });
    machine.user.ChoosesMenu({"Help", "Check for Updates"});
    const bool hasEnded = Platform::HasProgramEnded();
    EXPECT_TRUE(mayStart || !hasEnded);
    EXPECT_EQ(machine.launches.All().size(), hasEnded ? 1U : 0U);
    EXPECT_TRUE(hasEnded || !machine.user.Boxes().empty());
    const std::string updater = machine.executable.folder + "\\orvsk2packupdater.exe";
    // But for the one that could not be deleted: its box names it.
    if (!hasEnded && machine.files.Exists(updater)) {
      EXPECT_THAT(machine.FailedCall(), HasSubstr("orvsk2packupdater.exe"));
      EXPECT_THAT(machine.user.LastBox().text, HasSubstr(updater));
    }
  });
  EXPECT_GT(calls.size(), 10U);
}

TEST(SignedUpdateSweep, WhateverFailsTheInstallerRunsOrIsGone) {
  ExpectSafe(SignedInstaller::Bytes, true);
}

TEST(SignedUpdateSweep, WhateverFailsOneThatIsNotRightNeverRuns) {
  ExpectSafe("MZ another one", false);
}

}  // namespace
