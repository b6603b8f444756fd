// The window in which the description of a track is recorded. One for a run: PerRun<Audioman>().
#pragma once

#include "packaging/RecordingWindow.h"

class Audioman final : public RecordingWindow {
 public:
  Audioman()
      : RecordingWindow(PackagingTexts.TStartRecordingText, PackagingTexts.TStartRecordingTitle) {}
};
