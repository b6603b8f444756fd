// The dialog in which the user describes the next part of a track.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/SharedTexts.h"
#include "platform/Forms.h"
#include "tracks/TrackTexts.h"

// One for a run: PerRun<TrackParts>(). However it is left, the track editor's window comes back.
class TrackParts final : public Platform::Form {
 public:
  TrackParts();

 private:
  // In reading order. The row of a list is the code that goes into the file.
  Platform::TextBox PartLength{*this, {.label = TrackTexts.LengthPrompt}};
  Platform::ListBox TrackSurface{*this, {.label = TrackTexts.SurfacePrompt}};
  Platform::ListBox TrackCurve{*this, {.label = TrackTexts.CurvePrompt}};
  Platform::Button Submit{*this, {.text = SharedTexts.OKButton, .isDefault = true}};
  Platform::Button Ccl{*this, {.text = SharedTexts.CclButton, .isCancel = true}};

  void Form_Load();     // fills the lists
  void Form_Unload();   // back to the track
  void Submit_Click();  // adds the part; a length that cannot be is told and the dialog stays
  void Ccl_Click();     // back to the track, which stays as it is

  std::optional<int32_t> TakeLength();
  void ReturnToLength();
};
