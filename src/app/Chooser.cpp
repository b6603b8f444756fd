#include "app/Chooser.h"

#include <utility>

#include "base/SharedTexts.h"
#include "text/StringTable.h"

Chooser::Chooser(const LangText& title, const LangText& prompt, std::vector<Entry> entries,
                 MainWindow whileRunning)
    : Form(title, {.isResizable = true}),
      entries_(std::move(entries)),
      whileRunning_(whileRunning),
      What(*this, {.label = prompt}),
      Submit(*this, {.text = SharedTexts.OKButton, .isDefault = true}),
      Ccl(*this, {.text = SharedTexts.CclButton, .isCancel = true}) {
  OnLoad = [this] { Form_Load(); };
  // As Cancel. Without a handler the window would be unloaded, and forget its row.
  OnClose = [this] { Ccl_Click(); };
  What.OnDoubleClick = [this] { Submit_Click(); };
  Submit.OnClick = [this] { Submit_Click(); };
  Ccl.OnClick = [this] { Ccl_Click(); };
}

void Chooser::Form_Load() {
  // Looked up at each opening: a translator may have changed the language file meanwhile.
  std::vector<std::string> rows;
  for (const Entry& entry : entries_) rows.push_back(GetLangString(entry.text));
  What.SetRows(std::move(rows), 0);
}

void Chooser::Submit_Click() {
  // Another program, such as a screen reader, can leave the list with no row selected.
  if (What.selected() < 0) return;
  // The chooser goes first, so that a box of the action comes over the window that stays. Left
  // open, it would be what a tool that closes goes back to.
  if (whileRunning_ == MainWindow::ComesBack) {
    GoBack();
  } else {
    Leave();
  }
  entries_[static_cast<size_t>(What.selected())].run();
}

void Chooser::Ccl_Click() {
  Leave();
}
