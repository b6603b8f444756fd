#include "archive/Names.h"

#include <algorithm>
#include <vector>

#include "archive/Refusal.h"
#include "base/RuntimeError.h"
#include "base/Utf8.h"
#include "platform/Characters.h"
#include "platform/Paths.h"
#include "platform/SideFile.h"

namespace Archive {

namespace {

bool IsSeparator(char c) {
  return c == '\\' || c == '/';
}

// The parts between separators. The later bytes of a character are none.
std::vector<std::string> PartsOf(const std::string& name) {
  std::vector<std::string> parts(1);
  for (size_t i = 0; i < name.size();) {
    const size_t length = Platform::CharacterLength(std::string_view(name).substr(i));
    if (IsSeparator(name[i])) {
      parts.emplace_back();
    } else {
      parts.back().append(name, i, length);
    }
    i += length;
  }
  return parts;
}

// The name in UTF-8, if the archive has it so.
const std::string* Utf8NameOf(const Entry& entry) {
  if (!entry.utf8Name.empty()) return &entry.utf8Name;
  return entry.isUtf8 ? &entry.rawName : nullptr;
}

std::string InCodePage(const Entry& entry) {
  const std::string* utf8 = Utf8NameOf(entry);
  return utf8 ? Platform::FromUtf8(*utf8) : entry.rawName;
}

// A name that is not the same when it comes back from the system's own characters may be taken
// apart in another way there.
bool ComesBackTheSame(const std::string& name) {
  return Platform::FromUtf8(Platform::ToUtf8(name)) == name;
}

bool IsPartUsable(const std::string& part) {
  return !part.empty() && part.back() != '.' && part.back() != ' ' &&
         Platform::IsNameUsable(part) && !Platform::IsSideFileName(part);
}

}  // namespace

std::string ShownName(const Entry& entry) {
  std::string shown;
  for (const std::string& part : PartsOf(InCodePage(entry))) {
    shown.append(shown.empty() ? "" : "\\").append(part);
  }
  return shown;
}

EntryPath PathOf(const Entry& entry, const std::string& archive) {
  const std::string name = InCodePage(entry);
  const auto refuse = [&](const LangText& cause) { Refuse(cause, archive, name); };
  if (entry.isLink) refuse(ArchiveTexts.ArchiveHoldsLink);
  const std::string* utf8 = Utf8NameOf(entry);
  if (name.empty() || (utf8 && !Utf8::IsWhole(*utf8))) refuse(ArchiveTexts.ArchiveNameNotUsable);
  // What the page lacks has become "?".
  if (utf8 && std::ranges::count(name, '?') != std::ranges::count(*utf8, '?')) {
    refuse(ArchiveTexts.ArchiveNameNotInLanguage);
  }
  if (!ComesBackTheSame(name)) refuse(ArchiveTexts.ArchiveNameNotUsable);
  if (IsSeparator(name[0])) refuse(ArchiveTexts.ArchiveLeadsOutside);

  std::vector<std::string> parts = PartsOf(name);
  EntryPath found;
  found.isFolder = parts.back().empty();
  if (found.isFolder) parts.pop_back();
  for (const std::string& part : parts) {
    if (part == ".") continue;
    // A colon leads to a drive or to a stream of a file.
    if (part == ".." || part.find(':') != std::string::npos) {
      refuse(ArchiveTexts.ArchiveLeadsOutside);
    }
    if (!IsPartUsable(part)) refuse(ArchiveTexts.ArchiveNameNotUsable);
    found.path.append(found.path.empty() ? "" : "\\").append(part);
  }
  if (found.path.empty() && !found.isFolder) refuse(ArchiveTexts.ArchiveNameNotUsable);
  return found;
}

StoredName StoredNameOf(const std::string& name) {
  const bool isPlain = PartsOf(name).size() == 1 && name.find(':') == std::string::npos;
  if (!isPlain || !IsPartUsable(name) || !ComesBackTheSame(name)) {
    throw RuntimeError(RuntimeError::PathFileAccess, RuntimeErrorTexts.NameNotUsable, name);
  }
  StoredName stored{Platform::ToUtf8(name)};
  stored.isUtf8 =
      std::any_of(stored.bytes.begin(), stored.bytes.end(), [](char c) { return (c & 0x80) != 0; });
  return stored;
}

}  // namespace Archive
