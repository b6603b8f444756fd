// The window in which a player chooses the language that the game speaks: one of the folders of
// sounds that are installed. The pack's own texts are another matter: see text/StringTable.h.
#pragma once

#include "base/SharedTexts.h"
#include "language/LanguageTexts.h"
#include "ui/Forms.h"

class LanguageChanger final : public Platform::Form {
 public:
  LanguageChanger();

  // Fills the list with the languages of the game, in the order in which the system gives them, and
  // selects the first one. Whatever lies among the game's sounds counts as a language, a plain file
  // too, as it always has. False if there is none, which the user is then told over the window in
  // use. Fails as Application::GameFolder and Platform::ListFolder do; the list is then as it was.
  bool ListInstalledLanguages();

  // Writes the language with an index, counted from 0 in the list, into the game's configuration.
  // An index that is that of no language does nothing. Fails as Configuration::Save does.
  void SaveLanguage(int index);

 private:
  Platform::ListBox Languages{*this, {.label = LanguageTexts.LanguageChangerText}};
  Platform::Button Change{*this, {.text = SharedTexts.SelectButton, .isDefault = true}};
  Platform::Button Ccl{*this, {.text = SharedTexts.CclButton, .isCancel = true}};

  void Change_Click();  // saves the selected language; the window stays
  void Ccl_Click();
};

// Opens the window, or tells that no language is installed. Fails as ListInstalledLanguages does;
// the window in use is then still there.
void ShowLanguageChanger();
