#include "records/RecordManager.h"

#include <string>

#include "base/RuntimeErrorTexts.h"
#include "base/SharedTexts.h"
#include "game/CheckReport.h"
#include "records/RecordChecker.h"
#include "records/RecordFile.h"
#include "records/RecordTexts.h"
#include "ui/Messages.h"

namespace RecordManager {

void CheckRecordsMenu() {
  using Platform::Icon;
  std::string message;
  const int64_t line = CheckRecordFile(RecordFile::Path(), message);
  if (line == MissingRecordFile) {
    Messages::Show(RecordTexts.RecordFileNonexistentText, RecordTexts.RecordFileNonexistentTitle,
                   Icon::Critical);
  } else if (line == UnreadableRecordFile) {
    Messages::Show(message, RuntimeErrorTexts.Title, Icon::Critical);
  } else if (line != 0) {
    CheckReport::ShowFault(line, message, SharedTexts.SyntaxError);
  } else {
    Messages::Show(RecordTexts.RecordFileOKText, RecordTexts.RecordFileOKTitle, Icon::Information);
  }
}

}  // namespace RecordManager
