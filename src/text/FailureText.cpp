#include "text/FailureText.h"

#include <cstdio>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/InterruptedSave.h"
#include "text/StringTable.h"

namespace {

// A text with lines below it that name a file and a copy of it, where there are any.
std::string WithPaths(std::string text, const std::string& file, const std::string& copy) {
  const auto add = [&text](const LangText& name, const std::string& path) {
    if (!path.empty()) text.append(Text::LineEnd).append(GetLangString(name)) += " " + path;
  };
  add(RuntimeErrorTexts.File, file);
  add(RuntimeErrorTexts.Copy, copy);
  return text;
}

// A code as those write it who look it up: the large ones, such as the sound library's, in
// hexadecimal digits.
std::string InSystemsWay(uint32_t code) {
  char text[16];
  std::snprintf(text, sizeof text, code > 0xFFFF ? "0x%08X" : "%u", static_cast<unsigned>(code));
  return text;
}

}  // namespace

std::string FailureText(const std::exception& error) {
  const auto* failure = dynamic_cast<const RuntimeError*>(&error);
  return FailureText(error, failure ? failure->file() : "");
}

std::string FailureText(const std::exception& error, const std::string& file) {
  const std::string cause = GetLangString(CauseOf(error));
  const auto* failure = dynamic_cast<const RuntimeError*>(&error);
  if (!failure) return WithPaths(cause, file, "");
  std::string text = WithPaths(cause, file, failure->copy());
  const SystemCause& system = failure->system();
  if (system.step.english) {
    text.append(Text::LineEnd).append(GetLangString(system.step)).append(": ");
    text.append(GetLangString(RuntimeErrorTexts.SystemError)) += " " + InSystemsWay(system.code);
  }
  return text;
}

std::string SaveNoteText(const Platform::SaveNote& note) {
  return WithPaths(GetLangString(note.text), note.file, note.copy);
}
