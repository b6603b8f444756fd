#include "machine/posix/DiskPath.h"

#include <dirent.h>
#include <sys/stat.h>

#include <memory>
#include <vector>

#include "base/Utf8.h"
#include "platform/Characters.h"
#include "platform/LetterCase.h"

namespace Posix {

namespace {

using Platform::SystemError;

bool IsSeparator(char c) {
  return c == '\\' || c == '/';
}

bool IsThere(const std::string& place) {
  struct stat info;
  // A link that leads nowhere is there all the same: nothing else can have its name.
  return lstat(place.c_str(), &info) == 0;
}

std::vector<std::string> NamesOn(std::string_view path) {
  std::vector<std::string> names;
  std::string name;
  const auto add = [&] {
    if (name == ".." && !names.empty() && names.back() != "..") {
      names.pop_back();
    } else if (!name.empty() && name != ".") {
      names.push_back(name);
    }
    name.clear();
  };
  for (const char c : path) {
    if (IsSeparator(c)) {
      add();
    } else {
      name += c;
    }
  }
  add();
  return names;
}

void DropDotsAndBlanks(std::vector<std::string>& names) {
  while (!names.empty() && names.back() != "..") {
    std::string& last = names.back();
    last.erase(last.find_last_not_of(" .") + 1);
    if (!last.empty()) return;
    names.pop_back();
  }
}

// The name in a folder that is the wanted one but for its letter case; empty if there is none.
std::string SpellingIn(const std::string& folder, const std::string& wanted) {
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(folder.c_str()), closedir);
  if (!listing) return "";
  const std::string lower = Platform::LowerCase(wanted);
  std::string found;
  while (const dirent* entry = readdir(listing.get())) {
    const std::string name = entry->d_name;
    if (Platform::LowerCase(NameFromDisk(name)) != lower) continue;
    // The order in which a disk lists its names is no reason to take one rather than another.
    if (found.empty() || name < found) found = name;
  }
  return found;
}

}  // namespace

std::string NameFromDisk(std::string_view name) {
  return Utf8::IsWhole(name) ? Platform::FromUtf8(name) : std::string(name);
}

SystemError Find(std::string_view path, std::string& place) {
  if (path.empty()) return SystemError::PathNotFound;
  std::vector<std::string> names = NamesOn(path);
  const bool wantsFolder = IsSeparator(path.back());
  if (!wantsFolder) DropDotsAndBlanks(names);
  place = IsSeparator(path.front()) ? "/" : "";
  for (size_t i = 0; i < names.size(); ++i) {
    // Above the root there is nothing but the root.
    if (place == "/" && names[i] == "..") continue;
    const std::string folder = place.empty() ? "." : place;
    if (!place.empty() && place.back() != '/') place += '/';
    const std::string start = place;
    place += Platform::ToUtf8(names[i]);
    if (IsThere(place)) continue;
    const std::string spelling = SpellingIn(folder, names[i]);
    if (!spelling.empty()) {
      place = start + spelling;
    } else if (i + 1 < names.size()) {
      return SystemError::PathNotFound;
    }
  }
  if (place.empty()) place = ".";
  if (wantsFolder && place.back() != '/') place += '/';
  return SystemError::None;
}

std::string FolderOfPlace(const std::string& place) {
  const size_t slash = place.find_last_of('/', place.size() - 2);
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : place.substr(0, slash);
}

}  // namespace Posix
