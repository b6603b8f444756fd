// The vehicle editor: the fourteen variables of the vehicle in work with their values, and what can
// be done with them.
#pragma once

#include <string>

#include "base/SharedTexts.h"
#include "ui/Forms.h"
#include "ui/Timer.h"
#include "vehicles/SoundTest.h"
#include "vehicles/VehicleTexts.h"

// One for a run: PerRun<NewCar>(). Cancelling and closing it ends the vehicle in work.
class NewCar final : public Platform::Form {
 public:
  NewCar();

 private:
  // In reading order.
  Platform::ListBox Items{*this, {.label = VehicleTexts.SelectItem}};
  Platform::Button Set{*this, {.text = VehicleTexts.SetButton, .isDefault = true}};
  Platform::Button Save{*this, {.text = VehicleTexts.SaveCarButton}};
  Platform::Button Test{*this, {.text = VehicleTexts.TestSoundButton}};
  Platform::Button Ccl{*this, {.text = SharedTexts.CclButton, .isCancel = true}};
  // Looks after the sound that is being tested.
  Platform::Timer Watch{*this, {.milliseconds = 50}};

  void Form_Load();
  void Form_Unload();  // ends the vehicle in work
  void Set_Click();    // asks for the value of the selected variable
  void Save_Click();   // writes the file; the editor stays
  void Test_Click();   // plays the selected variable, or stops what is playing
  void Ccl_Click();
  void Watch_Timer();

  // The rows anew, with the first one selected and the focus on the list.
  void Refresh();
  void StopTest();
  void ShowTestCaption(const LangText& text);

  SoundTest test_;
};

// Starts a vehicle: the user chooses its file, and the editor is shown in place of the window in
// use. If no file is chosen, the user is told and nothing changes. Fails as
// CarManager::ChooseFileOfNewVehicle does.
void NewVehicle();
