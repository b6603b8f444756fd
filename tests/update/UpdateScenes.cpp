// The update check and its option in the language of keys.
#include "tests/app/TranslatedPack.h"
#include "tests/update/SignedInstaller.h"

namespace Translated {

std::vector<Scene> UpdateScenes() {
  static const std::string server = "http://www.orvane.example/orvane/software/";
  return {
      {"the check for updates",
       [](Player& player) {
         const auto check = [&player] {
           player.user.ChoosesMenu({"<XHelp>", "<HCheckForUpdates>"});
         };
         check();
         player.machine.web.Serve("http://address.orvane.example/", "...........1.2.3.4");
         check();
         for (const char* records : {"other=1", "none", "sk2up=1.0", "sk2up=1.0.0"}) {
           player.machine.web.Serve(server + "versions.dat", records);
           check();
         }
         player.machine.web.Serve(server + "versions.dat", "sk2up=1.0.1");
         player.user.AnswersYes();
         check();
         player.machine.executable.resources = {SignedInstaller::KeyResource()};
         player.machine.web.Serve(server + "sk2up.exe", "MZ");
         for (const char* signature : {"", "no signature"}) {
           if (*signature) player.machine.web.Serve(server + "sk2up.exe.sig", signature);
           player.user.AnswersYes();
           check();
         }
         player.machine.web.Serve(server + "sk2up.exe.sig", SignedInstaller::Signature);
         player.machine.faults.FailAnyCall(Simulated::After{0}, "VerifyHash");
         player.user.AnswersYes();
         check();
       },
       {"box <Error>: <GVNotConnected>", "box <Error>: <GVNoVersionFile>",
        "box <Error>: <GVNoVersion>", "box <Error>: <GVInvalidVersionFile>",
        "box <Error>: <CVInvalidVersion>", "box <Information>: <NoUpdateAvailable>",
        "box <UpdateTitle>: <UpdateText1> Skidrun2 Utility Pack.\r\n"
        "<CurrentVersion>: 1.0.0\r\n<VersionAvailable>: 1\r\n<UpdateText2>",
        "box <ErrorUpdatingTitle>: <ErrorUpdatingText1> Skidrun2 Utility Pack. "
        "<ErrorUpdatingText2>",
        "box <UpdateTitle>: <UpdateText1> Skidrun2 Utility Pack.\r\n"
        "<CurrentVersion>: 1.0.0\r\n<VersionAvailable>: 1\r\n<UpdateText2>",
        "box <ErrorUpdatingTitle>: <ErrorUpdatingText1> Skidrun2 Utility Pack. "
        "<UpdateSignatureMissing>",
        "box <UpdateTitle>: <UpdateText1> Skidrun2 Utility Pack.\r\n"
        "<CurrentVersion>: 1.0.0\r\n<VersionAvailable>: 1\r\n<UpdateText2>",
        "box <ErrorUpdatingTitle>: <ErrorUpdatingText1> Skidrun2 Utility Pack. "
        "<UpdateSignatureWrong>",
        "box <UpdateTitle>: <UpdateText1> Skidrun2 Utility Pack.\r\n"
        "<CurrentVersion>: 1.0.0\r\n<VersionAvailable>: 1\r\n<UpdateText2>",
        "box <RTETitle>: <RTEDeviceError>\r\n<CheckingSignature>: <RTESystemError> 0xC000000D"}},

      {"the option to look for updates at the start",
       [](Player& player) {
         for (int i = 0; i < 2; ++i) player.user.ChoosesMenu({"<XOptions>", "<OAutoUpdate>"});
       },
       {"box <Information>: <AutoUpdate> <On>.", "box <Information>: <AutoUpdate> <Off>."}},
  };
}

}  // namespace Translated
