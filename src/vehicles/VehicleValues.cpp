#include "vehicles/VehicleValues.h"

#include <array>

#include "base/RuntimeError.h"
#include "base/SharedTexts.h"
#include "game/Application.h"
#include "game/FileChoice.h"
#include "game/FileDialogs.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Paths.h"
#include "text/StringTable.h"
#include "ui/InputBox.h"
#include "ui/Messages.h"
#include "vehicles/VehicleInWork.h"
#include "vehicles/VehicleLines.h"
#include "vehicles/VehicleTexts.h"

namespace {

// What is said about a sound variable.
struct SoundWords {
  LangText dialogTitle;
  LangText noSound;
  LangText noSoundTitle;
};

// What is said about a variable that holds a number.
struct NumberWords {
  LangText prompt;
  LangText promptTitle;
  LangText noValue;
  LangText noValueTitle;
  LangText invalid;
  LangText invalidTitle;
};

const VehicleTextTable& Words = VehicleTexts;

const std::array<SoundWords, 4> SoundsWords{{
    {Words.OpenEngineSound, Words.NoEngineSoundText, Words.NoEngineSoundTitle},
    {Words.OpenThrottleSound, Words.NoThrottleSoundText, Words.NoThrottleSoundTitle},
    {Words.OpenIgnitionSound, Words.NoStartSoundText, Words.NoStartSoundTitle},
    {Words.OpenHornSound, Words.NoHornSoundText, Words.NoHornSoundTitle},
}};

// From Acceleration to SteeringFactor.
const std::array<NumberWords, 9> NumbersWords{{
    {Words.AccelerationPrompt, Words.AccelerationTitle, Words.NoAccelerationText,
     Words.NoAccelerationTitle, Words.InvalidAccelerationText, Words.InvalidAccelerationTitle},
    {Words.DecelerationPrompt, Words.DecelerationTitle, Words.NoDecelerationText,
     Words.NoDecelerationTitle, Words.InvalidDecelerationText, Words.InvalidDecelerationTitle},
    {Words.SkidrunPrompt, Words.SkidrunTitle, Words.NoSkidrunText, Words.NoSkidrunTitle,
     Words.InvalidSkidrunText, Words.InvalidSkidrunTitle},
    // Translators know no title for an invalid idle frequency; that of a missing one serves both.
    {Words.IdleFrequencyPrompt, Words.IdleFrequencyTitle, Words.NoIdleFrequencyText,
     Words.NoIdleFrequencyTitle, Words.InvalidIdleFrequencyText, Words.NoIdleFrequencyTitle},
    {Words.TopFrequencyPrompt, Words.TopFrequencyTitle, Words.NoTopFrequencyText,
     Words.NoTopFrequencyTitle, Words.InvalidTopFrequencyText, Words.InvalidTopFrequencyTitle},
    // And they know no text for an invalid shift frequency: its title is shown as both.
    {Words.ShiftFrequencyPrompt, Words.ShiftFrequencyTitle, Words.NoShiftFrequencyText,
     Words.NoShiftFrequencyTitle, Words.InvalidShiftFrequencyTitle,
     Words.InvalidShiftFrequencyTitle},
    {Words.NumberOfGearsPrompt, Words.NumberOfGearsTitle, Words.NoNumberOfGearsText,
     Words.NoNumberOfGearsTitle, Words.InvalidNumberOfGearsText, Words.InvalidNumberOfGearsTitle},
    {Words.SteeringPrompt, Words.SteeringTitle, Words.NoSteeringText, Words.NoSteeringTitle,
     Words.InvalidSteeringText, Words.InvalidSteeringTitle},
    {Words.SteeringFactorPrompt, Words.SteeringFactorTitle, Words.NoSteeringFactorText,
     Words.NoSteeringFactorTitle, Words.InvalidSteeringFactorText,
     Words.InvalidSteeringFactorTitle},
}};

SetResult Set(VehicleVariable variable, const std::string& value) {
  VehicleInWork& vehicle = TheVehicle();
  vehicle.VehicleData = VehicleLines::WithValue(vehicle.VehicleData, variable, value);
  return SetResult::Changed;
}

SetResult Refuse(const LangText& text, const LangText& title) {
  Messages::Show(text, title, Platform::Icon::Critical);
  return SetResult::Unchanged;
}

// Fails if the checker, and so the game, would take a part of the name only for the sound's.
void CheckSoundName(const std::string& name, const std::string& path) {
  if (name.find('=') == std::string::npos) return;
  throw RuntimeError(RuntimeError::PathFileAccess, RuntimeErrorTexts.NameNotUsable, path);
}

SetResult SetSound(VehicleVariable variable) {
  if (Messages::Ask(Words.InternalSoundQuestionText, Words.InternalSoundQuestionTitle,
                    Platform::Buttons::YesNo)) {
    return SetResult::WantsInternalSound;
  }
  const SoundWords& words = SoundsWords[static_cast<size_t>(variable)];
  const std::string chosen = ChooseFile({.dialog = SharedDialogs().OpenWav,
                                         .title = words.dialogTitle,
                                         .folder = Application::VehicleFolder(),
                                         .noFileText = words.noSound,
                                         .noFileTitle = words.noSoundTitle,
                                         .noFileIcon = Platform::Icon::Critical});
  if (chosen.empty()) return SetResult::Unchanged;
  const std::string name = Platform::NameOf(chosen);
  CheckSoundName(name, chosen);
  const std::string ownPath = TheVehicle().VehicleFolder() + "\\" + name;
  // A file of that name that is there already is used as it is, and never replaced: it may be
  // another vehicle's sound, or the chosen file itself.
  if (!Platform::FileExists(ownPath) && chosen != ownPath) Platform::CopyFileTo(chosen, ownPath);
  return Set(variable, name);
}

SetResult RefuseSteeringFactor() {
  const std::string text = GetLangString(Words.SteeringFactorSetOutOfRangeText1) + " 1 " +
                           GetLangString(SharedTexts.And) + " 100. " +
                           GetLangString(Words.SteeringFactorSetOutOfRangeText2);
  Messages::Show(text, Words.SteeringFactorSetOutOfRangeTitle, Platform::Icon::Critical);
  return SetResult::Unchanged;
}

SetResult SetNumber(VehicleVariable variable) {
  const NumberWords& words = NumbersWords[static_cast<size_t>(variable) -
                                          static_cast<size_t>(VehicleVariable::Acceleration)];
  const std::string answer =
      Platform::InputBox(GetLangString(words.prompt), GetLangString(words.promptTitle));
  if (answer.empty()) return Refuse(words.noValue, words.noValueTitle);
  if (!Platform::ParseNumber(answer)) return Refuse(words.invalid, words.invalidTitle);
  // A number that the game cannot hold would make the whole file unreadable to it.
  const int32_t whole = Platform::ParseInt32(answer);
  if (variable == VehicleVariable::SteeringFactor && (whole < 1 || whole > 100)) {
    return RefuseSteeringFactor();
  }
  // As it was typed: the file keeps the digits that the user chose.
  return Set(variable, answer);
}

SetResult SetWipers() {
  const bool hasWipers =
      Messages::Ask(Words.WipersQuestionText, Words.WipersQuestionTitle, Platform::Buttons::YesNo);
  return Set(VehicleVariable::HasWipers, hasWipers ? "1" : "0");
}

}  // namespace

SetResult SetVehicleValue(int index) {
  if (index < 0 || index >= static_cast<int>(VehicleVariableNames.size())) {
    return SetResult::Unchanged;
  }
  const auto variable = static_cast<VehicleVariable>(index);
  if (IsSound(variable)) return SetSound(variable);
  return variable == VehicleVariable::HasWipers ? SetWipers() : SetNumber(variable);
}

std::string GetVehicleValue(VehicleVariable variable) {
  std::string value = VehicleLines::ValueOf(TheVehicle().VehicleData, variable);
  if (value.empty()) return GetLangString(VehicleTexts.NotSet);
  if (variable == VehicleVariable::HasWipers && value == "1") {
    return GetLangString(VehicleTexts.Yes);
  }
  if (variable == VehicleVariable::HasWipers && value == "0") {
    return GetLangString(VehicleTexts.No);
  }
  return value;
}
