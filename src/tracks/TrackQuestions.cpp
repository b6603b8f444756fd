#include "tracks/TrackQuestions.h"

#include "app/Application.h"
#include "app/FileDialogs.h"
#include "base/File.h"
#include "platform/MsgBox.h"
#include "text/StringTable.h"
#include "tracks/TrackTexts.h"

namespace TrackQuestions {

std::string ChooseTrackFile(Platform::FileDialog& dialog, const LangText& noFileText,
                            const LangText& noFileTitle) {
  dialog.initialFolder = Application::GameFolder() + "\\tracks";
  std::string path = dialog.Show();
  if (path.empty()) {
    Platform::MsgBox(GetLangString(noFileText), GetLangString(noFileTitle),
                     Platform::Icon::Information);
  }
  return path;
}

std::string ChooseTrackFileToWrite(const LangText& noFileText, const LangText& noFileTitle) {
  const std::string path = ChooseTrackFile(SharedDialogs().SaveTrack, noFileText, noFileTitle);
  return path.empty() || File::HasExtension(path, ".trk") ? path : path + ".trk";
}

bool AskForSun() {
  return Platform::MsgBox(GetLangString(TrackTexts.WeatherQuestionText),
                          GetLangString(TrackTexts.WeatherQuestionTitle), Platform::Icon::Question,
                          Platform::Buttons::YesNo) == Platform::Answer::Yes;
}

}  // namespace TrackQuestions
