#include "text/FailureText.h"

#include "base/RuntimeErrorTexts.h"
#include "base/Text.h"
#include "text/StringTable.h"

std::string FailureText(const LangText& cause, const std::string& file) {
  std::string text = GetLangString(cause);
  if (!file.empty()) {
    text.append(Text::LineEnd).append(GetLangString(RuntimeErrorTexts.File)) += " " + file;
  }
  return text;
}
