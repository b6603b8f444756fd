// The vehicle editor of the running pack, as a user works it.
#pragma once

#include <string>

#include "e2e/driver/PackTest.h"

namespace E2e {

class VehicleEditorTest : public PackTest {
 protected:
  static constexpr const char* EditorTitle = "Create Vehicle";
  static constexpr const char* List = "Select an item:";

  // The path of a file in the game's folder of vehicles.
  std::string vehicle(const std::string& name) const;

  // Starts the pack, and in it a vehicle with that file name.
  Window StartVehicle(const std::string& name);
  // Selects the row of that beginning. The editor is in front.
  void GoTo(const std::string& row);
  // Presses Set on the row of that beginning.
  void Set(const std::string& row);
  // Gives a number to a variable.
  //   title  that of the box in which it is asked for.
  void SetNumber(const std::string& row, const std::string& title, const std::string& number);
  // Chooses one of the game's own sounds.
  void SetInternalSound(const std::string& row, const std::string& name);
  // Chooses a file that lies beside the vehicle.
  void SetSoundFile(const std::string& row, const std::string& name);
};

}  // namespace E2e
