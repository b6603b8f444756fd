// The file dialogs that the tools share: their titles and kinds of files. A tool says by
// game/FileChoice.h what else its use of one needs.
#pragma once

#include "ui/FileDialog.h"

struct FileDialogs {
  Platform::FileDialog OpenWav{Platform::FileDialog::Kind::Open};
  Platform::FileDialog SaveTrack{Platform::FileDialog::Kind::Save};
  Platform::FileDialog OpenTrack{Platform::FileDialog::Kind::Open};
  Platform::FileDialog OpenVehicle{Platform::FileDialog::Kind::Open};
  Platform::FileDialog SaveVehicle{Platform::FileDialog::Kind::Save};
};

// The run's dialogs. Nobody changes them but TranslateSharedDialogs.
const FileDialogs& SharedDialogs();

// Sets their titles, filters and default extensions, in the user's language.
void TranslateSharedDialogs();
