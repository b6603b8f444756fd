// Language files of any bytes. An input is a key, a zero byte, and the file. A text is found
// exactly if a plain second reading of the file finds it; otherwise one entry is added, and all
// else stays.
#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "fuzz/Require.h"
#include "machine/simulated/Machine.h"
#include "text/StringTable.h"

namespace {

const std::string Path = "C:\\Program Files\\SK2Pack\\sk2pack.lng";

std::string Trimmed(std::string text) {
  while (text.starts_with(' ')) text.erase(0, 1);
  while (text.ends_with(' ')) text.pop_back();
  return text;
}

std::optional<std::string> TextIn(const std::string& bytes, const std::string& key, int flag) {
  std::vector<std::string> lines{""};
  for (const char c : bytes) {
    if (c == '\r' || c == '\n') {
      lines.emplace_back();
    } else {
      lines.back() += c;
    }
  }
  std::optional<std::string> text;
  for (std::string line : lines) {
    const size_t comment = line.find(';');
    if (flag == WithComments && comment != std::string::npos) {
      line = Trimmed(line.substr(0, comment));
    }
    if (line.find('=') == key.size() && line.starts_with(key)) text = line.substr(key.size() + 1);
  }
  if (!text) return text;
  for (const char* escape : {"{sc}", "{Sc}", "{sC}", "{SC}"}) {
    for (size_t at; (at = text->find(escape)) != std::string::npos;) text->replace(at, 4, ";");
  }
  return text;
}

bool IsKey(const std::string& text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
  });
}

void LookUp(Simulated::Machine& machine, const std::string& key, const std::string& english,
            int flag) {
  const bool isThere = machine.files.Exists(Path);
  const std::string before = isThere ? machine.files.Text(Path) : "";
  const auto wanted = TextIn(before, key, flag);
  const std::string found = GetLangString(key, english, flag);
  Require(found == wanted.value_or(english));

  const std::string after = machine.files.Exists(Path) ? machine.files.Text(Path) : "";
  if (wanted) return Require(after == before);
  const bool endsInOpenLine = !before.empty() && !before.ends_with('\r') && !before.ends_with('\n');
  Require(after == before + (endsInOpenLine ? "\r\n" : "") + key + "=" + english + "\r\n");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  const size_t zero = std::min(input.find('\0'), size);
  std::string key = input.substr(0, zero);
  if (!IsKey(key)) key = "XFile";
  const std::string bytes = zero < size ? input.substr(zero + 1) : input;

  Simulated::Machine machine;
  if (!bytes.empty()) machine.files.Put(Path, bytes);
  LookUp(machine, key, "&File", WithComments);
  LookUp(machine, key, "&File", 0);
  LookUp(machine, key + "X", "a;b{sc}", WithComments);
  LookUp(machine, key + "X", "a;b{sc}", WithComments);

  // A file that another program writes meanwhile is seen at once.
  machine.files.Put(Path, key + "=new\r\n" + bytes);
  LookUp(machine, key, "&File", WithComments);
  return 0;
}
