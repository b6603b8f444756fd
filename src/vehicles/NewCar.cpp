#include "vehicles/NewCar.h"

#include <array>
#include <vector>

#include "base/PerRun.h"
#include "text/StringTable.h"
#include "ui/Messages.h"
#include "vehicles/CarManager.h"
#include "vehicles/InternalCars.h"
#include "vehicles/VehicleInWork.h"
#include "vehicles/VehicleLines.h"
#include "vehicles/VehicleValues.h"

namespace {

// What stands before the values, row by row, in the order of the variables.
const std::array<LangText, 14> RowLabels{
    VehicleTexts.EngineSoundRow,    VehicleTexts.ThrottleSoundRow, VehicleTexts.IgnitionSoundRow,
    VehicleTexts.HornSoundRow,      VehicleTexts.AccelerationRow,  VehicleTexts.DecelerationRow,
    VehicleTexts.TopSpeedRow,       VehicleTexts.IdleFrequencyRow, VehicleTexts.TopFrequencyRow,
    VehicleTexts.ShiftFrequencyRow, VehicleTexts.NumberOfGearsRow, VehicleTexts.SteeringRow,
    VehicleTexts.SteeringFactorRow, VehicleTexts.WipersRow,
};

}  // namespace

NewCar::NewCar() : Form(VehicleTexts.NewCarTitle, {.isResizable = true}) {
  OnLoad = [this] { Form_Load(); };
  OnUnload = [this] { Form_Unload(); };
  Items.OnDoubleClick = [this] { Set_Click(); };
  Set.OnClick = [this] { Set_Click(); };
  Save.OnClick = [this] { Save_Click(); };
  Test.OnClick = [this] { Test_Click(); };
  Ccl.OnClick = [this] { Ccl_Click(); };
  Watch.OnTimer = [this] { Watch_Timer(); };
}

void NewCar::Form_Load() {
  Refresh();
}

void NewCar::Form_Unload() {
  // Without the window nobody could stop the sound.
  StopTest();
  TheVehicle() = {};
}

void NewCar::Set_Click() {
  // What is asked next is heard better in silence; and no window over this one has a Stop button.
  StopTest();
  const int row = Items.selected();
  switch (SetVehicleValue(row)) {
    case SetResult::Unchanged: return;
    case SetResult::Changed: return Refresh();
    case SetResult::WantsInternalSound: break;
  }
  const auto variable = static_cast<VehicleVariable>(row);
  PerRun<InternalCars>().ShowFor(variable, [this, variable](const std::string& name) {
    VehicleInWork& vehicle = TheVehicle();
    vehicle.VehicleData = VehicleLines::WithValue(vehicle.VehicleData, variable, name);
    Refresh();
  });
}

void NewCar::Save_Click() {
  // The box that follows is to be heard by screen reader, not under an engine.
  StopTest();
  CarManager::SaveVehicleFile(TheVehicle().VehicleFilePath);
}

void NewCar::Test_Click() {
  if (test_.IsPlaying()) return StopTest();
  std::optional<SoundTest::Refusal> refusal;
  try {
    refusal = test_.Start(static_cast<VehicleVariable>(Items.selected()));
    if (!refusal) {
      // The timer first: where it cannot be had, nobody would notice the end of the sound, and the
      // caption must not promise that it can be stopped.
      Watch.Start();
      ShowTestCaption(VehicleTexts.StopButton);
      return;
    }
  } catch (...) {
    StopTest();
    throw;
  }
  StopTest();
  Messages::Show(refusal->text, refusal->title, Platform::Icon::Critical);
}

void NewCar::Ccl_Click() {
  Unload();
}

void NewCar::Watch_Timer() {
  try {
    if (!test_.Continue()) StopTest();
  } catch (...) {
    StopTest();
    throw;
  }
}

void NewCar::StopTest() {
  Watch.Stop();
  test_.Stop();
  ShowTestCaption(VehicleTexts.TestSoundButton);
}

// A caption that stays as it is must not be set: a screen reader would say it again.
void NewCar::ShowTestCaption(const LangText& text) {
  const std::string caption = GetLangString(text);
  if (Test.caption() != caption) Test.SetCaption(caption);
}

void NewCar::Refresh() {
  std::vector<std::string> rows;
  for (size_t i = 0; i < RowLabels.size(); ++i) {
    rows.push_back(GetLangString(RowLabels[i]) + GetVehicleValue(static_cast<VehicleVariable>(i)));
  }
  // From the first row again, whichever was set.
  Items.SetRows(std::move(rows), 0);
  Items.Focus();
}

void NewVehicle() {
  const std::string path = CarManager::ChooseFileOfNewVehicle();
  if (path.empty()) return;
  TheVehicle() = {.VehicleFilePath = path, .VehicleData = VehicleLines::OfNewVehicle()};
  PerRun<NewCar>().Show();
}
