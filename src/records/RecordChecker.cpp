#include "records/RecordChecker.h"

#include <algorithm>
#include <exception>

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
  if (std::count(line.begin(), line.end(), '=') != 1) return &RecordTexts.CSFInvalidFormat;
  if (!Platform::ParseNumber(line.substr(line.find('=') + 1))) return &RecordTexts.CSFInvalidValue;
  return nullptr;
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
  if (!Platform::FileExists(path)) {
    message = GetLangString(RecordTexts.CSFNonexistentRecordsFile);
    return MissingRecordFile;
  }
  try {
    return CheckLines(path, message);
  } catch (const std::exception& error) {
    message = FailureText(CauseOf(error), path);
    return UnreadableRecordFile;
  }
}
