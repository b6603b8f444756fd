#include "tracks/RandomTrackmaker.h"

#include <optional>
#include <string>

#include "base/SharedTexts.h"
#include "base/Text.h"
#include "game/FileDialogs.h"
#include "platform/LetterCase.h"
#include "platform/LongStep.h"
#include "platform/Numbers.h"
#include "platform/Paths.h"
#include "platform/RandomRange.h"
#include "text/StringTable.h"
#include "tracks/TrackManager.h"
#include "tracks/TrackQuestions.h"
#include "tracks/TrackTexts.h"
#include "ui/InputBox.h"
#include "ui/Messages.h"

namespace RandomTrackmaker {

namespace {

// Parts are handed to the file in blocks of about this many bytes.
constexpr size_t BlockSize = 1 << 16;

bool AskForAdventure() {
  return Messages::Ask(TrackTexts.AdventureQuestionText, TrackTexts.AdventureQuestionTitle,
                       Platform::Buttons::YesNo);
}

// The path with a prefix before the file's own name.
std::string WithNamePrefix(const std::string& path, const std::string& prefix) {
  const std::string name = Platform::NameOf(path);
  return path.substr(0, path.size() - name.size()) + prefix + name;
}

// The number of parts, or nothing if the user gives none and has been told.
std::optional<int32_t> AskForPartCount() {
  // Asked again until it is a number or is left: a typing error must not cost the chosen file.
  for (;;) {
    const std::string answer =
        Platform::InputBox(GetLangString(TrackTexts.TrackPartsQuestionText),
                           GetLangString(TrackTexts.TrackPartsQuestionTitle));
    if (answer.empty()) {
      Messages::Show(TrackTexts.RTMAbortedNoPartsText, TrackTexts.RTMAbortedNoPartsTitle,
                     Platform::Icon::Information);
      return std::nullopt;
    }
    // A number beyond 32 bits is one all the same: converting it fails, and ends the action.
    if (Platform::ParseNumber(answer)) return Platform::ParseInt32(answer);
    Messages::Show(TrackTexts.RTMNotNumber, SharedTexts.Error, Platform::Icon::Critical);
  }
}

}  // namespace

void RandomTrack() {
  const std::string chosen = TrackQuestions::ChooseTrackFile(
      SharedDialogs().SaveTrack, TrackTexts.RTMAbortedNoFileText, TrackTexts.RTMAbortedNoFileTitle);
  if (chosen.empty()) return;
  // The whole path is turned to small letters, its folders too, as the tool always has; the disk
  // makes no difference between them.
  std::string path = TrackQuestions::WithTrackExtension(Platform::LowerCase(chosen));
  // Such tracks are known to the game by their name.
  if (AskForAdventure()) path = WithNamePrefix(path, "adv");
  if (!TrackQuestions::MayBeWritten(path, chosen)) return;
  const std::optional<int32_t> count = AskForPartCount();
  if (!count) return;

  // The weather is asked for only when the parts are made. Whatever fails until Finish, an older
  // track of this name is still there.
  Platform::FileWriter file(path);
  WriteRandomParts(*count, file);
  std::string end;
  TrackManager::AppendTrackEnd(TrackQuestions::AskForSun(), end);
  file.Write(end.append(Text::LineEnd));
  file.Finish();
  Messages::Show(TrackTexts.RTMFinishedText, TrackTexts.RTMFinishedTitle,
                 Platform::Icon::Information);
}

void WriteRandomParts(int32_t count, Platform::FileWriter& file) {
  using Platform::RandomRange;
  const Platform::LongStep step;
  std::string block;
  // With room for the part that makes it full, so that it never grows.
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
    step.AnswerOthers();
  }
  file.Write(block);
}

}  // namespace RandomTrackmaker
