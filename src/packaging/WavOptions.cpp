#include "packaging/WavOptions.h"

#include <utility>

#include "packaging/RecordingTold.h"
#include "text/StringTable.h"

WavOptions::WavOptions(const LangText& title) : Form(title, {.isResizable = true}) {
  OnLoad = [this] { Form_Load(); };
  OnClose = [this] { Ccl_Click(); };
  DoWhat.OnDoubleClick = [this] { Submit_Click(); };
  Submit.OnClick = [this] { Submit_Click(); };
  Ccl.OnClick = [this] { Ccl_Click(); };
}

void WavOptions::Ask(std::function<void()> openExisting, std::function<void()> recordNew) {
  openExisting_ = std::move(openExisting);
  recordNew_ = std::move(recordNew);
  Show();
}

void WavOptions::Form_Load() {
  const auto entry = [](const LangText& doWhat) {
    return GetLangString(doWhat) + " .wav " + GetLangString(PackagingTexts.File);
  };
  const std::string openExisting = entry(PackagingTexts.OpenExisting);
  DoWhat.SetRows({openExisting, entry(PackagingTexts.RecordNew)}, 0);
}

void WavOptions::Submit_Click() {
  const int selected = DoWhat.selected();
  if (selected < 0) return;
  Leave();
  // A copy: what follows may ask anew.
  const auto action = selected == 0 ? openExisting_ : recordNew_;
  action();
}

void WavOptions::Ccl_Click() {
  Leave();
  TellPackagerAborted();
}
