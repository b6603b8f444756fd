// What the windows of the recorder have in common: a description is recorded, heard back, and kept
// or recorded again.
#pragma once

#include <optional>

#include "packaging/Description.h"
#include "packaging/PackagingTexts.h"
#include "platform/Recorder.h"
#include "platform/Sound.h"
#include "ui/Forms.h"
#include "ui/Timer.h"

class RecordingWindow : public Platform::Form {
 public:
  // Shows the window in place of the one in use, tells the user that it begins, and records into
  // the description's file. Returns when the recording has begun; the user then
  //   presses the space bar, or lets five seconds pass: the take ends and is heard to its end.
  //     Then they keep it, and the window gives up the stage before OnKept goes on; or they do
  //     not, and the next take begins at once, on the same device and into the same file.
  //   closes the window, also by Escape: the take ends. What was recorded stays.
  // A recording that cannot begin is told, and ends the work. The file is then as it was; it is
  // not played, since it may be of an earlier take or of an earlier day.
  //   device  its number, or DefaultRecordingDevice.
  // Fails as Show does.
  void Begin(int device, const Description& description);

 protected:
  RecordingWindow(const LangText& startText, const LangText& startTitle);

 private:
  LangText startText_;
  LangText startTitle_;
  // The title alone is not enough: it is the same while the take is played.
  Platform::Label Prompt{*this, {.text = PackagingTexts.AudioManRecording}};
  Platform::Timer Timerage{*this, {.milliseconds = 5000}};
  Platform::Timer Listening{*this, {.milliseconds = 50}};

  int device_ = Platform::DefaultRecordingDevice;
  Description description_;
  Platform::Recorder recorder_;
  std::optional<Platform::SoundBuffer> sound_;  // the take, while it is played

  void StartRecording();
  void StopRecording();
  void PlayDescription();
  void ConfirmRecording();
  void Abort();  // nothing records or plays any more; the window is left

  void Form_KeyDown(Platform::KeyEvent& key);  // space bar, Escape
  void Form_Unload();
  void Timerage_Timer();   // the time is over
  void Listening_Timer();  // has the take been heard?
};
