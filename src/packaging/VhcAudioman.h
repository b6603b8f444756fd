// The window in which the description of a vehicle is recorded. One for a run:
// PerRun<VhcAudioman>().
#pragma once

#include "packaging/RecordingWindow.h"

class VhcAudioman final : public RecordingWindow {
 public:
  VhcAudioman()
      : RecordingWindow(PackagingTexts.VStartRecordingText, PackagingTexts.VStartRecordingTitle) {}
};
