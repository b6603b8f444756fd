// The dialog in which the user describes the next part of a track.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "base/SharedTexts.h"
#include "tracks/TrackTexts.h"
#include "ui/Forms.h"

// One for a run: PerRun<TrackParts>(). However it is left, the window that opened it comes back.
class TrackParts final : public Platform::Form {
 public:
  TrackParts();

  // A part was added to the track in work, and the window that opened this one is back.
  //   line  the part in words.
  std::function<void(const std::string& line)> OnAdded;

 private:
  // In reading order. The row of a list is the code that goes into the file.
  Platform::TextBox PartLength{*this, {.label = TrackTexts.LengthPrompt}};
  Platform::ListBox TrackSurface{*this, {.label = TrackTexts.SurfacePrompt}};
  Platform::ListBox TrackCurve{*this, {.label = TrackTexts.CurvePrompt}};
  Platform::Button Submit{*this, {.text = SharedTexts.OKButton, .isDefault = true}};
  Platform::Button Ccl{*this, {.text = SharedTexts.CclButton, .isCancel = true}};

  void Form_Load();     // fills the lists
  void Submit_Click();  // adds the part; a length that cannot be is told and the dialog stays
  void Ccl_Click();     // back to the track, which stays as it is

  std::optional<int32_t> TakeLength();
  void ReturnToLength();
};
