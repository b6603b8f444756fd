#include "internet/Components.h"

#include <array>

#include "game/Addresses.h"
#include "game/Application.h"
#include "platform/Paths.h"

namespace Components {

namespace {

constexpr int Language = 2;
constexpr size_t ExtensionLength = 4;

struct Kind {
  LangText name;
  LangText listErrorText;
  LangText listErrorTitle;
  const char* list;      // its path on the server
  const char* archives;  // the folder of its archives there
  const char* folder;    // in the game's folder
};

const Kind& KindAt(int kind) {
  static const std::array<Kind, Count> kinds = {{
      {InternetTexts.Car, InternetTexts.CarEnumerationErrorText,
       InternetTexts.CarEnumerationErrorTitle, "/orvane/games/sk2/data/cars.lst",
       "/orvane/games/sk2/cars/", "\\vehicles"},
      {InternetTexts.Track, InternetTexts.TrackEnumerationErrorText,
       InternetTexts.TrackEnumerationErrorTitle, "/orvane/games/sk2/data/tracks.lst",
       "/orvane/games/sk2/tracks/", "\\tracks"},
      {InternetTexts.Language, InternetTexts.LangEnumerationErrorText,
       InternetTexts.LangEnumerationErrorTitle, "/orvane/games/sk2/data/langs.lst",
       "/orvane/games/sk2/langs/", "\\sounds"},
  }};
  return kinds.at(static_cast<size_t>(kind));
}

std::string_view WithoutExtension(std::string_view fileName) {
  return fileName.substr(0, fileName.size() - ExtensionLength);
}

}  // namespace

const LangText& NameOf(int kind) {
  return KindAt(kind).name;
}

const LangText& ListErrorTextOf(int kind) {
  return KindAt(kind).listErrorText;
}

const LangText& ListErrorTitleOf(int kind) {
  return KindAt(kind).listErrorTitle;
}

std::string ListUrlOf(int kind) {
  return std::string(Addresses::MakerServer) + KindAt(kind).list;
}

std::string ArchiveUrlOf(int kind, const std::string& fileName) {
  return std::string(Addresses::MakerServer) + KindAt(kind).archives + fileName;
}

bool IsInstallable(int kind, std::string_view fileName) {
  if (!Platform::IsPlainFileName(fileName) || fileName.size() <= ExtensionLength) return false;
  return kind != Language || Platform::IsPlainFileName(WithoutExtension(fileName));
}

std::string TargetFolderOf(int kind, const std::string& fileName) {
  std::string folder = Application::GameFolder() + KindAt(kind).folder;
  if (kind == Language) folder.append("\\").append(WithoutExtension(fileName));
  return folder;
}

}  // namespace Components
