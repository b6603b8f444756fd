#include "tracks/TrackManager.h"

#include "app/Application.h"
#include "app/CheckReport.h"
#include "app/FileDialogs.h"
#include "base/SharedTexts.h"
#include "platform/MsgBox.h"
#include "text/StringTable.h"
#include "tracks/TrackChecker.h"
#include "tracks/TrackTexts.h"

namespace TrackManager {

void CheckTrackMenu() {
  Platform::FileDialog& dialog = SharedDialogs().OpenTrack;
  dialog.initialFolder = Application::GameFolder() + "\\tracks";
  const std::string path = dialog.Show();
  if (path.empty()) {
    Platform::MsgBox(GetLangString(TrackTexts.CTNoFileText),
                     GetLangString(TrackTexts.CTNoFileTitle), Platform::Icon::Information);
    return;
  }
  int32_t code = 0;
  std::string message;
  const int32_t result = CheckTrackFile(path, code, message);
  CheckReport::Show(result, message,
                    {.fileOk = TrackTexts.CTFFileOK, .syntaxError = SharedTexts.SyntaxError});
}

}  // namespace TrackManager
