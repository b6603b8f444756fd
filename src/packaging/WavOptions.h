// What the windows of the packagers have in common where a description is missing: shall a sound
// file be taken for it, or one be recorded?
#pragma once

#include <functional>

#include "base/SharedTexts.h"
#include "packaging/PackagingTexts.h"
#include "ui/Forms.h"

class WavOptions : public Platform::Form {
 public:
  // Shows the window in place of the one in use. At OK it gives up the stage, and one of the two
  // goes on. Cancel and closing end the work, and the user is told so.
  // Fails as Show does.
  void Ask(std::function<void()> openExisting, std::function<void()> recordNew);

 protected:
  explicit WavOptions(const LangText& title);

 private:
  // In reading order; DoWhat is named by its label, DoWhatPrompt.
  Platform::ListBox DoWhat{*this, {.label = PackagingTexts.SelectOption}};
  Platform::Button Submit{*this, {.text = SharedTexts.OKButton, .isDefault = true}};
  Platform::Button Ccl{*this, {.text = SharedTexts.CclButton, .isCancel = true}};

  std::function<void()> openExisting_;
  std::function<void()> recordNew_;

  void Form_Load();  // fills the list and selects its first entry
  void Submit_Click();
  void Ccl_Click();
};
