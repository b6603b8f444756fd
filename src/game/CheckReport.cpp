#include "game/CheckReport.h"

#include "base/SharedTexts.h"
#include "text/StringTable.h"
#include "ui/Messages.h"

namespace CheckReport {

void Show(int32_t result, const std::string& message, const Titles& titles) {
  if (result == 0) {
    Messages::Show(message, titles.fileOk, Platform::Icon::Information);
  } else if (result == -1) {
    // The file could not be read, so there is no line to name.
    Messages::Show(message, SharedTexts.Error, Platform::Icon::Critical);
  } else {
    ShowFault(result, message, titles.syntaxError);
  }
}

void ShowFault(int64_t line, const std::string& message, const LangText& title) {
  Messages::Show(GetLangString(SharedTexts.Line) + " " + std::to_string(line) + ", " + message,
                 title, Platform::Icon::Critical);
}

}  // namespace CheckReport
