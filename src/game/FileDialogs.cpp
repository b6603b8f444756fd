#include "game/FileDialogs.h"

#include "base/PerRun.h"
#include "game/FileDialogTexts.h"
#include "text/StringTable.h"

void FileDialogs::Translate() {
  const auto set = [](Platform::FileDialog& dialog, const LangText& title, const LangText& filter,
                      const std::string& pattern) {
    dialog.title = GetLangString(title);
    dialog.fileType = GetLangString(filter) + " (" + pattern + ")";
    dialog.pattern = pattern;
  };
  const auto& texts = FileDialogTexts;
  set(OpenWav, texts.OpenWavDlgTitle, texts.OpenWavDlgFilter, "*.wav");
  set(SaveTrack, texts.SaveTrackDlgTitle, texts.TrackFilter, "*.trk");
  set(OpenTrack, texts.OpenTrackDlgTitle, texts.TrackFilter, "*.trk");
  set(OpenVehicle, texts.OpenVehicleDlgTitle, texts.VehicleFilter, "*.vhc");
  set(SaveVehicle, texts.SaveVehicleDlgTitle, texts.VehicleFilter, "*.vhc");
  // A track gets its extension from the tool that writes it.
  OpenVehicle.defaultExtension = "vhc";
  SaveVehicle.defaultExtension = "vhc";
}

FileDialogs& SharedDialogs() {
  return PerRun<FileDialogs>();
}
