// The window in which the user chooses one of the game's own sounds for a vehicle.
#pragma once

#include <functional>
#include <string>

#include "base/SharedTexts.h"
#include "ui/Forms.h"
#include "vehicles/VehicleTexts.h"
#include "vehicles/VehicleVariables.h"

class InternalCars final : public Platform::Form {
 public:
  InternalCars();

  // Shows the window with the names that a variable can have, the first of them selected.
  //   onChosen  gets the chosen name once the window that opened this one is back. It does not run
  //             if the user cancels.
  void ShowFor(VehicleVariable variable, std::function<void(const std::string& name)> onChosen);

 private:
  Platform::ListBox Sounds{*this, {.label = VehicleTexts.InternalSoundsText}};
  Platform::Button Submit{*this, {.text = SharedTexts.OKButton, .isDefault = true}};
  Platform::Button Ccl{*this, {.text = SharedTexts.CclButton, .isCancel = true}};

  void Submit_Click();
  void Ccl_Click();

  std::function<void(const std::string&)> onChosen_;
};
