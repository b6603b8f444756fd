// The texts of the shared file dialogs.
#pragma once

#include "base/LangText.h"

struct FileDialogTextTable {
  LangText OpenWavDlgTitle{"OpenWavDlgTitle", "Open .wav sound"};
  LangText OpenWavDlgFilter{"OpenWavDlgFilter", "Wave audio sound files"};
  LangText SaveTrackDlgTitle{"SaveTrackDlgTitle", "Save Skidrun2 Track file"};
  LangText TrackFilter{"TrackFilter", "SK2 Track files"};
  LangText OpenTrackDlgTitle{"OpenTrackDlgTitle", "Open Skidrun2 Track file"};
  LangText OpenVehicleDlgTitle{"OpenVehicleDlgTitle", "Open Skidrun2 Vehicle file"};
  LangText VehicleFilter{"VehicleFilter", "SK2 Vehicle files"};
  LangText SaveVehicleDlgTitle{"SaveVehicleDlgTitle", "Save Skidrun2 Vehicle file"};
};
inline constexpr FileDialogTextTable FileDialogTexts;
