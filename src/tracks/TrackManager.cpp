#include "tracks/TrackManager.h"

#include "app/CheckReport.h"
#include "app/FileDialogs.h"
#include "base/SharedTexts.h"
#include "base/Text.h"
#include "platform/Files.h"
#include "platform/Forms.h"
#include "text/Messages.h"
#include "tracks/TrackChecker.h"
#include "tracks/TrackInWork.h"
#include "tracks/TrackQuestions.h"
#include "tracks/TrackTexts.h"
#include "tracks/Trackmaker.h"

namespace TrackManager {

namespace {

// The path for a new track; empty if there is none, or what stands there shall stay.
std::string ChooseFileOfNewTrack() {
  const std::string chosen = TrackQuestions::ChooseTrackFile(
      SharedDialogs().SaveTrack, TrackTexts.TMAbortedNoFileText, TrackTexts.TMAbortedNoFileTitle);
  if (chosen.empty()) return "";
  const std::string path = TrackQuestions::WithTrackExtension(chosen);
  return TrackQuestions::MayBeWritten(path, chosen) ? path : "";
}

}  // namespace

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

void NewTrack() {
  const std::string path = ChooseFileOfNewTrack();
  if (path.empty()) return;
  PerRun<Trackmaker>().Show();
  TheTrack().TrackPath = path;
}

void AppendTrackPart(int32_t curve, int32_t surface, int32_t length, std::string& text) {
  for (const int32_t value : {curve, surface, length}) {
    text.append(std::to_string(value)).append(Text::LineEnd);
  }
}

void AppendTrackEnd(bool sunny, std::string& text) {
  text.append("-1").append(Text::LineEnd) += sunny ? '0' : '1';
}

void WriteTextFile(const std::string& path, const std::string& text) {
  Platform::WriteWholeFile(path, text + std::string(Text::LineEnd));
}

void SaveTrack() {
  TrackInWork& track = TheTrack();
  const std::string path = track.TrackPath.empty() ? ChooseFileOfNewTrack() : track.TrackPath;
  if (path.empty()) return;
  std::string text = track.TrackText;
  AppendTrackEnd(TrackQuestions::AskForSun(), text);
  WriteTextFile(path, text);
  track = {};
  Messages::Show(TrackTexts.TrackCompiledText, TrackTexts.TrackCompiledTitle,
                 Platform::Icon::Information);
  Platform::MainForm().Show();
}

}  // namespace TrackManager
