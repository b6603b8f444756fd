// The track that the user is working on. It lives for the whole run, whatever windows come and go.
#pragma once

#include <string>

#include "base/PerRun.h"

struct TrackInWork {
  // The full path of the track file; empty while no track is open.
  std::string TrackPath;
  // What the file will hold so far: three lines for each part, each ended by CR LF. The end marker
  // and the weather join it only in the file, so that a save that fails can be tried again.
  std::string TrackText;
};

// The run's track.
inline TrackInWork& TheTrack() {
  return PerRun<TrackInWork>();
}
