// The small window that says what is going on while the user waits. A screen reader reads its title
// and its label, which say the same, when it comes, and its title again when that changes.
#pragma once

#include "internet/InternetTexts.h"
#include "ui/Forms.h"

class Progress final : public Platform::Form {
 public:
  Progress();

  // Shows the window, if it is not on the stage already, and says what is done now.
  void ShowStep(const LangText& step);

 private:
  Platform::Label Step{*this, {.text = InternetTexts.DownloadingTitle}};
};
