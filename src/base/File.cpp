#include "base/File.h"

#include "base/Text.h"

namespace File {

std::string FolderOf(std::string_view path) {
  const size_t slash = path.rfind('\\');
  return slash == std::string_view::npos ? "" : std::string(path.substr(0, slash));
}

std::string NameOf(std::string_view path) {
  const size_t slash = path.rfind('\\');
  return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

bool HasExtension(std::string_view path, std::string_view extension) {
  return path.size() >= extension.size() &&
         Text::LowerAscii(path.substr(path.size() - extension.size())) ==
             Text::LowerAscii(extension);
}

}  // namespace File
