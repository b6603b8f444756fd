// The server list in the language of keys.
#include "tests/app/TranslatedPack.h"

namespace Translated {

namespace {

const std::string List = "C:\\Program Files\\SK2Pack\\iplist.dat";

void OpenList(Player& player, const std::string& bytes) {
  player.machine.files.Put(List, bytes);
  player.user.ChoosesMenu({"<XInternet>", "<IServerSelect>"});
}

void Deletes(Player& player) {
  player.user.AnswersYes();
  player.Clicks("<DeleteEntryButton>");
}

}  // namespace

std::vector<Scene> ServerScenes() {
  return {
      {"the server list",
       [](Player& player) {
         OpenList(player, "home=10.0.0.7\r\n");
         player.user.Presses("Down");
         player.Looks();
         player.Clicks("<AddToListButton>");
         player.GoesTo("<IPTextPrompt>");
         player.user.Types("1");
         for (const char* name : {"", "away"}) {
           if (*name) player.user.TypesInBox(name);
           if (!*name) player.user.CancelsBox();
           player.Clicks("<AddToListButton>");
           player.GoesTo("<IPTextPrompt>");
           player.user.Types("2");
         }
         player.user.AnswersNo();
         player.Clicks("<ClearListButton>");
         player.machine.files.Put(Game + "\\Skidrun.cfg", "Multiplayer=1\r\n");
         player.Clicks("<SelectButton>");
       },
       {"window <SelectServerTitle>: [<SelectIPPrompt>, list, home (10.0.0.7), 1 of 1 / home "
        "(10.0.0.7)] [<IPTextPrompt>, edit, 10.0.0.7] [<AddToListButton>, button] "
        "[<DeleteEntryButton>, button] [<ClearListButton>, button] [<SelectButton>, button] "
        "[<CclButton>, button]",
        "box <Error>: <IPAlreadyExists>", "box <IPNoNameEnteredTitle>: <IPNoNameEnteredText>",
        "box <IPAddedTitle>: <IPAddedText>", "box <IPAddedTitle>: <IPAddedText>",
        "box <ClearIPListTitle>: <ClearIPListText>",
        "box <IPChangedTitle>: <IPChangedText1> 2 <IPChangedText2>",
        "question <IPEnterFriendlyNameTitle>: <IPEnterFriendlyNameText>",
        "question <IPEnterFriendlyNameTitle>: <IPEnterFriendlyNameText>"}},

      {"servers that are not deleted",
       [](Player& player) {
         OpenList(player, "home=10.0.0.7\r\n");
         player.user.Presses("Down");
         Deletes(player);
         Deletes(player);
         player.user.Presses("Escape");
         OpenList(player, "home=10.0.0.7\r\naway=10.0.0.8\r\n");
         player.machine.files.SetAttributes(List, Simulated::ReadOnly);
         player.user.Presses("Down");
         Deletes(player);
       },
       {"box <ConfirmDeleteIPTitle>: <ConfirmDeleteIPText> 10.0.0.7?",
        "box <IPDelError>: <IPDelOtherError>",
        "box <ConfirmDeleteIPTitle>: <ConfirmDeleteIPText> ?",
        "box <IPDelError>: <IPDelNonexistentError>",
        "box <ConfirmDeleteIPTitle>: <ConfirmDeleteIPText> 10.0.0.7?",
        "box <IPDelError>: <IPDelFileAccessError>"}},
  };
}

}  // namespace Translated
