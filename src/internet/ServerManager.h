// The window in which a player keeps a list of servers, and chooses the one that the game uses.
//
// What the buttons act on is the address in the box. A row that is chosen puts its address there,
// so that the two agree; the user may then type another one. Where the box is emptied no row stays
// selected, or a row would be heard that the next button has nothing to do with.
#pragma once

#include <string>

#include "base/SharedTexts.h"
#include "internet/InternetTexts.h"
#include "ui/Forms.h"

class ServerManager final : public Platform::Form {
 public:
  ServerManager();

  // Reads the list anew and shows the window with it; the focus is on the list, no row is selected,
  // and the address is empty. Without a list that can be read there are no rows.
  void LoadIPList();

 private:
  Platform::ListBox IPList{*this, {.label = InternetTexts.SelectIPPrompt}};
  Platform::TextBox IPAddress{*this, {.label = InternetTexts.IPTextPrompt}};
  Platform::Button AddToList{*this, {.text = InternetTexts.AddToListButton}};
  Platform::Button DeleteEntry{*this, {.text = InternetTexts.DeleteEntryButton}};
  Platform::Button ClearList{*this, {.text = InternetTexts.ClearListButton}};
  Platform::Button SaveServer{*this, {.text = SharedTexts.SelectButton, .isDefault = true}};
  Platform::Button Ccl{*this, {.text = SharedTexts.CclButton, .isCancel = true}};

  void IPList_Click();  // the address follows the selected row
  void AddToList_Click();
  void DeleteEntry_Click();
  void ClearList_Click();   // the rows stay until the window is opened again, as they always have
  void SaveServer_Click();  // closes the window when the game has its server
  void Ccl_Click();

  // The name under which an address is to be kept: as typed, or the address itself.
  std::string AskForName(const std::string& address);
  void TellDeletionError(const LangText& text);
};
