// The signature that is published beside the installer.
#include "base/Ecdsa.h"
#include "platform/Signature.h"
#include "tests/FailureSweep.h"
#include "tests/ProjectFile.h"
#include "tests/platform/SignatureExamples.h"
#include "tests/tools/PublishStory.h"

namespace {

using namespace Published;
using testing::AnyOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

const std::string Key = "C:\\Keys\\maker.pem";
const std::string PublicKey = "C:\\Keys\\maker-public.pem";
const std::string Served = Current + "orvane\\software\\sk2up.exe";
const std::string Signature = Served + ".sig";

void PutKeys(Simulated::Machine& machine) {
  for (const char* name : {"maker.pem", "maker-public.pem", "other.pem"}) {
    machine.files.Put(std::string("C:\\Keys\\") + name,
                      ProjectFile::BytesOf(std::string("tests/keys/") + name));
  }
}

Told PublishSigned() {
  return PublishWith({"--key", Key, "--public-key", PublicKey, Folder, Site});
}

// That players' packs would start the installer that is served.
bool IsTakenByPacks(const Simulated::Machine& machine) {
  return machine.files.Exists(Signature) &&
         Platform::IsSignatureRight(SumOfText(machine.files.Text(Served)),
                                    machine.files.Text(Signature),
                                    *Ecdsa::KeyInPem(SignatureExamples::MakerKey));
}

class Signing : public PublishStory {
 protected:
  void SetUp() override {
    PublishStory::SetUp();
    PutKeys(machine);
  }
  void ExpectRefused(const Told& told, const std::string& reason) {
    EXPECT_EQ(told.status, PublishCommand::Refused);
    EXPECT_THAT(told.errors, HasSubstr(reason));
    EXPECT_FALSE(machine.files.Exists(Site + "\\current"));
  }
};

TEST_F(Signing, PublishesASignatureThatPacksTake) {
  const Told told = PublishSigned();
  EXPECT_EQ(told.status, PublishCommand::Done) << told.errors;
  EXPECT_TRUE(IsTakenByPacks(machine));
}

TEST_F(Signing, KeepsASignatureThatIsStillRight) {
  ASSERT_EQ(PublishSigned().status, PublishCommand::Done);
  const std::string before = Text(Signature);
  EXPECT_THAT(PublishSigned().out, StartsWith("Nothing has changed"));
  Put("cars\\cricket.zip", Car("cricket", "another horn"));
  EXPECT_THAT(PublishSigned().out, StartsWith("Published"));
  EXPECT_EQ(Text(Signature), before);
  Put("software\\sk2up.exe", "MZ a newer installer");
  EXPECT_THAT(PublishSigned().out, StartsWith("Published"));
  EXPECT_NE(Text(Signature), before);
  EXPECT_TRUE(IsTakenByPacks(machine));
}

TEST_F(Signing, RefusesAKeyThatIsNotThePacks) {
  ExpectRefused(
      PublishWith({"--key", "C:\\Keys\\other.pem", "--public-key", PublicKey, Folder, Site}),
      "C:/Offer/software/sk2up.exe: The private key is not that of the public key");
}

TEST_F(Signing, RefusesAnInstallerWithoutASignature) {
  ExpectRefused(PublishWith({"--public-key", PublicKey, Folder, Site}),
                "C:/Offer/software/sk2up.exe: It is not signed");
  // As it is built into the program.
  ExpectRefused(PublishWith({Folder, Site}, SignatureExamples::MakerKey), "It is not signed");
}

TEST_F(Signing, PublishesASignatureThatLiesBesideTheInstaller) {
  Put("software\\sk2up.exe", SignatureExamples::Contents);
  Put("software\\sk2up.exe.sig", SignatureExamples::FromHex(SignatureExamples::OfTheMaker[1]));
  const Told told = PublishWith({Folder, Site}, SignatureExamples::MakerKey);
  EXPECT_EQ(told.status, PublishCommand::Done) << told.errors;
  EXPECT_TRUE(IsTakenByPacks(machine));
}

TEST_F(Signing, RefusesASignatureThatIsNotRight) {
  Put("software\\sk2up.exe", SignatureExamples::Contents);
  for (const std::string& signature :
       {std::string(), std::string("none"), std::string(100'000, '0'),
        SignatureExamples::FromHex(SignatureExamples::OfTheOther),
        SignatureExamples::FromHex(SignatureExamples::OfNothing)}) {
    Put("software\\sk2up.exe.sig", signature);
    ExpectRefused(PublishWith({"--public-key", PublicKey, Folder, Site}),
                  "C:/Offer/software/sk2up.exe.sig: It is not the signature of sk2up.exe");
  }
}

TEST_F(Signing, RefusesASignatureBesideTheOneThatItMakes) {
  Put("software\\sk2up.exe.sig", "by hand");
  ExpectRefused(PublishSigned(), "C:/Offer/software/sk2up.exe.sig: It is made by --key");
}

TEST_F(Signing, WithoutAnInstallerNeedsNoSignature) {
  Remove("software\\sk2up.exe");
  EXPECT_EQ(PublishSigned().status, PublishCommand::Done);
  EXPECT_FALSE(machine.files.Exists(Signature));
}

TEST_F(Signing, ThatPacksDoNotAskForLeavesTheFileAsItIs) {
  Put("software\\sk2up.exe.sig", "whatever it is");
  EXPECT_EQ(PublishWith({Folder, Site}).status, PublishCommand::Done);
  EXPECT_EQ(Text(Signature), "whatever it is");
}

TEST_F(Signing, NeedsKeysThatAreSome) {
  const auto expectFailure = [&](const std::vector<std::string>& options, const std::string& told) {
    std::vector<std::string> arguments = options;
    arguments.insert(arguments.end(), {Folder, Site});
    const Told answer = PublishWith(arguments);
    EXPECT_EQ(answer.status, PublishCommand::Failed);
    EXPECT_THAT(answer.errors, HasSubstr(told));
    EXPECT_FALSE(machine.files.Exists(Site + "\\current"));
  };
  const std::string none = Folder + "\\pages\\index.html";
  expectFailure({"--key", Key}, "--public-key must tell the key");
  expectFailure({"--public-key", "C:\\Keys\\none.pem"}, "The file was not found.");
  expectFailure({"--public-key", none}, "This is no public key on the curve P-256");
  expectFailure({"--public-key", Key}, "This is no public key on the curve P-256");
  expectFailure({"--key", "C:\\Keys\\none.pem", "--public-key", PublicKey},
                "The file was not found.");
  for (const std::string& key : {none, PublicKey}) {
    expectFailure({"--key", key, "--public-key", PublicKey}, "was not taken for the private key");
  }
}

TEST(SigningSweep, WhateverFailsWhatIsServedIsTakenByPacks) {
  const auto calls = ForEachCallThatFails([](Simulated::Machine& machine, Simulated::After after) {
    PutOffer(machine);
    PutKeys(machine);
    ASSERT_EQ(PublishSigned().status, PublishCommand::Done);
    machine.files.Put(Folder + "\\software\\sk2up.exe", "MZ a newer installer");
    machine.FailAnyCall(after);
    const Told told = PublishSigned();
    if (!machine.FailureHappened()) machine.faults = {};
    EXPECT_THAT(told.status, AnyOf(PublishCommand::Done, PublishCommand::Failed));
    EXPECT_TRUE(IsTakenByPacks(machine));
    EXPECT_EQ(machine.files.Text(Served) == "MZ a newer installer",
              told.status == PublishCommand::Done);
  });
  EXPECT_GT(calls.size(), 50U);
}

}  // namespace
