#include "vehicles/InternalCars.h"

#include <utility>
#include <vector>

#include "vehicles/InternalSounds.h"

namespace {

// A variable that holds no sound is offered what the horn is: such a question never came up, and
// this is what the game's makers let it be.
std::vector<std::string> NamesFor(VehicleVariable variable) {
  for (const InternalSoundKind& kind : InternalSoundKinds) {
    if (kind.variable == variable) return {kind.names.begin(), kind.names.end()};
  }
  return {InternalVehicleNames.begin(), InternalVehicleNames.end()};
}

}  // namespace

InternalCars::InternalCars() : Form(VehicleTexts.InternalSoundsTitle, {.isResizable = true}) {
  Sounds.OnDoubleClick = [this] { Submit_Click(); };
  Submit.OnClick = [this] { Submit_Click(); };
  Ccl.OnClick = [this] { Ccl_Click(); };
}

void InternalCars::ShowFor(VehicleVariable variable,
                           std::function<void(const std::string& name)> onChosen) {
  onChosen_ = std::move(onChosen);
  Sounds.SetRows(NamesFor(variable), 0);
  Show();
}

void InternalCars::Submit_Click() {
  // Another program, such as a screen reader, can leave the list with no row selected.
  if (Sounds.selected() < 0) return;
  const std::string name = Sounds.row(Sounds.selected());
  // First: the opener's list takes the focus, and must be on the screen to be heard.
  Unload();
  onChosen_(name);
}

void InternalCars::Ccl_Click() {
  Unload();
}
