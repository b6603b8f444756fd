// The language changer in the language of keys.
#include "tests/app/TranslatedPack.h"

namespace Translated {

std::vector<Scene> LanguageScenes() {
  return {
      {"the languages of the game",
       [](Player& player) {
         const Lines menu{"<XLanguage>", "<LChangeLang>"};
         player.user.ChoosesMenu(menu);
         player.machine.files.PutFolder(Game + "\\sounds\\English");
         player.machine.files.PutFolder(Game + "\\sounds\\Deutsch");
         player.user.ChoosesMenu(menu);
         player.Looks();
         player.Clicks("<SelectButton>");
         player.user.Presses("Escape");
       },
       {"window <LanguageChangerTitle>: [<LanguageChangerText>, list, English, 1 of 2 / English / "
        "Deutsch] [<SelectButton>, button] [<CclButton>, button]",
        "box <NoLangsTitle>: <NoLangsText>", "box <LangChangedTitle>: <LangChangedText>"}},
  };
}

}  // namespace Translated
