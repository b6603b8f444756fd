#include "tracks/TrackQuestions.h"

#include "base/Text.h"
#include "game/Application.h"
#include "game/FileDialogs.h"
#include "platform/Files.h"
#include "platform/LetterCase.h"
#include "platform/Paths.h"
#include "text/StringTable.h"
#include "tracks/TrackTexts.h"
#include "ui/Messages.h"
#include "ui/MsgBox.h"

namespace TrackQuestions {

std::string ChooseTrackFile(Platform::FileDialog& dialog, const LangText& noFileText,
                            const LangText& noFileTitle) {
  dialog.initialFolder = Application::GameFolder() + "\\tracks";
  std::string path = dialog.Show();
  if (path.empty()) Messages::Show(noFileText, noFileTitle, Platform::Icon::Information);
  return path;
}

std::string WithTrackExtension(const std::string& path) {
  return Platform::HasExtension(path, ".trk") ? path : path + ".trk";
}

bool MayBeWritten(const std::string& path, const std::string& chosen) {
  Platform::CheckName(path);
  const bool isAsChosen = Platform::LowerCase(path) == Platform::LowerCase(chosen);
  if (isAsChosen || !Platform::FileExists(path)) return true;
  const std::string question =
      GetLangString(TrackTexts.ReplaceTrackText) + std::string(Text::LineEnd) + path;
  return Platform::MsgBox(question, GetLangString(TrackTexts.ReplaceTrackTitle),
                          Platform::Icon::Question,
                          Platform::Buttons::YesNoDefaultNo) == Platform::Answer::Yes;
}

bool AskForSun() {
  return Messages::Ask(TrackTexts.WeatherQuestionText, TrackTexts.WeatherQuestionTitle,
                       Platform::Buttons::YesNo);
}

}  // namespace TrackQuestions
