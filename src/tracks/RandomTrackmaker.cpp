#include "tracks/RandomTrackmaker.h"

#include <optional>
#include <string>

#include "base/File.h"
#include "base/SharedTexts.h"
#include "base/Text.h"
#include "platform/InputBox.h"
#include "platform/LetterCase.h"
#include "platform/MsgBox.h"
#include "platform/Numbers.h"
#include "platform/RandomRange.h"
#include "text/StringTable.h"
#include "tracks/TrackManager.h"
#include "tracks/TrackQuestions.h"
#include "tracks/TrackTexts.h"

namespace RandomTrackmaker {

namespace {

// Parts are handed to the file in blocks of about this many bytes.
constexpr size_t BlockSize = 1 << 16;

bool AskForAdventure() {
  return Platform::MsgBox(GetLangString(TrackTexts.AdventureQuestionText),
                          GetLangString(TrackTexts.AdventureQuestionTitle),
                          Platform::Icon::Question,
                          Platform::Buttons::YesNo) == Platform::Answer::Yes;
}

// The path with a prefix before the file's own name.
std::string WithNamePrefix(const std::string& path, const std::string& prefix) {
  const std::string name = File::NameOf(path);
  return path.substr(0, path.size() - name.size()) + prefix + name;
}

// The number of parts, or nothing if the user gives none and has been told.
std::optional<int32_t> AskForPartCount() {
  for (;;) {
    const std::string answer =
        Platform::InputBox(GetLangString(TrackTexts.TrackPartsQuestionText),
                           GetLangString(TrackTexts.TrackPartsQuestionTitle));
    if (answer.empty()) {
      Platform::MsgBox(GetLangString(TrackTexts.RTMAbortedNoPartsText),
                       GetLangString(TrackTexts.RTMAbortedNoPartsTitle),
                       Platform::Icon::Information);
      return std::nullopt;
    }
    if (Platform::ParseNumber(answer)) return Platform::ParseInt32(answer);
    Platform::MsgBox(GetLangString(TrackTexts.RTMNotNumber), GetLangString(SharedTexts.Error),
                     Platform::Icon::Critical);
  }
}

}  // namespace

void RandomTrack() {
  std::string path = Platform::LowerCase(TrackQuestions::ChooseTrackFileToWrite(
      TrackTexts.RTMAbortedNoFileText, TrackTexts.RTMAbortedNoFileTitle));
  if (path.empty()) return;
  // Such tracks are known to the game by their name.
  if (AskForAdventure()) path = WithNamePrefix(path, "adv");
  const std::optional<int32_t> count = AskForPartCount();
  if (!count) return;

  Platform::FileWriter file(path);
  WriteRandomParts(*count, file);
  std::string end;
  TrackManager::AppendTrackEnd(TrackQuestions::AskForSun(), end);
  file.Write(end.append(Text::LineEnd));
  file.Finish();
  Platform::MsgBox(GetLangString(TrackTexts.RTMFinishedText),
                   GetLangString(TrackTexts.RTMFinishedTitle), Platform::Icon::Information);
}

void WriteRandomParts(int32_t count, Platform::FileWriter& file) {
  using Platform::RandomRange;
  std::string block;
  block.reserve(BlockSize + 64);
  for (int32_t i = 0; i < count; ++i) {
    // The upper bounds are not reached: no random track has a clock or sand in it.
    const int32_t curve = RandomRange(0, 12);
    const int32_t surface = RandomRange(0, 3);
    const int32_t length = RandomRange(5, 500) * 1000;
    TrackManager::AppendTrackPart(curve, surface, length, block);
    if (block.size() < BlockSize) continue;
    file.Write(block);
    block.clear();
  }
  file.Write(block);
}

}  // namespace RandomTrackmaker
