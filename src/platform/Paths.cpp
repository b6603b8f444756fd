#include "platform/Paths.h"

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/Characters.h"

namespace Platform {

namespace {

// The system's limit of 260 counts the NUL at the end.
constexpr size_t LongestPath = 259;
constexpr std::string_view Reserved = "<>:\"|?*";

size_t LastBackslash(std::string_view path) {
  size_t last = std::string_view::npos;
  for (size_t i = 0; i < path.size(); i += CharacterLength(path.substr(i))) {
    if (path[i] == '\\') last = i;
  }
  return last;
}

// Such a name means a device in every folder and with every extension; on some systems it can be
// that of a file too, which others could not delete.
bool IsDeviceName(const std::string& name) {
  std::string stem = Text::LowerAscii(name.substr(0, name.find('.')));
  stem.erase(stem.find_last_not_of(' ') + 1);
  for (const char* device : {"con", "prn", "aux", "nul", "conin$", "conout$"}) {
    if (stem == device) return true;
  }
  if (!stem.starts_with("com") && !stem.starts_with("lpt")) return false;
  // The small raised digits of the Western page count as digits.
  const std::string number = ToUtf8(stem.substr(3));
  return (number.size() == 1 && number[0] >= '1' && number[0] <= '9') || number == "\xC2\xB9" ||
         number == "\xC2\xB2" || number == "\xC2\xB3";
}

}  // namespace

std::string FolderOf(std::string_view path) {
  const size_t slash = LastBackslash(path);
  return slash == std::string_view::npos ? "" : std::string(path.substr(0, slash));
}

std::string NameOf(std::string_view path) {
  const size_t slash = LastBackslash(path);
  return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

bool IsNameUsable(std::string_view path) {
  if (path.size() > LongestPath) return false;
  // The later bytes of a character may look like one of those that no name can hold.
  for (size_t i = 0; i < path.size(); i += CharacterLength(path.substr(i))) {
    const bool isDriveColon = path[i] == ':' && i == 1;
    if (static_cast<unsigned char>(path[i]) < ' ') return false;
    if (!isDriveColon && Reserved.find(path[i]) != std::string_view::npos) return false;
  }
  return !IsDeviceName(NameOf(path));
}

bool IsPlainFileName(std::string_view name) {
  for (size_t i = 0; i < name.size(); i += CharacterLength(name.substr(i))) {
    if (name[i] == '\\' || name[i] == '/' || name[i] == ':') return false;
  }
  return !name.empty() && name.back() != '.' && name.back() != ' ' && IsNameUsable(name);
}

void CheckName(const std::string& path) {
  if (IsNameUsable(path)) return;
  throw RuntimeError(RuntimeError::PathFileAccess, RuntimeErrorTexts.NameNotUsable, path);
}

// The dot is the second byte of a character in no code page, so the bytes at the end tell.
bool HasExtension(std::string_view path, std::string_view extension) {
  return path.size() >= extension.size() &&
         Text::LowerAscii(path.substr(path.size() - extension.size())) ==
             Text::LowerAscii(extension);
}

}  // namespace Platform
