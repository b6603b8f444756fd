// The recording library, orec.dll, as the program finds it.
#pragma once

#include "orec/orec.h"

namespace Platform {

struct RecordingLibrary {
  decltype(&ORec_Init) init;
  decltype(&ORec_GetInputDeviceCount) count;
  decltype(&ORec_GetInputDeviceName) name;
  decltype(&ORec_OpenFile) open;
  decltype(&ORec_StartRecording) start;
  decltype(&ORec_StopRecording) stop;
  decltype(&ORec_IsRecording) isRecording;
  decltype(&ORec_CloseFile) close;
  decltype(&ORec_Free) free;
};

// Loads it from the program's own folder, and from nowhere else; it stays loaded until the program
// ends. Null if it is not there, or is no such library.
const RecordingLibrary* FindRecordingLibrary();

}  // namespace Platform
