#include "game/CheckReport.h"

#include "base/SharedTexts.h"
#include "text/StringTable.h"
#include "ui/MsgBox.h"

namespace CheckReport {

void Show(int32_t result, const std::string& message, const Titles& titles) {
  if (result == 0) {
    Platform::MsgBox(message, GetLangString(titles.fileOk), Platform::Icon::Information);
  } else if (result == -1) {
    Platform::MsgBox(message, GetLangString(SharedTexts.Error), Platform::Icon::Critical);
  } else {
    ShowFault(result, message, titles.syntaxError);
  }
}

void ShowFault(int64_t line, const std::string& message, const LangText& title) {
  const std::string text =
      GetLangString(SharedTexts.Line) + " " + std::to_string(line) + ", " + message;
  Platform::MsgBox(text, GetLangString(title), Platform::Icon::Critical);
}

}  // namespace CheckReport
