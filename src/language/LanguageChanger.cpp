#include "language/LanguageChanger.h"

#include <string>
#include <utility>
#include <vector>

#include "base/PerRun.h"
#include "game/Application.h"
#include "game/Configuration.h"
#include "platform/Files.h"
#include "ui/Messages.h"

LanguageChanger::LanguageChanger()
    : Form(LanguageTexts.LanguageChangerTitle, {.isResizable = true}) {
  Change.OnClick = [this] { Change_Click(); };
  Ccl.OnClick = [this] { Ccl_Click(); };
}

bool LanguageChanger::ListInstalledLanguages() {
  std::vector<std::string> names;
  for (Platform::FolderEntry& entry :
       Platform::ListFolder(Application::GameFolder() + "\\sounds")) {
    names.push_back(std::move(entry.name));
  }
  const bool isAnyInstalled = !names.empty();
  // The first, not the game's present language: a list that is entered has a row that is heard.
  Languages.SetRows(std::move(names), 0);
  if (isAnyInstalled) return true;
  Messages::Show(LanguageTexts.NoLangsText, LanguageTexts.NoLangsTitle, Platform::Icon::Critical);
  return false;
}

void LanguageChanger::SaveLanguage(int index) {
  if (index < 0 || index >= Languages.count()) return;
  // A player who has never started the game has no configuration yet: it begins with the language.
  Configuration::Save("Language", Languages.row(index), Configuration::IfMissing::Make);
}

void LanguageChanger::Change_Click() {
  const int index = Languages.selected();
  // Another program can take the selection away: the user is led to where it is missing.
  if (index < 0) return Languages.Focus();
  SaveLanguage(index);
  // The window stays, so that a slip is mended where it was made; Escape leaves it.
  Messages::Show(LanguageTexts.LangChangedText, LanguageTexts.LangChangedTitle,
                 Platform::Icon::Information);
}

void LanguageChanger::Ccl_Click() {
  Unload();
}

void ShowLanguageChanger() {
  auto& changer = PerRun<LanguageChanger>();
  // Listed before the window is shown: without a language it never comes.
  if (changer.ListInstalledLanguages()) changer.Show();
}
