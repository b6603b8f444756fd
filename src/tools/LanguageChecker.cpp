#include "tools/LanguageChecker.h"

#include <set>
#include <string_view>

#include "app/LanguageTemplate.h"
#include "base/KeyValue.h"
#include "base/RuntimeError.h"
#include "platform/Files.h"
#include "text/StringTable.h"

namespace {

const std::set<std::string, std::less<>>& Keys() {
  static const auto keys = [] {
    std::set<std::string, std::less<>> all;
    for (const LangText& text : AllTexts()) {
      if (text.key) all.insert(text.key);
    }
    return all;
  }();
  return keys;
}

// What is wrong with a line as the pack reads it; nothing to be told has the code 0.
Fault FaultOf(std::string_view line) {
  if (line.empty()) return {};
  const auto pair = KeyValue::Split(line);
  if (!pair) {
    return {.code = LanguageFault::NoText,
            .message = "This line is neither key=text nor a comment, which begins with \";\"."};
  }
  if (Keys().contains(pair->key)) return {};
  return {.code = LanguageFault::UnknownKey,
          .message = "No text of the pack has the key \"" + std::string(pair->key) +
                     "\". Please remember that keys are case sensitive, and that blanks before "
                     "them count."};
}

}  // namespace

void FindLanguageFaults(const std::string& path, const FaultTaker& take) {
  const auto stamp = Platform::StampOf(path);
  if (stamp && stamp->size > LargestLanguageFile) {
    take({.code = LanguageFault::TooLarge,
          .message = "The file is too large for a language file. The pack does not use it."});
    return;
  }
  const auto bytes = Platform::ReadWholeFile(path);
  if (!bytes) throw RuntimeError(RuntimeError::FileNotFound, path);
  std::string_view rest = *bytes;
  for (int64_t number = 1; !rest.empty(); ++number) {
    const size_t length = std::min(rest.find_first_of("\r\n"), rest.size());
    Fault fault = FaultOf(LineWithoutComment(rest.substr(0, length)));
    rest.remove_prefix(length);
    rest.remove_prefix(rest.starts_with("\r\n") ? 2 : rest.empty() ? 0 : 1);
    fault.line = number;
    if (fault.code != 0 && !take(fault)) return;
  }
}
