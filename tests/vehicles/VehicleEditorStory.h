// Stories of a user who makes a vehicle with the vehicle editor.
#pragma once

#include <string>

#include "tests/app/PackStory.h"
#include "vehicles/VehicleInWork.h"

class VehicleEditorStory : public PackStory {
 protected:
  static inline const std::string Vehicles = Game + "\\vehicles";
  static inline const std::string Rocket = Vehicles + "\\rocket.vhc";
  static inline const std::string EditorTitle = "Create Vehicle";
  static inline const std::string SoundsTitle = "Select Internal Sound:";

  // The rows of the editor.
  enum Row {
    Engine,
    Throttle,
    Ignition,
    Horn,
    Acceleration,
    Deceleration,
    TopSpeed,
    IdleFrequency,
    TopFrequency,
    ShiftFrequency,
    Gears,
    Steering,
    SteeringFactor,
    Wipers,
    RowCount,
  };

  VehicleEditorStory() { StartPack(); }

  void StartsVehicle(const std::string& name = "rocket") {
    user.ChoosesFile(name);
    user.ChoosesMenu({"Vehicle", "New"});
  }

  // From the first row, where every action leaves the user.
  void GoesTo(int row) {
    while (!user.Hears().starts_with("Select an item:")) user.Presses("Tab");
    user.Presses("Home");
    for (int i = 0; i < row; ++i) user.Presses("Down");
  }

  void Sets(int row) {
    GoesTo(row);
    user.Presses("Alt+S");
  }

  // Gives a number, or whatever else is typed, to a variable.
  void SetsNumber(int row, const std::string& typed) {
    user.TypesInBox(typed);
    Sets(row);
  }

  // Chooses one of the game's sounds for a variable.
  void SetsInternalSound(int row, const std::string& name) {
    user.AnswersYes();
    Sets(row);
    ASSERT_EQ(user.SeesWindow(), SoundsTitle);
    while (user.Hears().find(", " + name + ",") == std::string::npos) user.Presses("Down");
    user.Presses("Enter");
  }

  // Chooses a file as the sound of a variable.
  void SetsSoundFile(int row, const std::string& path) {
    user.AnswersNo();
    user.ChoosesFile(path);
    Sets(row);
  }

  void Saves() { user.Presses("Alt+A"); }

  // The row as it is heard, without its place in the list.
  std::string RowHeard(int row) {
    GoesTo(row);
    const std::string heard = user.Hears();
    const std::string name = "Select an item:, list, ";
    const std::string place = ", " + std::to_string(row + 1) + " of 14";
    EXPECT_TRUE(heard.starts_with(name) && heard.ends_with(place)) << heard;
    return heard.substr(name.size(), heard.size() - name.size() - place.size());
  }
};
