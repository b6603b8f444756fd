// What the three choosers have in common: a list, OK and Cancel, and an action for each entry.
#pragma once

#include <functional>
#include <vector>

#include "ui/Forms.h"

class Chooser : public Platform::Form {
 protected:
  struct Entry {
    LangText text;
    std::function<void()> run;
  };
  // Where the main window is while an entry's action runs.
  enum class MainWindow {
    StaysHidden,  // the action shows its tool; without one the main window comes back after it
    ComesBack,    // the action only reports, over the main window
  };

  Chooser(const LangText& title, const LangText& prompt, std::vector<Entry> entries,
          MainWindow whileRunning);

 private:
  std::vector<Entry> entries_;
  MainWindow whileRunning_;

  Platform::ListBox What;  // its label is the prompt
  Platform::Button Submit;
  Platform::Button Ccl;

  void Form_Load();     // fills the list and selects its first entry
  void Submit_Click();  // OK, Enter or a double click
  void Ccl_Click();     // Cancel, Escape or the close box: the selection is kept for the next time
};
