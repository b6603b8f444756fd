// The whole pack in a language of its own: every text of the tools is a key in angle brackets, so
// that each is seen to be looked up, and to stand where it belongs.
//
// A new tool adds the function of its scenes to Scenes() and takes its texts out of
// TextsOfToolsToCome().
#include <set>

#include "tests/app/TranslatedPack.h"
#include "vehicles/VehicleTexts.h"

namespace Translated {

namespace {

const std::vector<Scene>& Scenes() {
  static const std::vector<Scene> all = [] {
    std::vector<Scene> scenes;
    for (const auto& ofTool : {MainWindowScenes,  //
                               VehicleScenes,     //
                               TrackScenes,       //
                               PackagingScenes,   //
                               RecordScenes,      //
                               LanguageScenes,    //
                               ServerScenes,      //
                               AddressScenes,     //
                               DownloadScenes,    //
                               UpdateScenes,      //
                               FailureScenes}) {
      for (Scene& scene : ofTool()) scenes.push_back(std::move(scene));
    }
    return scenes;
  }();
  return all;
}

// The keys of texts that nothing shows yet, or ever.
std::set<std::string> TextsOfToolsToCome() {
  std::set<std::string> keys;
  const auto add = [&keys](const LangText& text) {
    if (text.key) keys.insert(text.key);
  };
  // The engine of a test is always one of the game's own, which cannot be missing.
  add(VehicleTexts.IgnitionEngineNonexistentText);
  add(VehicleTexts.IgnitionEngineNonexistentTitle);
  return keys;
}

TEST(TranslatedPack, ShowsEveryTextInItsPlace) {
  std::string translation;
  for (const LangText& text : AllTexts()) {
    if (text.key) translation += std::string(text.key) + "=<" + text.key + ">\r\n";
  }
  const std::string languageFile = "C:\\Program Files\\SK2Pack\\sk2pack.lng";
  for (const Scene& scene : Scenes()) {
    SCOPED_TRACE(scene.name);
    Simulated::Machine machine;
    InstallGame(machine, Game);
    machine.files.Put(languageFile, translation);
    StartPack();
    Player player(machine);
    scene.play(player);
    player.Collects();
    EXPECT_THAT(player.shown, testing::ElementsAreArray(scene.shows));
    EXPECT_EQ(machine.files.Text(languageFile), translation) << "a text that no table lists";
  }
}

TEST(TranslatedPack, LeavesNoTextOut) {
  std::string all;
  for (const Scene& scene : Scenes()) {
    for (const std::string& line : scene.shows) all += line + "\n";
  }
  const std::set<std::string> toCome = TextsOfToolsToCome();
  for (const LangText& text : AllTexts()) {
    if (!text.key || toCome.contains(text.key)) continue;
    EXPECT_TRUE(Texts::Contains(all, "<" + std::string(text.key) + ">"))
        << text.key << " is shown by no scene";
  }
}

}  // namespace

}  // namespace Translated
