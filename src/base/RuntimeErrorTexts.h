// The causes that are told to the user when an action could not be finished.
#pragma once

#include "base/LangText.h"

struct RuntimeErrorTextTable {
  LangText InvalidCall{"RTEInvalidCall", "An invalid value was met."};
  LangText Overflow{"RTEOverflow", "The number is too large."};
  LangText OutOfMemory{"RTEOutOfMemory", "There is not enough memory, or a line is too long."};
  LangText TypeMismatch{"RTETypeMismatch", "A number was expected."};
  LangText FileNotFound{"RTEFileNotFound", "The file was not found."};
  LangText DeviceError{"RTEDeviceError", "The device reported an error."};
  LangText DiskFull{"RTEDiskFull", "The disk is full."};
  LangText PermissionDenied{"RTEPermissionDenied",
                            "Access was denied, or the file is in use by another program."};
  LangText DiskNotReady{"RTEDiskNotReady", "The disk is not ready."};
  LangText PathFileAccess{"RTEPathFileAccess", "The file is write-protected or is a folder."};
  LangText PathNotFound{"RTEPathNotFound", "The folder was not found."};
  LangText NameNotUsable{"RTENameNotUsable",
                         "The file name is too long or holds characters that cannot be used."};
  LangText Unexpected{"RTEUnexpected", "An unexpected error occurred."};
  LangText File{"RTEFile", "File:"};
  LangText Title{"RTETitle", "Error"};
};
inline constexpr RuntimeErrorTextTable RuntimeErrorTexts;
