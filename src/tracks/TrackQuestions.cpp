#include "tracks/TrackQuestions.h"

#include "game/Application.h"
#include "game/FileChoice.h"
#include "platform/Paths.h"
#include "tracks/TrackTexts.h"
#include "ui/Messages.h"

namespace TrackQuestions {

std::string ChooseTrackFile(const Platform::FileDialog& dialog, const LangText& noFileText,
                            const LangText& noFileTitle) {
  return ChooseFile({.dialog = dialog,
                     .folder = Application::TrackFolder(),
                     .noFileText = noFileText,
                     .noFileTitle = noFileTitle,
                     .noFileIcon = Platform::Icon::Information});
}

std::string WithTrackExtension(const std::string& path) {
  // Another extension is taken for a part of the name: the game lists .trk files alone.
  return Platform::HasExtension(path, ".trk") ? path : path + ".trk";
}

bool MayBeWritten(const std::string& path, const std::string& chosen) {
  return ::MayBeWritten(path, chosen, TrackTexts.ReplaceTrackText, TrackTexts.ReplaceTrackTitle);
}

bool AskForSun() {
  return Messages::Ask(TrackTexts.WeatherQuestionText, TrackTexts.WeatherQuestionTitle,
                       Platform::Buttons::YesNo);
}

}  // namespace TrackQuestions
