#include "platform/Paths.h"

#include "base/Text.h"
#include "platform/Characters.h"

namespace Platform {

namespace {

size_t LastBackslash(std::string_view path) {
  size_t last = std::string_view::npos;
  for (size_t i = 0; i < path.size(); ++i) {
    if (path[i] == '\\') last = i;
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

// The dot is the second byte of a character in no code page, so the bytes at the end tell.
bool HasExtension(std::string_view path, std::string_view extension) {
  return path.size() >= extension.size() &&
         Text::LowerAscii(path.substr(path.size() - extension.size())) ==
             Text::LowerAscii(extension);
}

}  // namespace Platform
