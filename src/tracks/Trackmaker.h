// The window of the track editor: the parts of the track so far, and what can be done with it.
#pragma once

#include <string>

#include "tracks/TrackTexts.h"
#include "ui/Forms.h"

// One for a run: PerRun<Trackmaker>(). It is only hidden by Exit and by a save, so that the lines
// of all parts stay to be read until the window is closed, those of tracks saved before included.
class Trackmaker final : public Platform::Form {
 public:
  Trackmaker();

 private:
  // In reading order.
  Platform::ListBox TrackView{*this, {.label = TrackTexts.TrackViewer}};
  Platform::Button NewPart{*this, {.text = TrackTexts.NewPartButton, .isDefault = true}};
  Platform::Button Compile{*this, {.text = TrackTexts.SaveTrackButton}};
  Platform::Button Track{*this, {.text = TrackTexts.NewTrackButton}};
  Platform::Button Ccl{*this, {.text = TrackTexts.ExitButton, .isCancel = true}};

  // Adds the line of a part behind the others, and selects it.
  void AddLine(const std::string& line);

  void Form_Load();                            // an empty list; the focus on New Part
  void Form_KeyDown(Platform::KeyEvent& key);  // Ctrl+N, Ctrl+Shift+N and Alt+C
  void NewPart_Click();                        // opens the dialog of a part
  void Compile_Click();                        // saves the track
  void Track_Click();                          // starts a track, over the main window
  void Ccl_Click();                            // leaves the track as it is
};

// Starts a track: the user chooses its file, and the editor's window is shown in place of the one
// in use. Parts that were built but not saved are kept and will go into the chosen file. If no file
// is chosen, nothing changes. Fails as TrackManager::ChooseFileOfNewTrack does.
void NewTrack();
