#include "tracks/Trackmaker.h"

#include "base/PerRun.h"
#include "tracks/TrackInWork.h"
#include "tracks/TrackManager.h"
#include "tracks/TrackParts.h"

Trackmaker::Trackmaker() : Form(TrackTexts.TrackmakerTitle, {.isResizable = true}) {
  OnLoad = [this] { Form_Load(); };
  OnKeyDown = [this](Platform::KeyEvent& key) { Form_KeyDown(key); };
  NewPart.OnClick = [this] { NewPart_Click(); };
  Compile.OnClick = [this] { Compile_Click(); };
  Track.OnClick = [this] { Track_Click(); };
  Ccl.OnClick = [this] { Ccl_Click(); };
}

void Trackmaker::AddLine(const std::string& line) {
  TrackView.Add(line);
  // So that who comes to the list hears the newest part first, not the oldest.
  TrackView.Select(TrackView.count() - 1);
}

void Trackmaker::Form_Load() {
  TrackView.Clear();
  NewPart.Focus();
}

void Trackmaker::Form_KeyDown(Platform::KeyEvent& key) {
  using Platform::Shift::Alt, Platform::Shift::Ctrl;
  void (Trackmaker::*action)() = nullptr;
  if (key.code == 'N' && key.shift == Ctrl) action = &Trackmaker::Track_Click;
  if (key.code == 'N' && key.shift == (Ctrl | Platform::Shift::Shift)) {
    action = &Trackmaker::NewPart_Click;
  }
  if (key.code == 'C' && key.shift == Alt) action = &Trackmaker::Compile_Click;
  if (!action) return;
  key.isHandled = true;
  // Where the focus is when the window comes back, whichever key led away from it.
  Track.Focus();
  (this->*action)();
}

void Trackmaker::NewPart_Click() {
  auto& parts = PerRun<TrackParts>();
  // Set at each opening: the dialog does not know its opener.
  parts.OnAdded = [this](const std::string& line) { AddLine(line); };
  parts.Show();
}

void Trackmaker::Compile_Click() {
  if (TrackManager::SaveTrack()) GoBack();
}

void Trackmaker::Track_Click() {
  // The dialog comes over the main window; without a choice the user is there, as after Exit.
  GoBack();
  NewTrack();
}

void Trackmaker::Ccl_Click() {
  // The window stays loaded, and would come back with the focus on this button.
  Track.Focus();
  GoBack();
}

void NewTrack() {
  const std::string path = TrackManager::ChooseFileOfNewTrack();
  if (path.empty()) return;
  // The path is set when the window is there: if it cannot be shown, the track in work is as
  // before.
  PerRun<Trackmaker>().Show();
  TheTrack().TrackPath = path;
}
