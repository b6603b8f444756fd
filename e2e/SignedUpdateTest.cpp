// Updates of a pack that takes only what its maker has signed.
#include "e2e/driver/PackTest.h"
#include "e2e/driver/StartedProgram.h"
#include "e2e/driver/WebServer.h"

namespace E2e {
namespace {

constexpr const char* AddressPage = "http://address.orvane.example/";
constexpr const char* Records = "http://www.orvane.example/orvane/software/versions.dat";
constexpr const char* Installer = "http://www.orvane.example/orvane/software/sk2up.exe";
constexpr const char* Signature = "http://www.orvane.example/orvane/software/sk2up.exe.sig";

class SignedUpdate : public PackTest {
 protected:
  SignedUpdate() {
    server.Serve(AddressPage, "...........Your address:   203.0.113.7   ");
    server.Serve(Records, "sk2up=2\r\n");
    server.Serve(Installer, ProgramToStart());
    server.Serve(Signature, SignatureOfProgramToStart());
    // The same pack, but for the key that it was built with.
    PutProgramFolder();
    const std::string pack = programFolder() + "\\sk2pack.exe";
    EXPECT_TRUE(CopyFileA((Given().versions + "\\sk2signed.exe").c_str(), pack.c_str(), FALSE));
  }

  std::string updater() const { return programFolder() + "\\orvsk2packupdater.exe"; }

  // The pack is asked to update, and tells that in its box.
  void ExpectRefused(const std::string& told) {
    Pack& pack = StartPack();
    pack.ChooseMenu({"Help", "Check for Updates"});
    EXPECT_EQ(pack.AnswerBox("Y").title, "Update");
    const BoxText box = pack.WaitForBox();
    EXPECT_EQ(box, Critical("Error", "There was an error updating Skidrun2 Utility Pack. " + told +
                                         " Please try again later."));
    EXPECT_FALSE(Exists(updater())) << "it is gone when that is told";
    EXPECT_FALSE(Exists(programFolder() + "\\signature.tmp"));
    pack.AnswerBox();
    pack.WaitForMain();
    EXPECT_FALSE(WasStarted(updater()));
  }

  WebServer server;
};

const std::string Wrong =
    "The signature of the update is not right, so the update was not started: the file was damaged "
    "or replaced on its way, or is just being changed on the server.";

TEST_F(SignedUpdate, ThatTheMakerHasSignedIsStartedAndThePackEnds) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Help", "Check for Updates"});
  EXPECT_EQ(pack.AnswerBox("Y").title, "Update");
  EXPECT_EQ(pack.program().WaitForEnd(), 0U);
  EXPECT_EQ(StartOf(updater()).arguments, "/SP- /SILENT /SUPPRESSMSGBOXES /NOCANCEL");
  EXPECT_EQ(ReadFile(updater()), ProgramToStart());
  EXPECT_FALSE(Exists(programFolder() + "\\signature.tmp"));
}

TEST_F(SignedUpdate, OfWhichOneByteWasChangedIsNotStarted) {
  std::string changed = ProgramToStart();
  changed.back() = static_cast<char>(changed.back() ^ 1);
  server.Serve(Installer, changed);
  ExpectRefused(Wrong);
}

// The server's page that there is no such file comes in its place.
TEST_F(SignedUpdate, ThatNobodyHasSignedIsNotStarted) {
  server.TakeAway(Signature);
  ExpectRefused(Wrong);
}

}  // namespace
}  // namespace E2e
