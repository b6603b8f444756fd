#include "packaging/AudioDevice.h"

#include <utility>

#include "packaging/RecordingTold.h"
#include "ui/Messages.h"

AudioDevice::AudioDevice() : Form(PackagingTexts.AudioDevicesTitle, {.isResizable = true}) {
  OnClose = [this] { Form_Close(); };
  Devices.OnDoubleClick = [this] { Submit_Click(); };
  Submit.OnClick = [this] { Submit_Click(); };
  Ccl.OnClick = [this] { Ccl_Click(); };
}

void AudioDevice::Choose(std::vector<std::string> devices,
                         std::function<void(int device)> onChosen) {
  onChosen_ = std::move(onChosen);
  Devices.SetRows(std::move(devices), 0);
  Devices.Focus();
  Show();
}

void AudioDevice::Form_Close() {
  Leave();
  TellPackagerAborted();
}

void AudioDevice::Submit_Click() {
  Leave();
  // A copy: what follows may show this window anew.
  const auto onChosen = onChosen_;
  onChosen(Devices.selected());
}

void AudioDevice::Ccl_Click() {
  Leave();
  // The same words as at closing, which translators have under keys of their own.
  Messages::Show(PackagingTexts.PAbortedNoAudioDeviceText,
                 PackagingTexts.PAbortedNoAudioDeviceTitle, Platform::Icon::Information);
}
