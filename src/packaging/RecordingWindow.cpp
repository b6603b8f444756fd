#include "packaging/RecordingWindow.h"

#include "base/RuntimeError.h"
#include "base/SharedTexts.h"
#include "packaging/RecordingTold.h"
#include "platform/WaveFile.h"
#include "text/StringTable.h"
#include "ui/Messages.h"

namespace {

constexpr int Rate = 44100;
constexpr int Channels = 2;

}  // namespace

RecordingWindow::RecordingWindow(const LangText& startText, const LangText& startTitle)
    : Form(PackagingTexts.AudioManTitle), startText_(startText), startTitle_(startTitle) {
  OnUnload = [this] { Form_Unload(); };
  OnClose = [this] { Abort(); };
  OnKeyDown = [this](Platform::KeyEvent& key) { Form_KeyDown(key); };
  Timerage.OnTimer = [this] { Timerage_Timer(); };
  Listening.OnTimer = [this] { Listening_Timer(); };
}

void RecordingWindow::Begin(int device, const Description& description) {
  device_ = device;
  description_ = description;
  Prompt.SetCaption(GetLangString(PackagingTexts.AudioManRecording));
  Show();
  Messages::Show(startText_, startTitle_, Platform::Icon::Information);
  StartRecording();
}

void RecordingWindow::StartRecording() {
  // The program may have been ended while a box was open.
  if (!IsVisible()) return;
  Prompt.SetCaption(GetLangString(PackagingTexts.AudioManRecording));
  const auto failure = recorder_.Start(description_.path, Rate, Channels, device_);
  if (failure != Platform::RecordingFailure::None) {
    TellRecordingFailure(failure);
    return Abort();
  }
  // Only now: a device that takes its time to open shall not take it from the speaker.
  Timerage.Start();
}

void RecordingWindow::StopRecording() {
  Timerage.Stop();
  const auto failure = recorder_.Stop();
  if (failure != Platform::RecordingFailure::None) TellRecordingFailure(failure);
}

void RecordingWindow::PlayDescription() {
  if (!IsVisible()) return;
  Prompt.SetCaption(GetLangString(PackagingTexts.AudioManPlaying));
  // A take that cannot be heard is as good as a silent one: the question follows all the same.
  try {
    sound_.emplace(Platform::ReadWaveFile(description_.path));
    sound_->Play(Platform::Looping::No);
  } catch (const RuntimeError&) {
    sound_.reset();
    return ConfirmRecording();
  }
  Listening.Start();
}

void RecordingWindow::ConfirmRecording() {
  if (!Messages::Ask(PackagingTexts.HappyWithRecordingText, PackagingTexts.HappyWithRecordingTitle,
                     Platform::Buttons::YesNo)) {
    return StartRecording();
  }
  Leave();
  // A copy: what follows may record again, or end the window.
  const auto onKept = description_.OnKept;
  onKept();
}

void RecordingWindow::Abort() {
  Form_Unload();
  Leave();
  TellPackagerAborted();
}

void RecordingWindow::Form_KeyDown(Platform::KeyEvent& key) {
  if (key.shift != Platform::Shift::None) return;
  if (key.code == Platform::Key::Escape) {
    key.isHandled = true;
    return Abort();
  }
  // While the take is played nothing records, and the space bar does nothing.
  if (key.code != Platform::Key::Space || !Timerage.IsRunning()) return;
  key.isHandled = true;
  Timerage_Timer();
}

void RecordingWindow::Form_Unload() {
  Timerage.Stop();
  Listening.Stop();
  recorder_.Stop();
  sound_.reset();
}

void RecordingWindow::Timerage_Timer() {
  StopRecording();
  PlayDescription();
}

void RecordingWindow::Listening_Timer() {
  if (sound_ && sound_->IsPlaying()) return;
  Listening.Stop();
  sound_.reset();
  ConfirmRecording();
}
