/* orec.h is for programs in C too. */
#include "orec/orec.h"

int32_t RecordNothingFromC(const char* path);

int32_t RecordNothingFromC(const char* path) {
  char name[255];
  int32_t take = 0;
  int32_t result = 0;
  ORec_Init();
  if (ORec_GetInputDeviceCount() < 1 || ORec_GetInputDeviceName(0, name, sizeof name) < 1) return 1;
  take = ORec_OpenFile(path, 44100, 2, ORec_DefaultDevice);
  result = take > 0 ? 0 : take;
  if (!result) result = ORec_StartRecording(take);
  if (!result && !ORec_IsRecording(take)) result = 2;
  if (!result) result = ORec_StopRecording(take);
  if (!result) result = ORec_CloseFile(take);
  ORec_Free();
  return result;
}
