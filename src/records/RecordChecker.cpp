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

// What is wrong with a line; 0 if nothing is.
int32_t FaultOf(std::string_view line) {
  const auto record = KeyValue::Split(line);
  // A second "=" would be a part of the time, which is then no number; it is told as what it is.
  if (!record || KeyValue::Split(record->value)) return RecordFault::InvalidFormat;
  return Platform::ParseNumber(record->value) ? 0 : RecordFault::InvalidValue;
}

const LangText& TextOf(int32_t code) {
  return code == RecordFault::InvalidFormat ? RecordTexts.CSFInvalidFormat
                                            : RecordTexts.CSFInvalidValue;
}

// CheckRecordFile, for a file that is there and can be read.
int64_t CheckLines(const std::string& path, std::string& message) {
  Platform::FileLines lines(path);
  int64_t faulty = 0;
  FindRecordFaults(lines, [&](const Fault& first) {
    faulty = first.line;
    message = first.message;
    return false;
  });
  if (faulty == 0) message = GetLangString(RecordTexts.CSFFileOK);
  return faulty;
}

}  // namespace

void FindRecordFaults(Platform::FileLines& lines, const FaultTaker& take) {
  std::string_view line;
  for (int64_t number = 1; lines.Next(line); ++number) {
    const int32_t code = FaultOf(line);
    if (code != 0 && !take({number, code, GetLangString(TextOf(code))})) return;
  }
}

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
