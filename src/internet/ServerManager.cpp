#include "internet/ServerManager.h"

#include "internet/IPManager.h"
#include "internet/ServerLines.h"
#include "text/StringTable.h"
#include "ui/InputBox.h"
#include "ui/Messages.h"

using Platform::Icon;

ServerManager::ServerManager() : Form(InternetTexts.SelectServerTitle, {.isResizable = true}) {
  IPList.OnSelect = [this] { IPList_Click(); };
  AddToList.OnClick = [this] { AddToList_Click(); };
  DeleteEntry.OnClick = [this] { DeleteEntry_Click(); };
  ClearList.OnClick = [this] { ClearList_Click(); };
  SaveServer.OnClick = [this] { SaveServer_Click(); };
  Ccl.OnClick = [this] { Ccl_Click(); };
}

void ServerManager::LoadIPList() {
  IPList.SetRows(IPManager::IPListRows(), -1);
  IPAddress.SetText("");
  IPList.Focus();
  Show();
}

void ServerManager::IPList_Click() {
  const int index = IPList.selected();
  IPAddress.SetText(index < 0 ? "" : ServerLines::AddressOf(IPList.row(index)));
}

void ServerManager::AddToList_Click() {
  const std::string address = IPAddress.text();
  if (IPManager::IPExists(address)) {
    return Messages::Show(InternetTexts.IPAlreadyExists, SharedTexts.Error, Icon::Critical);
  }
  IPManager::AddIPEntry(AskForName(address), address);
  Messages::Show(InternetTexts.IPAddedText, InternetTexts.IPAddedTitle, Icon::Information);
  LoadIPList();
}

std::string ServerManager::AskForName(const std::string& address) {
  const std::string prompt = GetLangString(InternetTexts.IPEnterFriendlyNameText);
  std::string name =
      Platform::InputBox(prompt, GetLangString(InternetTexts.IPEnterFriendlyNameTitle));
  if (!name.empty()) return name;
  Messages::Show(InternetTexts.IPNoNameEnteredText, InternetTexts.IPNoNameEnteredTitle,
                 Icon::Information);
  return address;
}

void ServerManager::DeleteEntry_Click() {
  const std::string address = IPAddress.text();
  const std::string question = GetLangString(InternetTexts.ConfirmDeleteIPText) + " " + address;
  if (!Messages::Ask(question + "?", InternetTexts.ConfirmDeleteIPTitle,
                     Platform::Buttons::YesNoDefaultNo)) {
    return;
  }
  switch (IPManager::DeleteIPEntry(address)) {
    case IPManager::Deleted:
      // The selected row, whatever was typed into the box since it was chosen.
      IPList.Remove(IPList.selected(), -1);
      break;
    case IPManager::NotInList: TellDeletionError(InternetTexts.IPDelNonexistentError); break;
    case IPManager::ListNotAccessible: TellDeletionError(InternetTexts.IPDelFileAccessError); break;
    case IPManager::OtherFailure: TellDeletionError(InternetTexts.IPDelOtherError); break;
  }
  IPList.Select(-1);
  IPAddress.SetText("");
  // The buttons have no address any more: the next one is chosen in the list.
  IPList.Focus();
}

void ServerManager::TellDeletionError(const LangText& text) {
  Messages::Show(text, InternetTexts.IPDelError, Icon::Critical);
}

void ServerManager::ClearList_Click() {
  if (!Messages::Ask(InternetTexts.ClearIPListText, InternetTexts.ClearIPListTitle,
                     Platform::Buttons::YesNoDefaultNo)) {
    return;
  }
  IPManager::ClearIPList();
}

void ServerManager::SaveServer_Click() {
  const std::string address = IPAddress.text();
  IPManager::SetMultiplayerServer(address);
  const std::string text = GetLangString(InternetTexts.IPChangedText1) + " " + address + " ";
  Messages::Show(text + GetLangString(InternetTexts.IPChangedText2), InternetTexts.IPChangedTitle,
                 Icon::Information);
  Unload();
}

void ServerManager::Ccl_Click() {
  Unload();
}
