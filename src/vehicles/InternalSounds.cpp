#include "vehicles/InternalSounds.h"

#include <algorithm>

std::string InternalSoundResourceName(std::string_view variable, std::string_view value) {
  for (const InternalSoundKind& kind : InternalSoundKinds) {
    if (variable != VehicleVariableNames[static_cast<size_t>(kind.variable)]) continue;
    if (std::ranges::find(kind.names, value) == kind.names.end()) return "";
    return std::string(value) + std::string(kind.suffix);
  }
  return "";
}
