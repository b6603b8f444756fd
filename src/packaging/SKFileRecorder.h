// The description recorder: a user speaks for up to five seconds, hears it, and keeps it or speaks
// again. It records for whoever hands it a Description, and knows no packager.
#pragma once

#include "packaging/Description.h"

namespace SKFileRecorder {

// No device has been chosen yet: the user is asked for it.
inline constexpr int NoDeviceYet = -2;

// Records the description of a track, as RecordingWindow says, in place of the window in use.
//   device  its number, DefaultRecordingDevice, or NoDeviceYet. Where there is no device to choose,
//           the user is told, and nothing begins.
// A track without a path cannot be described: the user is told, nothing is recorded.
void BeginTrackRecording(int device, const Description& track);

// Records the description of a vehicle on a device that is known. With NoDeviceYet the user is
// asked for it too, but it is the description of the track that is recorded then: the window of the
// devices has always gone on with the track, and users' habits are built on it.
//   track  that of the track in work, for this case.
void BeginVehicleRecording(int device, const Description& vehicle, const Description& track);

}  // namespace SKFileRecorder
