#include "packaging/VehicleSounds.h"

#include <algorithm>
#include <string_view>

#include "base/KeyValue.h"
#include "platform/FileLines.h"
#include "platform/Paths.h"

namespace VehicleSounds {

namespace {

using Names = std::vector<std::string_view>;

bool IsInternal(VehicleVariable variable, std::string_view value) {
  static const Names engine{"car1", "car2", "car3", "car4", "car5", "car6", "cycle1", "cycle2"};
  static const Names throttle{"car1", "car2"};
  static const Names ignition{"car1", "car2", "cycle1", "cycle2"};
  const Names& names = variable == VehicleVariable::ThrottleSound ? throttle
                       : variable == VehicleVariable::StartSound  ? ignition
                                                                  : engine;  // the horn's, too
  return std::ranges::find(names, value) != names.end();
}

// Vehicles come from the web too, and what is packaged is deleted: a name that leads out of the
// folder, by "..", a drive or in any other way, must not choose what is.
bool StaysInside(std::string_view value) {
  for (;;) {
    const std::string folder = Platform::FolderOf(value);
    const std::string name = Platform::NameOf(value);
    if (!Platform::IsPlainFileName(name)) return false;
    if (name.size() == value.size()) return true;
    value = value.substr(0, folder.size());
  }
}

}  // namespace

std::vector<Sound> FilesOf(const std::string& vehiclePath) {
  std::array<std::string, Variables.size()> values;
  Platform::FileLines lines(vehiclePath);
  for (std::string_view line; lines.Next(line);) {
    for (size_t i = 0; i < Variables.size(); ++i) {
      const std::string_view name = VehicleVariableNames[static_cast<size_t>(Variables[i])];
      if (KeyValue::HasKey(line, name)) values[i] = line.substr(name.size() + 1);
    }
  }
  std::vector<Sound> sounds;
  for (size_t i = 0; i < Variables.size(); ++i) {
    if (values[i].empty() || IsInternal(Variables[i], values[i])) continue;
    sounds.push_back(
        {Variables[i], Platform::FolderOf(vehiclePath) + "\\" + values[i], StaysInside(values[i])});
  }
  return sounds;
}

}  // namespace VehicleSounds
