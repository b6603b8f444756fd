#include "records/RecordFile.h"

#include "base/KeyValue.h"
#include "base/LineReader.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "game/Application.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "records/TimeConverter.h"

namespace RecordFile {

std::string Path() {
  return Application::GameFolder() + "\\highscore.cfg";
}

std::vector<std::string> Read() {
  std::vector<std::string> records;
  for (const std::string& line : LinesOf(Platform::ReadWholeFile(Path()).value_or(""))) {
    // Trimmed for good: what is written back after a deletion has no blanks at the ends of lines.
    const std::string_view record = Text::Trim(line);
    if (!record.empty()) records.emplace_back(record);
  }
  return records;
}

void Write(const std::vector<std::string>& records) {
  std::string bytes;
  for (const std::string& record : records) bytes.append(record).append(Text::LineEnd);
  Platform::WriteWholeFile(Path(), bytes);
}

std::optional<std::string> TrackOf(const std::string& record) {
  const auto pair = KeyValue::Split(record);
  if (!pair) return std::nullopt;
  return std::string(pair->key);
}

std::string TimeTextOf(const std::string& record) {
  const auto pair = KeyValue::Split(record);
  if (!pair) return "";
  int32_t milliseconds = 0;
  // One record with a nonsense time must not keep the others from being shown.
  try {
    milliseconds = Platform::ParseInt32(pair->value);
  } catch (const RuntimeError&) {
    return "";
  }
  return TimeConverter(milliseconds, TimeForm::Words);
}

}  // namespace RecordFile
