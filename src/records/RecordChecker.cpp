#include "records/RecordChecker.h"

#include <exception>

#include "base/KeyValue.h"
#include "base/RuntimeError.h"
#include "platform/FileLines.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "records/RecordTexts.h"
#include "text/FailureText.h"
#include "text/StringTable.h"

namespace {

// What is wrong with a line; null if nothing is.
const LangText* FaultOf(std::string_view line) {
  const auto record = KeyValue::Split(line);
  // A second "=" would be a part of the time, which is then no number; it is told as what it is.
  if (!record || KeyValue::Split(record->value)) return &RecordTexts.CSFInvalidFormat;
  return Platform::ParseNumber(record->value) ? nullptr : &RecordTexts.CSFInvalidValue;
}

// CheckRecordFile, for a file that is there and can be read.
int64_t CheckLines(const std::string& path, std::string& message) {
  Platform::FileLines lines(path);
  std::string_view line;
  for (int64_t number = 1; lines.Next(line); ++number) {
    if (const LangText* fault = FaultOf(line)) {
      message = GetLangString(*fault);
      return number;
    }
  }
  message = GetLangString(RecordTexts.CSFFileOK);
  return 0;
}

}  // namespace

int64_t CheckRecordFile(const std::string& path, std::string& message) {
  // Asked beforehand, as a folder that is missing is a missing file too and not a failure.
  if (!Platform::FileExists(path)) {
    message = GetLangString(RecordTexts.CSFNonexistentRecordsFile);
    return MissingRecordFile;
  }
  try {
    return CheckLines(path, message);
  } catch (const std::exception& error) {
    message = FailureText(error, path);
    return UnreadableRecordFile;
  }
}
