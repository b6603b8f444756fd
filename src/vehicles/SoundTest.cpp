#include "vehicles/SoundTest.h"

#include <utility>

#include "base/RuntimeError.h"
#include "base/SoundTexts.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Resources.h"
#include "platform/WaveFile.h"
#include "text/StringTable.h"
#include "vehicles/InternalSounds.h"
#include "vehicles/VehicleInWork.h"
#include "vehicles/VehicleTexts.h"
#include "vehicles/VehicleValues.h"

namespace {

using Platform::Looping;
using Platform::SoundBuffer;

std::string_view NameOf(VehicleVariable variable) {
  return VehicleVariableNames[static_cast<size_t>(variable)];
}

SoundTest::Refusal Refused(const LangText& text, const LangText& title) {
  return {GetLangString(text), title};
}

SoundTest::Refusal MissingFile(VehicleVariable variable) {
  const std::string text = GetLangString(VehicleTexts.TestSoundNonexistentText1) + " " +
                           std::string(NameOf(variable)) + ". " +
                           GetLangString(VehicleTexts.TestSoundNonexistentText2);
  return {text, VehicleTexts.TestSoundNonexistentTitle};
}

SoundBuffer FromResource(const std::string& name) {
  const auto bytes = Platform::ReadResource(Platform::SoundResource, name);
  if (!bytes) throw RuntimeError(RuntimeError::FileNotFound, name);
  return SoundBuffer(DecodeWave(*bytes));
}

// The sound of a variable, from the program or from the vehicle's folder; nothing if there is no
// file of that name. The text of a variable that is not set is looked for as a file, too.
std::optional<SoundBuffer> SoundOf(VehicleVariable variable) {
  const std::string value = GetVehicleValue(variable);
  const std::string resource = InternalSoundResourceName(NameOf(variable), value);
  if (!resource.empty()) return FromResource(resource);
  const std::string path = TheVehicle().VehicleFolder() + "\\" + value;
  if (!Platform::FileExists(path)) return std::nullopt;
  return SoundBuffer(Platform::ReadWaveFile(path));
}

// The resource with the engine of the vehicle in work; empty if that is none of the game's own.
std::string EngineResource() {
  return InternalSoundResourceName(NameOf(VehicleVariable::EngineSound),
                                   GetVehicleValue(VehicleVariable::EngineSound));
}

}  // namespace

std::optional<SoundTest::Refusal> SoundTest::Start(VehicleVariable variable) {
  Stop();
  try {
    switch (variable) {
      case VehicleVariable::EngineSound:
      case VehicleVariable::ThrottleSound:
      case VehicleVariable::HornSound: return StartLooped(variable);
      case VehicleVariable::StartSound: return StartIgnition();
      case VehicleVariable::IdleFreq:
      case VehicleVariable::TopFreq:
      case VehicleVariable::ShiftFreq: return StartFrequency(variable);
      default:
        return Refused(VehicleTexts.InvalidTestVarErrorText, VehicleTexts.InvalidTestVarErrorTitle);
    }
  } catch (...) {
    Stop();
    throw;
  }
}

std::optional<SoundTest::Refusal> SoundTest::StartLooped(VehicleVariable variable) {
  sound_ = SoundOf(variable);
  if (!sound_) return MissingFile(variable);
  sound_->Play(Looping::Yes);
  return std::nullopt;
}

std::optional<SoundTest::Refusal> SoundTest::StartIgnition() {
  const std::string engine = EngineResource();
  if (engine.empty()) {
    return Refused(VehicleTexts.IgnitionInternalErrorText, VehicleTexts.IgnitionInternalErrorTitle);
  }
  auto ignition = SoundOf(VehicleVariable::StartSound);
  if (!ignition) return MissingFile(VehicleVariable::StartSound);
  // Made before the ignition is heard, so that the engine follows without a pause.
  engine_ = FromResource(engine);
  sound_ = std::move(ignition);
  sound_->Play(Looping::No);
  return std::nullopt;
}

std::optional<SoundTest::Refusal> SoundTest::StartFrequency(VehicleVariable variable) {
  const std::string engine = EngineResource();
  if (engine.empty()) {
    return Refused(VehicleTexts.FreqInternalErrorText, VehicleTexts.FreqInternalErrorTitle);
  }
  const auto rate = Platform::ParseWhole(GetVehicleValue(variable));
  // The text of a variable that is not set comes here too.
  if (!rate) throw RuntimeError(RuntimeError::InvalidCall, SoundTexts.SoundFrequencyNotPossible);
  sound_ = FromResource(engine);
  sound_->SetFrequency(*rate);
  sound_->Play(Looping::Yes);
  return std::nullopt;
}

bool SoundTest::Continue() {
  if (!sound_) return false;
  try {
    if (sound_->IsPlaying()) return true;
    // The ignition is over: the engine, made ready before, follows without a gap.
    sound_ = std::exchange(engine_, std::nullopt);
    if (sound_) sound_->Play(Looping::Yes);
  } catch (...) {
    Stop();
    throw;
  }
  return IsPlaying();
}

void SoundTest::Stop() {
  engine_.reset();
  sound_.reset();
}
