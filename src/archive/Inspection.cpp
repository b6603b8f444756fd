#include "archive/Inspection.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <optional>

#include "platform/Characters.h"
#include "platform/LetterCase.h"
#include "platform/Paths.h"

namespace Archive {

namespace {

bool IsSeparator(char c) {
  return c == '\\' || c == '/';
}

// The path without its detours, from the archive on, each name behind a "\" and in small letters as
// the plan has it; nothing if it leads outside.
std::optional<std::string> KeyOf(std::string path) {
  const bool isOfAFolder = path.empty() || IsSeparator(path.back());
  std::vector<std::string> names;
  std::string name;
  path += '\\';
  for (size_t i = 0; i < path.size();) {
    const size_t length = Platform::CharacterLength(std::string_view(path).substr(i));
    if (!IsSeparator(path[i])) {
      name.append(path, i, length);
    } else if (name == "..") {
      if (names.empty()) return std::nullopt;
      names.pop_back();
      name.clear();
    } else {
      if (!name.empty() && name != ".") names.push_back(name);
      name.clear();
    }
    i += length;
  }
  while (!isOfAFolder && !names.empty()) {
    std::string& last = names.back();
    last.erase(last.find_last_not_of(" .") + 1);
    if (!last.empty()) break;
    names.pop_back();
  }
  std::string key;
  for (const std::string& each : names) key += "\\" + Platform::LowerCase(each);
  return isOfAFolder ? key + "\\" : key;
}

// Reads on where the last piece ended.
class Contents {
 public:
  Contents(ByteSource& source, const Entry& entry) : reader_(source, entry) {}

  size_t Read(char* buffer, size_t size) {
    while (block_.empty()) {
      if (!reader_.Next(block_)) return 0;
    }
    const size_t count = std::min(size, block_.size());
    std::memcpy(buffer, block_.data(), count);
    block_.remove_prefix(count);
    return count;
  }

 private:
  EntryReader reader_;
  std::string_view block_;
};

}  // namespace

Inspection::Inspection(const std::string& archive)
    : source_(archive), directory_(source_, step_), plan_(PlanAll(directory_, archive, "", step_)) {
  JudgeContents(source_, directory_, step_);
  // The plan's paths have the "\" behind a target that has no name.
  for (const auto& [key, file] : plan_.files) files_.push_back(file.path.substr(1));
}

bool Inspection::Holds(const std::string& path) const {
  if (!Platform::IsNameUsable(path)) return false;
  const auto key = KeyOf(path);
  if (!key) return false;
  // The folder into which all is unpacked is there.
  if (key->empty() || *key == "\\") return true;
  if (key->ends_with('\\')) return plan_.folders.contains(key->substr(0, key->size() - 1));
  return plan_.files.contains(*key) || plan_.folders.contains(*key);
}

LineReader::Source Inspection::Open(const std::string& file) {
  const Entry& entry = *plan_.files.at(Platform::LowerCase("\\" + file)).entry;
  // Shared, as a source is copied by who holds it.
  const auto contents = std::make_shared<Contents>(source_, entry);
  return [contents](char* buffer, size_t size) { return contents->Read(buffer, size); };
}

}  // namespace Archive
