// The recorder and the packagers in the language of keys.
#include "packaging/SKFileRecorder.h"
#include "tests/app/TranslatedPack.h"

namespace Translated {

namespace {

const Lines TrackMenu{"<XTrack>", "<TPackage>"};
const Lines VehicleMenu{"<XVehicle>", "<VPackage>"};

void Packages(Player& player, const Lines& menu, const std::string& path,
              const std::string& bytes) {
  player.machine.files.Put(path, bytes);
  player.user.ChoosesFile(path);
  player.user.ChoosesMenu(menu);
}
void PackagesTrack(Player& player) {
  Packages(player, TrackMenu, Game + "\\tracks\\a.trk", "0");
}
void PackagesVehicle(Player& player, const std::string& bytes) {
  Packages(player, VehicleMenu, Game + "\\vehicles\\a.vhc", bytes);
}

void ChoosesToRecord(Player& player) {
  PackagesTrack(player);
  player.user.Presses("Down");
  player.user.Presses("Enter");
}
void HearsWindow(Player& player) {
  for (const std::string& line : player.user.HearsOnOpening()) player.shown.push_back(line);
}

// Each of the two windows that record, up to the question.
void Records(Player& player) {
  const auto record = [&](const auto& begin) {
    begin();
    HearsWindow(player);
    player.user.Waits(1'000);
    player.user.Presses("Space");
    HearsWindow(player);
    player.user.Presses("Escape");
  };
  record([] { SKFileRecorder::BeginTrackRecording(0, {.path = "C:\\a.wav", .OnKept = [] {}}); });
  record(
      [] { SKFileRecorder::BeginVehicleRecording(0, {.path = "C:\\a.wav", .OnKept = [] {}}, {}); });
  SKFileRecorder::BeginTrackRecording(0, {.path = "C:\\a.wav", .OnKept = [] {}});
  player.user.AnswersYes();
  player.user.Presses("Space");
}

}  // namespace

std::vector<Scene> PackagingScenes() {
  return {
      {"a track that is packaged",
       [](Player& player) {
         player.user.CancelsFileDialog();
         player.user.ChoosesMenu(TrackMenu);
         PackagesTrack(player);
         player.Looks();
         player.user.Presses("Escape");
         PackagesTrack(player);
         player.user.CancelsFileDialog();
         player.user.Presses("Enter");
         player.machine.files.Put(Game + "\\tracks\\a.wav", "spoken");
         PackagesTrack(player);
       },
       {"window <TrkSoundNonexistentOptionsTitle>: [<SelectOption>, list, <OpenExisting> .wav "
        "<File>, 1 of 2 / <OpenExisting> .wav <File> / <RecordNew> .wav <File>] [<OKButton>, "
        "button] [<CclButton>, button]",
        "box <PAbortedNoTrackFileTitle>: <PAbortedNoTrackFileText>",
        "box <PAbortedTitle>: <PAbortedText>",
        "box <PAbortedNoAudioFileTitle>: <PAbortedNoAudioFileText>",
        "box <PackageSuccessfulTitle>: <PackageSuccessfulText> "
        "c:\\games\\skidrun2\\tracks\\a.zip",
        "dialog <OpenTrackDlgTitle>: <TrackFilter> (*.trk)",
        "dialog <OpenTrackDlgTitle>: <TrackFilter> (*.trk)",
        "dialog <OpenTrackDlgTitle>: <TrackFilter> (*.trk)",
        "dialog <OpenWavDlgTitle>: <OpenWavDlgFilter> (*.wav)",
        "dialog <OpenTrackDlgTitle>: <TrackFilter> (*.trk)"}},

      {"a vehicle that is packaged",
       [](Player& player) {
         player.user.CancelsFileDialog();
         player.user.ChoosesMenu(VehicleMenu);
         PackagesVehicle(player, "");
         player.Looks();
         player.user.CancelsFileDialog();
         player.user.Presses("Enter");
         player.machine.files.Put(Game + "\\vehicles\\a.wav", "spoken");
         for (const char* sound : {"engine", "throttle", "start", "horn"}) {
           PackagesVehicle(player, std::string(sound) + "sound=no.wav");
         }
         PackagesVehicle(player, "");
       },
       {"window <VhcSoundNonexistentOptionsTitle>: [<SelectOption>, list, <OpenExisting> .wav "
        "<File>, 1 of 2 / <OpenExisting> .wav <File> / <RecordNew> .wav <File>] [<OKButton>, "
        "button] [<CclButton>, button]",
        "box <Aborted>: <CPackagerAbortedNoVhcFileSelected>",
        "box <Aborted>: <CPackagerAbortedNoWaveFileText>",
        "box <EngineFileNonexistentTitle>: <EngineFileNonexistentText>",
        "box <ThrottleFileNonexistentTitle>: <ThrottleFileNonexistentText>",
        "box <StartFileNonexistentTitle>: <StartFileNonexistentText>",
        "box <HornFileNonexistentTitle>: <HornFileNonexistentText>",
        "box <CPackagerSuccessfulTitle>: <CPackagerSuccessfulText> "
        "c:\\games\\skidrun2\\vehicles\\a.zip",
        "dialog <OpenVehicleDlgTitle>: <VehicleFilter> (*.vhc)",
        "dialog <OpenVehicleDlgTitle>: <VehicleFilter> (*.vhc)",
        "dialog <OpenWavDlgTitle>: <OpenWavDlgFilter> (*.wav)",
        "dialog <OpenVehicleDlgTitle>: <VehicleFilter> (*.vhc)",
        "dialog <OpenVehicleDlgTitle>: <VehicleFilter> (*.vhc)",
        "dialog <OpenVehicleDlgTitle>: <VehicleFilter> (*.vhc)",
        "dialog <OpenVehicleDlgTitle>: <VehicleFilter> (*.vhc)",
        "dialog <OpenVehicleDlgTitle>: <VehicleFilter> (*.vhc)"}},

      {"a sound outside of the vehicle's folder",
       [](Player& player) {
         player.machine.files.Put(Game + "\\vehicles\\a.wav", "spoken");
         player.machine.files.Put(Game + "\\vehicles\\..\\horn.wav", "a horn");
         PackagesVehicle(player, "hornsound=..\\horn.wav");
       },
       {"box <RTETitle>: <SoundOutsideVehicleFolder>\r\n<RTEFile> "
        "c:\\games\\skidrun2\\vehicles\\..\\horn.wav",
        "dialog <OpenVehicleDlgTitle>: <VehicleFilter> (*.vhc)"}},

      {"an archive that would be packaged into itself",
       [](Player& player) {
         player.machine.files.Put(Game + "\\vehicles\\a.wav", "spoken");
         player.machine.files.Put(Game + "\\vehicles\\a.zip", "");
         PackagesVehicle(player, "hornsound=a.zip");
         player.machine.files.Delete(Game + "\\vehicles\\a.zip");
       },
       {"box <RTETitle>: <PackagedIntoItself>\r\n<RTEFile> c:\\games\\skidrun2\\vehicles\\a.zip",
        "dialog <OpenVehicleDlgTitle>: <VehicleFilter> (*.vhc)"}},

      {"the device to record from",
       [](Player& player) {
         ChoosesToRecord(player);
         player.Looks();
         player.user.Presses("Escape");
         PackagesVehicle(player, "");
         player.machine.files.Delete(Game + "\\tracks\\a.trk");
         player.user.Presses("Down");
         player.user.Presses("Enter");
         player.user.Presses("Enter");
         player.machine.microphone.devices.clear();
         PackagesTrack(player);
         player.user.Presses("Down");
         player.user.Presses("Enter");
       },
       {"window <AudioDevicesTitle>: [<AudioDevicesText>, list, Microphone, 1 of 1 / Microphone] "
        "[<OKButton>, button] [<CCLButton>, button]",
        "box <PAbortedNoAudioDeviceTitle>: <PAbortedNoAudioDeviceText>",
        "box <Error>: <RecordingNoTrack>", "box <NoAudioDevicesTitle>: <NoAudioDevicesText>",
        "box <PAbortedTitle>: <PAbortedText>", "dialog <OpenTrackDlgTitle>: <TrackFilter> (*.trk)",
        "dialog <OpenVehicleDlgTitle>: <VehicleFilter> (*.vhc)",
        "dialog <OpenTrackDlgTitle>: <TrackFilter> (*.trk)"}},

      {"a recording",
       Records,
       {"<AudioManTitle>", "<AudioManRecording>", "<AudioManTitle>, window", "<AudioManTitle>",
        "<AudioManPlaying>", "<AudioManTitle>, window", "<AudioManTitle>", "<AudioManRecording>",
        "<AudioManTitle>, window", "<AudioManTitle>", "<AudioManPlaying>",
        "<AudioManTitle>, window", "box <TStartRecordingTitle>: <TStartRecordingText>",
        "box <PAbortedTitle>: <PAbortedText>", "box <VStartRecordingTitle>: <VStartRecordingText>",
        "box <PAbortedTitle>: <PAbortedText>", "box <TStartRecordingTitle>: <TStartRecordingText>",
        "box <HappyWithRecordingTitle>: <HappyWithRecordingText>"}},

      {"recordings that fail",
       [](Player& player) {
         using enum Platform::RecordingFailure;
         for (const auto failure : {NoDevice, Forbidden, InUse, DeviceFailed, FileFailed}) {
           player.machine.microphone.Refuse(failure);
           SKFileRecorder::BeginTrackRecording(0, {.path = "C:\\a.wav", .OnKept = [] {}});
         }
       },
       {"box <TStartRecordingTitle>: <TStartRecordingText>", "box <Error>: <RecordingNoDevice>",
        "box <PAbortedTitle>: <PAbortedText>", "box <TStartRecordingTitle>: <TStartRecordingText>",
        "box <Error>: <RecordingForbidden>", "box <PAbortedTitle>: <PAbortedText>",
        "box <TStartRecordingTitle>: <TStartRecordingText>", "box <Error>: <RecordingInUse>",
        "box <PAbortedTitle>: <PAbortedText>", "box <TStartRecordingTitle>: <TStartRecordingText>",
        "box <Error>: <RecordingDeviceFailed>", "box <PAbortedTitle>: <PAbortedText>",
        "box <TStartRecordingTitle>: <TStartRecordingText>", "box <Error>: <RecordingFileFailed>",
        "box <PAbortedTitle>: <PAbortedText>"}},
  };
}

}  // namespace Translated
