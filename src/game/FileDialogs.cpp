#include "game/FileDialogs.h"

#include "base/PerRun.h"
#include "game/FileDialogTexts.h"
#include "text/StringTable.h"

const FileDialogs& SharedDialogs() {
  return PerRun<FileDialogs>();
}

// The order of the lookups is that in which the texts get into an empty language file.
void TranslateSharedDialogs() {
  const auto set = [](Platform::FileDialog& dialog, const LangText& title, const LangText& filter,
                      const std::string& pattern) {
    dialog.title = GetLangString(title);
    dialog.fileType = GetLangString(filter) + " (" + pattern + ")";
    dialog.pattern = pattern;
  };
  auto& dialogs = PerRun<FileDialogs>();
  const auto& texts = FileDialogTexts;
  set(dialogs.OpenWav, texts.OpenWavDlgTitle, texts.OpenWavDlgFilter, "*.wav");
  set(dialogs.SaveTrack, texts.SaveTrackDlgTitle, texts.TrackFilter, "*.trk");
  set(dialogs.OpenTrack, texts.OpenTrackDlgTitle, texts.TrackFilter, "*.trk");
  set(dialogs.OpenVehicle, texts.OpenVehicleDlgTitle, texts.VehicleFilter, "*.vhc");
  set(dialogs.SaveVehicle, texts.SaveVehicleDlgTitle, texts.VehicleFilter, "*.vhc");
  // A track gets its extension from the tool that writes it.
  dialogs.OpenVehicle.defaultExtension = "vhc";
  dialogs.SaveVehicle.defaultExtension = "vhc";
}
