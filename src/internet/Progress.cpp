#include "internet/Progress.h"

#include "text/StringTable.h"

// There is nothing to be done with the window, so it is not put aside either.
Progress::Progress() : Form(InternetTexts.DownloadingTitle, {.hasMinimizeBox = false}) {}

void Progress::ShowStep(const LangText& step) {
  Show();
  const std::string text = GetLangString(step);
  Step.SetCaption(text);
  // Last, since that is what is heard.
  SetTitle(text);
}
