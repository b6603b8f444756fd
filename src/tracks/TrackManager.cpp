#include "tracks/TrackManager.h"

#include "base/SharedTexts.h"
#include "base/Text.h"
#include "game/CheckReport.h"
#include "game/FileDialogs.h"
#include "platform/Files.h"
#include "tracks/TrackChecker.h"
#include "tracks/TrackInWork.h"
#include "tracks/TrackQuestions.h"
#include "tracks/TrackTexts.h"
#include "ui/Messages.h"

namespace TrackManager {

void CheckTrackMenu() {
  const std::string path = TrackQuestions::ChooseTrackFile(
      SharedDialogs().OpenTrack, TrackTexts.CTNoFileText, TrackTexts.CTNoFileTitle);
  if (path.empty()) return;
  int32_t code = 0;
  std::string message;
  const int32_t result = CheckTrackFile(path, code, message);
  CheckReport::Show(result, message,
                    {.fileOk = TrackTexts.CTFFileOK, .syntaxError = SharedTexts.SyntaxError});
}

std::string ChooseFileOfNewTrack() {
  const std::string chosen = TrackQuestions::ChooseTrackFile(
      SharedDialogs().SaveTrack, TrackTexts.TMAbortedNoFileText, TrackTexts.TMAbortedNoFileTitle);
  if (chosen.empty()) return "";
  const std::string path = TrackQuestions::WithTrackExtension(chosen);
  return TrackQuestions::MayBeWritten(path, chosen) ? path : "";
}

void AppendTrackPart(int32_t curve, int32_t surface, int32_t length, std::string& text) {
  for (const int32_t value : {curve, surface, length}) {
    text.append(std::to_string(value)).append(Text::LineEnd);
  }
}

void AppendTrackEnd(bool sunny, std::string& text) {
  // No line end behind it: whoever writes the file puts one behind every text.
  text.append("-1").append(Text::LineEnd) += sunny ? '0' : '1';
}

void WriteTextFile(const std::string& path, const std::string& text) {
  Platform::WriteWholeFile(path, text + std::string(Text::LineEnd));
}

bool SaveTrack() {
  TrackInWork& track = TheTrack();
  const std::string path = track.TrackPath.empty() ? ChooseFileOfNewTrack() : track.TrackPath;
  if (path.empty()) return false;
  // A copy, since the end belongs to the file and not to the track in work.
  std::string text = track.TrackText;
  AppendTrackEnd(TrackQuestions::AskForSun(), text);
  WriteTextFile(path, text);
  // Only now that the file is safe: a save that fails leaves the track to be saved again.
  track = {};
  Messages::Show(TrackTexts.TrackCompiledText, TrackTexts.TrackCompiledTitle,
                 Platform::Icon::Information);
  return true;
}

}  // namespace TrackManager
