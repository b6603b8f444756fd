// The texts of the record viewer, the record checker and the spelled-out times.
#pragma once

#include "base/LangText.h"

struct RecordTextTable {
  // The viewer.
  LangText RecordViewerTitle{"RecordViewerTitle", "Record Viewer"};
  LangText TracksPrompt{"TracksPrompt", "Select a track:"};
  LangText TimePrompt{"TimePrompt", "Time:"};
  LangText DeleteRecordButton{"DeleteRecordButton", "&Delete current record"};
  LangText ResetButton{"ResetButton", "&Reset"};
  LangText NoRecordsText{"NoRecordsText", "There are currently no records to view."};
  LangText NoRecordsTitle{"NoRecordsTitle", "Record Viewer"};
  LangText DeleteRecordWarningText{
      "DeleteRecordWarningText",
      "Are you sure you want to delete the current record from the list?"};
  LangText DeleteRecordWarningTitle{"DeleteRecordWarningTitle", "Confirm record deletion"};
  LangText ClearRecordsWarningText{"ClearRecordsWarningText",
                                   "Are you sure you want to clear your record list?"};
  LangText ClearRecordsWarningTitle{"ClearRecordsWarningTitle", "Confirm operation"};

  // The times.
  LangText Hour{"Hour", "hour"};
  LangText Hours{"Hours", "hours"};
  LangText Minute{"Minute", "minute"};
  LangText Minutes{"Minutes", "minutes"};
  LangText Second{"Second", "second"};
  LangText Seconds{"Seconds", "seconds"};

  // The checker.
  LangText CSFNonexistentRecordsFile{"CSFNonexistentRecordsFile",
                                     "Record file does not exist, therefore cannot be checked."};
  LangText CSFInvalidFormat{"CSFInvalidFormat",
                            "Invalid format. Format should be TrackName=TimeInMS."};
  LangText CSFInvalidValue{"CSFInvalidValue",
                           "Invalid value. Record value must be a number in milliseconds."};
  LangText CSFFileOK{"CSFFileOK", "Record data file is in working order."};
  LangText RecordFileNonexistentText{"RecordFileNonexistentText", "The record file doesn't exist."};
  LangText RecordFileNonexistentTitle{"RecordFileNonexistentTitle", "Error."};
  LangText RecordFileOKText{"RecordFileOKText", "Score file checked with no errors."};
  LangText RecordFileOKTitle{"RecordFileOKTitle", "Check complete"};
};
inline constexpr RecordTextTable RecordTexts;
