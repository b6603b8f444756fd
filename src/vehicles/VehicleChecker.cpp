#include "vehicles/VehicleChecker.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <string_view>

#include "base/KeyValue.h"
#include "base/Maths.h"
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

struct Fault {
  int32_t code;
  std::string message;
};

class Checker {
 public:
  explicit Checker(const std::string& path) : folder_(Platform::FolderOf(path)) {}

  // The fault of one line, if it has one. Fails if a number does not fit 32 bits.
  std::optional<Fault> FaultOf(std::string_view line);

 private:
  std::optional<VehicleVariable> FindVariable(std::string_view name);
  std::optional<Fault> FaultOfSound(VehicleVariable variable, std::string_view value) const;

  Platform::LongStep step_;
  std::string folder_;
  size_t expected_ = 0;  // the index of the variable behind the last one
};

// The game has more internal sounds than these, but car5 and car6 have always been taken for files.
bool IsInternalSound(VehicleVariable variable, std::string_view value) {
  // These two have a sound of every kind.
  if (value == "car1" || value == "car2") return true;
  if (variable == VehicleVariable::ThrottleSound) return false;
  return value == "car3" || value == "car4" || value == "cycle1" || value == "cycle2";
}

std::optional<Fault> FaultOfNumber(VehicleVariable variable, std::string_view value) {
  const auto whole = Platform::ParseWhole(value);
  if (!whole) {
    return Fault{VehicleFault::InvalidValue, GetLangString(VehicleTexts.CVFInvalidValue)};
  }
  if (variable == VehicleVariable::SteeringFactor && (*whole < 1 || *whole > 100)) {
    return Fault{VehicleFault::SteeringFactorOutOfRange,
                 GetLangString(VehicleTexts.CVFSteeringFactorOutOfRange) + " 1 " +
                     GetLangString(SharedTexts.And) + " 100."};
  }
  if (variable == VehicleVariable::HasWipers && (*whole < 0 || *whole > 1)) {
    return Fault{VehicleFault::HasWipersOutOfRange,
                 GetLangString(VehicleTexts.CVFHasWipersOutOfRange) + " 0 " +
                     GetLangString(SharedTexts.Or) + " 1."};
  }
  return std::nullopt;
}

std::optional<Fault> Checker::FaultOf(std::string_view line) {
  const auto pair = KeyValue::Split(line);
  if (!pair) {
    return Fault{VehicleFault::InvalidSyntax, GetLangString(VehicleTexts.CVFInvalidSyntax)};
  }
  const std::string_view name = pair->key;
  // What follows a second "=" is no fault: it has never been looked at.
  const std::string_view value = pair->value.substr(0, pair->value.find('='));
  const auto variable = FindVariable(name);
  if (!variable) {
    return Fault{VehicleFault::InvalidVariable,
                 GetLangString(VehicleTexts.CVFInvalidVariable1) + " (" + std::string(name) +
                     "). " + GetLangString(VehicleTexts.CVFInvalidVariable2)};
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

std::optional<Fault> Checker::FaultOfSound(VehicleVariable variable, std::string_view value) const {
  if (IsInternalSound(variable, value)) return std::nullopt;
  // An empty name stands for the folder itself. That exists, so it is no fault.
  const std::string path = folder_ + "\\" + std::string(value);
  step_.AnswerOthers();  // on a slow drive each name takes its time
  if (Platform::FileExists(path)) return std::nullopt;
  return Fault{VehicleFault::NonexistentSound,
               GetLangString(VehicleTexts.CVFNonexistentSoundFile1) + " " + path + " " +
                   GetLangString(VehicleTexts.CVFNonexistentSoundFile2)};
}

}  // namespace

int32_t CheckVehicleFile(const std::string& path, int32_t& code, std::string& message) {
  try {
    Platform::FileLines lines(path);
    Checker checker(path);
    int64_t count = 0;
    std::string_view line;
    while (lines.Next(line)) {
      ++count;
      if (auto fault = checker.FaultOf(line)) {
        // Before anything is handed out: a count beyond 32 bits fails, and the verdict is another.
        const int32_t result = Maths::ToInt32(static_cast<double>(count));
        code = fault->code;
        message = std::move(fault->message);
        return result;
      }
    }
    message = GetLangString(VehicleTexts.CVFNoError);
    return 0;
  } catch (const std::exception&) {
    code = VehicleFault::Unreadable;
    message = GetLangString(VehicleTexts.CVFNonexistentVhcFile);
    return -1;
  }
}
