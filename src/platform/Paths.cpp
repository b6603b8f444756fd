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
  for (size_t i = 0; i < path.size(); ++i) {
    if (path[i] == '\\') last = i;
    // The second byte of a Japanese or Chinese character may be the byte of a backslash.
    if (IsLeadByte(path[i])) ++i;
  }
  return last;
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
  for (size_t i = 0; i < path.size(); ++i) {
    const bool isDriveColon = path[i] == ':' && i == 1;
    if (static_cast<unsigned char>(path[i]) < ' ') return false;
    if (!isDriveColon && Reserved.find(path[i]) != std::string_view::npos) return false;
    // In a code page of two bytes a character, the second may look like one of the above.
    if (IsLeadByte(path[i])) ++i;
  }
  return true;
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
