#include "internet/ComponentPlaces.h"

#include <array>

#include "platform/Paths.h"

namespace ComponentPlaces {

namespace {

constexpr const char* Game = "/orvane/games/sk2/";
constexpr size_t ExtensionLength = 4;

}  // namespace

std::string FolderNameOf(int kind) {
  static constexpr std::array<const char*, Count> Names = {"cars", "tracks", "langs"};
  return Names.at(static_cast<size_t>(kind));
}

std::string ListPathOf(int kind) {
  return std::string(Game) + "data/" + FolderNameOf(kind) + ".lst";
}

std::string ArchivePathOf(int kind, const std::string& fileName) {
  return Game + FolderNameOf(kind) + "/" + fileName;
}

bool IsInstallable(int kind, std::string_view fileName) {
  if (!Platform::IsPlainFileName(fileName) || fileName.size() <= ExtensionLength) return false;
  return kind != Language || Platform::IsPlainFileName(WithoutExtension(fileName));
}

std::string_view WithoutExtension(std::string_view fileName) {
  return fileName.substr(0, fileName.size() - ExtensionLength);
}

}  // namespace ComponentPlaces
