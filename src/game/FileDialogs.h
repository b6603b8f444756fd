// The file dialogs that the tools share. Each tool sets the initial folder before it shows one.
#pragma once

#include "ui/FileDialog.h"

struct FileDialogs {
  Platform::FileDialog OpenWav{Platform::FileDialog::Kind::Open};
  Platform::FileDialog SaveTrack{Platform::FileDialog::Kind::Save};
  Platform::FileDialog OpenTrack{Platform::FileDialog::Kind::Open};
  Platform::FileDialog OpenVehicle{Platform::FileDialog::Kind::Open};
  Platform::FileDialog SaveVehicle{Platform::FileDialog::Kind::Save};

  // Sets the titles, filters and default extensions, in the user's language.
  void Translate();
};

// The run's dialogs.
FileDialogs& SharedDialogs();
