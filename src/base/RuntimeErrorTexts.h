// The causes that are told to the user when an action could not be finished.
#pragma once

#include "base/LangText.h"

struct RuntimeErrorTextTable {
  LangText InvalidCall{"RTEInvalidCall", "An invalid value was met."};
  LangText Overflow{"RTEOverflow", "The number is too large."};
  LangText OutOfMemory{"RTEOutOfMemory", "There is not enough memory."};
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
  LangText FileAlreadyExists{"RTEFileAlreadyExists", "There is a file of that name already."};
  LangText SystemLibrary{"RTESystemLibrary", "A part of Windows could not be loaded."};
  LangText ClipboardInUse{"RTEClipboardInUse", "The clipboard is in use by another program."};
  LangText NoProgram{"RTENoProgram", "The program could not be started."};
  LangText Unexpected{"RTEUnexpected", "An unexpected error occurred."};
  LangText SaveHalfDone{
      "RTESaveHalfDone",
      "The file could be saved only in part. What it held before is in the copy."};
  LangText File{"RTEFile", "File:"};
  LangText Copy{"RTECopy", "Copy:"};
  LangText SystemError{"RTESystemError", "system error"};
  LangText Title{"RTETitle", "Error"};

  // What was being done, in the last line of a failure: "Opening a file: system error 32".
  LangText OpeningFile{"RTEOpeningFile", "Opening a file"};
  LangText ReadingFile{"RTEReadingFile", "Reading a file"};
  LangText WritingFile{"RTEWritingFile", "Writing a file"};
  LangText ReplacingFile{"RTEReplacingFile", "Putting a written file in place"};
  LangText RewritingFile{"RTERewritingFile", "Rewriting a file in place"};
  LangText RestoringFile{"RTERestoringFile", "Putting back what a file held before"};
  LangText RenamingFile{"RTERenamingFile", "Renaming"};
  LangText DeletingFile{"RTEDeletingFile", "Deleting a file"};
  LangText AskingAttributes{"RTEAskingAttributes", "Asking for attributes"};
  LangText SettingAttributes{"RTESettingAttributes", "Setting attributes"};
  LangText ListingFolder{"RTEListingFolder", "Listing a folder"};
  LangText MakingFolder{"RTEMakingFolder", "Making a folder"};
  LangText DeletingFolder{"RTEDeletingFolder", "Deleting a folder"};
  LangText AskingFreeSpace{"RTEAskingFreeSpace", "Asking for the free space of a disk"};
  LangText MakingWindow{"RTEMakingWindow", "Making a window"};
  LangText MakingMenu{"RTEMakingMenu", "Making a menu"};
  LangText StartingTimer{"RTEStartingTimer", "Starting a timer"};
  LangText MeasuringTexts{"RTEMeasuringTexts", "Measuring texts"};
  LangText ShowingFileDialog{"RTEShowingFileDialog", "Showing a file dialog"};
  LangText OpeningSoundDevice{"RTEOpeningSoundDevice", "Opening the sound device"};
  LangText MakingSoundBuffer{"RTEMakingSoundBuffer", "Making a sound buffer"};
  LangText PlayingSound{"RTEPlayingSound", "Playing a sound"};
  LangText SettingFrequency{"RTESettingFrequency", "Setting the frequency of a sound"};
  LangText OpeningClipboard{"RTEOpeningClipboard", "Opening the clipboard"};
  LangText FillingClipboard{"RTEFillingClipboard", "Filling the clipboard"};
  LangText StartingProgram{"RTEStartingProgram", "Starting a program"};
  LangText MakingMutex{"RTEMakingMutex", "Making a mutex"};

  // Told when the old contents of a file that was saved only in part are found again.
  LangText PutBackTitle{"RTEPutBackTitle", "File put back"};
  LangText PutBack{
      "RTEPutBack",
      "A save of this file was cut off half way. What the file held before has been put "
      "back."};
  LangText NotPutBack{
      "RTENotPutBack",
      "A save of this file was cut off half way, and another program has changed the "
      "file since. What it held before is in the copy."};
};
inline constexpr RuntimeErrorTextTable RuntimeErrorTexts;
