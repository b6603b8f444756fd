#include "app/FileDialogs.h"

#include "app/FileDialogTexts.h"
#include "base/PerRun.h"
#include "text/StringTable.h"

void FileDialogs::Translate() {
  const auto set = [](Platform::FileDialog& dialog, const LangText& title, const LangText& filter,
                      const char* pattern) {
    dialog.title = GetLangString(title);
    dialog.filter = GetLangString(filter) + pattern;
  };
  const char* const wav = " (*.wav)|*.wav";
  const char* const trk = " (*.trk)|*.trk";
  const char* const vhc = " (*.vhc)|*.vhc";
  const auto& texts = FileDialogTexts;
  set(OpenWav, texts.OpenWavDlgTitle, texts.OpenWavDlgFilter, wav);
  set(SaveTrack, texts.SaveTrackDlgTitle, texts.TrackFilter, trk);
  set(OpenTrack, texts.OpenTrackDlgTitle, texts.TrackFilter, trk);
  set(OpenVehicle, texts.OpenVehicleDlgTitle, texts.VehicleFilter, vhc);
  set(SaveVehicle, texts.SaveVehicleDlgTitle, texts.VehicleFilter, vhc);
  // A track's name gets its extension in any case; but only one that the dialog itself has
  // completed is looked up by it, so that it asks before a track is replaced.
  SaveTrack.defaultExtension = "trk";
  OpenVehicle.defaultExtension = "vhc";
  SaveVehicle.defaultExtension = "vhc";
}

FileDialogs& SharedDialogs() {
  return PerRun<FileDialogs>();
}
