#include "packaging/SKFileRecorder.h"

#include "base/PerRun.h"
#include "base/SharedTexts.h"
#include "packaging/AudioDevice.h"
#include "packaging/Audioman.h"
#include "packaging/PackagingTexts.h"
#include "packaging/RecordingTold.h"
#include "packaging/VhcAudioman.h"
#include "platform/Recorder.h"
#include "ui/Messages.h"

namespace SKFileRecorder {

namespace {

void AskForDevice(const Description& track) {
  std::vector<std::string> devices = Platform::RecordingDevices();
  if (devices.empty()) {
    Messages::Show(PackagingTexts.NoAudioDevicesText, PackagingTexts.NoAudioDevicesTitle,
                   Platform::Icon::Critical);
    return TellPackagerAborted();
  }
  PerRun<AudioDevice>().Choose(std::move(devices),
                               [track](int device) { BeginTrackRecording(device, track); });
}

}  // namespace

void BeginTrackRecording(int device, const Description& track) {
  if (device == NoDeviceYet) return AskForDevice(track);
  if (track.path.empty()) {
    return Messages::Show(PackagingTexts.RecordingNoTrack, SharedTexts.Error,
                          Platform::Icon::Critical);
  }
  PerRun<Audioman>().Begin(device, track);
}

void BeginVehicleRecording(int device, const Description& vehicle, const Description& track) {
  if (device == NoDeviceYet) return AskForDevice(track);
  PerRun<VhcAudioman>().Begin(device, vehicle);
}

}  // namespace SKFileRecorder
