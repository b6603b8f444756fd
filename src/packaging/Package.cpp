#include "packaging/Package.h"

#include <string_view>

#include "archive/Packing.h"
#include "base/RuntimeError.h"
#include "packaging/PackagingTexts.h"
#include "platform/Characters.h"
#include "platform/Files.h"
#include "platform/LetterCase.h"
#include "platform/Paths.h"

namespace Package {

namespace {

// Characters, not bytes: a name that is typed without an extension may end in letters of two.
std::string WithLastThree(const std::string& path, const char* replacement) {
  const std::string_view text = path;
  std::vector<size_t> starts;
  for (size_t at = 0; at < text.size(); at += Platform::CharacterLength(text.substr(at))) {
    starts.push_back(at);
  }
  const size_t kept = starts.size() < 3 ? 0 : starts[starts.size() - 3];
  return path.substr(0, kept) + replacement;
}

}  // namespace

std::string DescriptionPathOf(const std::string& path) {
  return WithLastThree(path, "wav");
}

std::string ArchivePathOf(const std::string& path) {
  return WithLastThree(path, "zip");
}

void PackAndDelete(const std::string& path, const std::vector<std::string>& files) {
  const std::string archive = ArchivePathOf(path);
  for (const std::string& file : files) {
    // By name, since one file has many paths: it would be deleted with the others, archive and all.
    if (Platform::LowerCase(Platform::NameOf(file)) ==
        Platform::LowerCase(Platform::NameOf(archive))) {
      throw RuntimeError(RuntimeError::InvalidCall, PackagingTexts.PackagedIntoItself, file);
    }
  }
  Archive::Pack(archive, files);
  Platform::RemoveFile(path);
  for (const std::string& file : files) Platform::RemoveFile(file);
}

}  // namespace Package
