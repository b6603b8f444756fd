// The texts of the description recorder and of the two packagers.
#pragma once

#include "base/LangText.h"

struct PackagingTextTable {
  // The recorder. Its Cancel button has a key that differs from that of all others in letter case.
  LangText AudioDevicesTitle{"AudioDevicesTitle", "Choose recording device"};
  LangText AudioDevicesText{"AudioDevicesText", "Input Devices:"};
  LangText CCLButton{"CCLButton", "Cancel"};
  LangText NoAudioDevicesText{"NoAudioDevicesText",
                              "There doesn't seem to be any audio devices on your system."};
  LangText NoAudioDevicesTitle{"NoAudioDevicesTitle", "Error"};
  LangText PAbortedText{"PAbortedText", "Packager aborted. No wave file/recording device."};
  LangText PAbortedTitle{"PAbortedTitle", "Aborted"};
  LangText PAbortedNoAudioDeviceText{"PAbortedNoAudioDeviceText",
                                     "Packager aborted. No wave file/recording device."};
  LangText PAbortedNoAudioDeviceTitle{"PAbortedNoAudioDeviceTitle", "Aborted"};
  LangText AudioManTitle{"AudioManTitle", "Recording..."};
  LangText TStartRecordingText{
      "TStartRecordingText",
      "Click OK to start recording your track description. You have five seconds maximum. If you "
      "have finished recording before the allotted time, press space bar."};
  LangText TStartRecordingTitle{"TStartRecordingTitle", "Start recording"};
  LangText VStartRecordingText{
      "VStartRecordingText",
      "Click OK to start recording your car description. You have five seconds maximum. If you "
      "have finished recording before the allotted time, press space bar."};
  LangText VStartRecordingTitle{"VStartRecordingTitle", "Start recording"};
  LangText HappyWithRecordingText{"HappyWithRecordingText", "Are you happy with this recording?"};
  LangText HappyWithRecordingTitle{"HappyWithRecordingTitle", "Recording complete"};
  LangText AudioManRecording{"AudioManRecording", "Recording. Press space bar to stop."};
  LangText AudioManPlaying{"AudioManPlaying", "Playing your recording."};
  // Why nothing is recorded, or no more.
  LangText RecordingNoTrack{
      "RecordingNoTrack",
      "A device that is chosen here records the description of a track, and no track has been "
      "chosen. Nothing was recorded."};
  LangText RecordingNoDevice{"RecordingNoDevice", "The recording device is not there any more."};
  LangText RecordingForbidden{
      "RecordingForbidden",
      "Windows keeps the microphone from programs. You can change this in its privacy settings."};
  LangText RecordingInUse{"RecordingInUse", "Another program is using the recording device."};
  LangText RecordingDeviceFailed{"RecordingDeviceFailed",
                                 "The recording device does not answer, or gives no more sound."};
  LangText RecordingFileFailed{"RecordingFileFailed", "The recording could not be written."};

  // The track packager. The two aborted texts differ in the capital letter of the packager.
  LangText PAbortedNoTrackFileText{"PAbortedNoTrackFileText",
                                   "Track Packager aborted. No file selected."};
  LangText PAbortedNoTrackFileTitle{"PAbortedNoTrackFileTitle", "Aborted"};
  LangText TrkSoundNonexistentOptionsTitle{"TrkSoundNonexistentOptionsTitle",
                                           "Track description sound doesn't exist. What to do?"};
  LangText SelectOption{"SelectOption", "Please select an option:"};
  LangText OpenExisting{"OpenExisting", "Open existing"};
  LangText RecordNew{"RecordNew", "Record new"};
  LangText File{"File", "file"};
  LangText PAbortedNoAudioFileText{"PAbortedNoAudioFileText",
                                   "Track packager aborted. No wave file."};
  LangText PAbortedNoAudioFileTitle{"PAbortedNoAudioFileTitle", "Aborted"};
  LangText PackageSuccessfulText{"PackageSuccessfulText",
                                 "Your track has successfully been packaged to the zip file"};
  LangText PackageSuccessfulTitle{"PackageSuccessfulTitle", "Congratulations!"};

  // The vehicle packager.
  LangText CPackagerAbortedNoVhcFileSelected{"CPackagerAbortedNoVhcFileSelected",
                                             "Car Packager aborted. No file selected."};
  LangText Aborted{"Aborted", "Aborted"};
  LangText VhcSoundNonexistentOptionsTitle{"VhcSoundNonexistentOptionsTitle",
                                           "Vehicle description sound doesn't exist. What to do?"};
  LangText EngineFileNonexistentText{"EngineFileNonexistentText", "Engine file doesn't exist."};
  LangText EngineFileNonexistentTitle{"EngineFileNonexistentTitle", "Data Error"};
  LangText ThrottleFileNonexistentText{"ThrottleFileNonexistentText",
                                       "Throttle file doesn't exist."};
  LangText ThrottleFileNonexistentTitle{"ThrottleFileNonexistentTitle", "Data Error"};
  LangText StartFileNonexistentText{"StartFileNonexistentText", "Ignition file doesn't exist."};
  LangText StartFileNonexistentTitle{"StartFileNonexistentTitle", "Data Error"};
  LangText HornFileNonexistentText{"HornFileNonexistentText", "Horn file doesn't exist."};
  LangText HornFileNonexistentTitle{"HornFileNonexistentTitle", "Data Error"};
  LangText CPackagerSuccessfulText{"CPackagerSuccessfulText",
                                   "Your car has successfully been packaged to the zip file"};
  LangText CPackagerSuccessfulTitle{"CPackagerSuccessfulTitle", "Congratulations!"};
  LangText CPackagerAbortedNoWaveFileText{"CPackagerAbortedNoWaveFileText",
                                          "Car packager aborted. No wave file."};

  // Both packagers.
  LangText PackagedIntoItself{"PackagedIntoItself",
                              "A file that is to be packaged has the name of the archive."};
  LangText SoundOutsideVehicleFolder{
      "SoundOutsideVehicleFolder",
      "The vehicle names a sound outside of its own folder. Packaging would delete it there."};
};
inline constexpr PackagingTextTable PackagingTexts;
