// Record files of any bytes: the checker says what a plain second reading of its rules says, every
// time can be asked for, and what the viewer writes back it reads again unchanged.
#include <vector>

#include "fuzz/FileInput.h"
#include "fuzz/Require.h"
#include "platform/Numbers.h"
#include "records/RecordChecker.h"
#include "records/RecordFile.h"
#include "tests/SimulatedGame.h"

namespace {

bool IsSound(const std::string& line) {
  const size_t equals = line.find('=');
  return equals != std::string::npos && equals == line.rfind('=') &&
         Platform::ParseNumber(line.substr(equals + 1));
}

// The number of the first line that is not sound; 0 if there is none.
int64_t FirstFault(const std::string& bytes) {
  int64_t number = 0;
  std::string line;
  for (size_t i = 0; i < bytes.size(); ++i) {
    const bool isLast = i + 1 == bytes.size();
    if (bytes[i] != '\r') line += bytes[i];
    if (bytes[i] != '\r' && !isLast) continue;
    ++number;
    if (!IsSound(line)) return number;
    line.clear();
    if (!isLast && bytes[i + 1] == '\n') ++i;
  }
  return 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Simulated::Machine machine;
  InstallGame(machine, "C:\\Game");
  const std::string path = RecordFile::Path();
  const std::string bytes = PutFileInput(machine, path, data, size);

  std::string message;
  Require(CheckRecordFile(path, message) == FirstFault(bytes));
  Require(!message.empty());
  Require(machine.files.Text(path) == bytes);

  const std::vector<std::string> records = RecordFile::Read();
  for (const std::string& record : records) {
    Require(!record.empty());
    RecordFile::TimeTextOf(record);
  }
  RecordFile::Write(records);
  Require(RecordFile::Read() == records);
  return 0;
}
