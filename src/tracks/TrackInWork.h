// The track that the user is working on. It lives for the whole run, whatever windows come and go.
#pragma once

#include <string>

#include "base/PerRun.h"

struct TrackInWork {
  // The full path of the track file that is being edited or packaged, whichever was begun last;
  // empty while there is none. Who goes on editing chooses a file first, so that parts that wait
  // never end up in the file of a track that was packaged meanwhile.
  std::string TrackPath;
  // What the file will hold so far: three lines for each part, each ended by CR LF. The end marker
  // and the weather join it only in the file, so that a save that fails can be tried again.
  std::string TrackText;
};

// The run's track.
inline TrackInWork& TheTrack() {
  return PerRun<TrackInWork>();
}
