// The viewer of the public address in the language of keys.
#include "internet/TemporaryFile.h"
#include "tests/app/TranslatedPack.h"

namespace Translated {

std::vector<Scene> AddressScenes() {
  static const Lines menu{"<XInternet>", "<IPersonalIPViewer>"};
  static const std::string page = "http://address.orvane.example/";
  return {
      {"the public address",
       [](Player& player) {
         player.machine.web.Serve(page, "...........1.2.3.4");
         player.user.ChoosesMenu(menu);
         player.Looks();
       },
       {"window <PIPVTitle>: [<PIPVPrompt>, edit, read only, 1.2.3.4] "
        "[<CopyIPButton>, button] [<ExitPIPVButton>, button]"}},

      {"no public address",
       [](Player& player) {
         player.user.ChoosesMenu(menu);
         player.machine.web.Serve(page, "sold");
         player.user.ChoosesMenu(menu);
         player.machine.web.Serve(page, std::string(TemporaryFile::LargestRead + 1, '.'));
         player.user.ChoosesMenu(menu);
       },
       {"box <Error>: <NoConnection>", "box <RTETitle>: <AddressPageNotUnderstood>",
        "box <RTETitle>: <DownloadTooLarge>\r\n<RTEFile> "
        "C:\\Program Files\\SK2Pack\\read.tmp"}},
  };
}

}  // namespace Translated
