#include "vehicles/VehicleChecker.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <string_view>
#include <utility>

#include "base/KeyValue.h"
#include "base/Maths.h"
#include "base/RuntimeError.h"
#include "base/SharedTexts.h"
#include "platform/FileLines.h"
#include "platform/Files.h"
#include "platform/LongStep.h"
#include "platform/Numbers.h"
#include "platform/Paths.h"
#include "text/StringTable.h"
#include "vehicles/VehicleTexts.h"
#include "vehicles/VehicleVariables.h"

namespace {

// Its line is told by who reads the lines.
using Found = std::optional<Fault>;

Fault FaultWith(int32_t code, std::string message) {
  return {.code = code, .message = std::move(message)};
}

class Checker {
 public:
  explicit Checker(const VehicleSounds& sounds) : sounds_(sounds) {}

  // The fault of one line, if it has one. Fails if a number does not fit 32 bits.
  Found FaultOf(std::string_view line);

 private:
  std::optional<VehicleVariable> FindVariable(std::string_view name);
  Found FaultOfSound(VehicleVariable variable, std::string_view value) const;

  Platform::LongStep step_;
  const VehicleSounds& sounds_;
  size_t expected_ = 0;  // the index of the variable behind the last one
};

// The game has more internal sounds than these, but car5 and car6 have always been taken for files.
bool IsInternalSound(VehicleVariable variable, std::string_view value) {
  // These two have a sound of every kind.
  if (value == "car1" || value == "car2") return true;
  if (variable == VehicleVariable::ThrottleSound) return false;
  return value == "car3" || value == "car4" || value == "cycle1" || value == "cycle2";
}

Found FaultOfNumber(VehicleVariable variable, std::string_view value) {
  const auto whole = Platform::ParseWhole(value);
  if (!whole) {
    return FaultWith(VehicleFault::InvalidValue, GetLangString(VehicleTexts.CVFInvalidValue));
  }
  if (variable == VehicleVariable::SteeringFactor && (*whole < 1 || *whole > 100)) {
    return FaultWith(VehicleFault::SteeringFactorOutOfRange,
                     GetLangString(VehicleTexts.CVFSteeringFactorOutOfRange) + " 1 " +
                         GetLangString(SharedTexts.And) + " 100.");
  }
  if (variable == VehicleVariable::HasWipers && (*whole < 0 || *whole > 1)) {
    return FaultWith(VehicleFault::HasWipersOutOfRange,
                     GetLangString(VehicleTexts.CVFHasWipersOutOfRange) + " 0 " +
                         GetLangString(SharedTexts.Or) + " 1.");
  }
  return std::nullopt;
}

Found Checker::FaultOf(std::string_view line) {
  const auto pair = KeyValue::Split(line);
  if (!pair) {
    return FaultWith(VehicleFault::InvalidSyntax, GetLangString(VehicleTexts.CVFInvalidSyntax));
  }
  const std::string_view name = pair->key;
  // What follows a second "=" is no fault: it has never been looked at.
  const std::string_view value = pair->value.substr(0, pair->value.find('='));
  const auto variable = FindVariable(name);
  if (!variable) {
    return FaultWith(VehicleFault::InvalidVariable,
                     GetLangString(VehicleTexts.CVFInvalidVariable1) + " (" + std::string(name) +
                         "). " + GetLangString(VehicleTexts.CVFInvalidVariable2));
  }
  return IsSound(*variable) ? FaultOfSound(*variable, value) : FaultOfNumber(*variable, value);
}

// The lines of most files stand in the order of the variables, so the search starts behind the
// variable found last.
std::optional<VehicleVariable> Checker::FindVariable(std::string_view name) {
  constexpr size_t Count = VehicleVariableNames.size();
  for (size_t tried = 0; tried < Count; ++tried) {
    const size_t index = expected_;
    expected_ = (expected_ + 1) % Count;
    if (VehicleVariableNames[index] == name) return static_cast<VehicleVariable>(index);
  }
  return std::nullopt;
}

Found Checker::FaultOfSound(VehicleVariable variable, std::string_view value) const {
  if (IsInternalSound(variable, value)) return std::nullopt;
  // An empty name stands for the folder itself. That exists, so it is no fault.
  const std::string path = sounds_.folder + "\\" + std::string(value);
  step_.AnswerOthers();  // on a slow drive each name takes its time
  if (sounds_.exists(path)) return std::nullopt;
  return FaultWith(VehicleFault::NonexistentSound,
                   GetLangString(VehicleTexts.CVFNonexistentSoundFile1) + " " + path + " " +
                       GetLangString(VehicleTexts.CVFNonexistentSoundFile2));
}

}  // namespace

int64_t FindVehicleFaults(Platform::FileLines& lines, const VehicleSounds& sounds,
                          const FaultTaker& take) {
  Checker checker(sounds);
  int64_t count = 0;
  for (;;) {
    // Around all lines and not around each, since hardly any holds such a number.
    try {
      std::string_view line;
      while (lines.Next(line)) {
        ++count;
        auto fault = checker.FaultOf(line);
        if (!fault) [[likely]] {
          continue;
        }
        fault->line = count;
        if (!take(*fault)) break;
      }
      return count;
    } catch (const RuntimeError& error) {
      if (error.number() != RuntimeError::Overflow) throw;
      const Fault fault{count, VehicleFault::Unreadable, GetLangString(CauseOf(error))};
      if (!take(fault)) return count;
    }
  }
}

VehicleSounds SoundsBeside(const std::string& path) {
  return {Platform::FolderOf(path), Platform::FileExists};
}

int32_t CheckVehicleFile(const std::string& path, int32_t& code, std::string& message) {
  try {
    Platform::FileLines lines(path);
    std::optional<Fault> fault;
    FindVehicleFaults(lines, SoundsBeside(path), [&](const Fault& first) {
      fault = first;
      return false;
    });
    if (!fault) {
      message = GetLangString(VehicleTexts.CVFNoError);
      return 0;
    }
    if (fault->code == VehicleFault::Unreadable) throw RuntimeError(RuntimeError::Overflow);
    // Before anything is handed out: a count beyond 32 bits fails, and the verdict is another.
    const int32_t result = Maths::ToInt32(static_cast<double>(fault->line));
    code = fault->code;
    message = std::move(fault->message);
    return result;
  } catch (const std::exception&) {
    code = VehicleFault::Unreadable;
    message = GetLangString(VehicleTexts.CVFNonexistentVhcFile);
    return -1;
  }
}
