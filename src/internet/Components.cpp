#include "internet/Components.h"

#include <array>

#include "game/Addresses.h"
#include "game/Application.h"
#include "internet/ComponentPlaces.h"

namespace Components {

namespace {

struct Kind {
  LangText name;
  LangText listErrorText;
  LangText listErrorTitle;
  const char* folder;  // in the game's folder
};

const Kind& KindAt(int kind) {
  static const std::array<Kind, ComponentPlaces::Count> kinds = {{
      {InternetTexts.Car, InternetTexts.CarEnumerationErrorText,
       InternetTexts.CarEnumerationErrorTitle, "\\vehicles"},
      {InternetTexts.Track, InternetTexts.TrackEnumerationErrorText,
       InternetTexts.TrackEnumerationErrorTitle, "\\tracks"},
      {InternetTexts.Language, InternetTexts.LangEnumerationErrorText,
       InternetTexts.LangEnumerationErrorTitle, "\\sounds"},
  }};
  return kinds.at(static_cast<size_t>(kind));
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
  return Addresses::MakerServer + ComponentPlaces::ListPathOf(kind);
}

std::string ArchiveUrlOf(int kind, const std::string& fileName) {
  return Addresses::MakerServer + ComponentPlaces::ArchivePathOf(kind, fileName);
}

std::string TargetFolderOf(int kind, const std::string& fileName) {
  std::string folder = Application::GameFolder() + KindAt(kind).folder;
  if (kind == ComponentPlaces::Language) {
    folder.append("\\").append(ComponentPlaces::WithoutExtension(fileName));
  }
  return folder;
}

}  // namespace Components
