#include "vehicles/CarManager.h"

#include "game/Application.h"
#include "game/CheckReport.h"
#include "game/FileDialogs.h"
#include "ui/Messages.h"
#include "vehicles/VehicleChecker.h"
#include "vehicles/VehicleTexts.h"

namespace CarManager {

void CheckVehicleMenu() {
  Platform::FileDialog& dialog = SharedDialogs().OpenVehicle;
  dialog.initialFolder = Application::GameFolder() + "\\vehicles";
  const std::string path = dialog.Show();
  if (path.empty()) {
    // The same pair of texts as where a vehicle is saved, title included.
    Messages::Show(VehicleTexts.VehicleNoFileErrorText, VehicleTexts.VehicleNoFileErrorTitle,
                   Platform::Icon::Critical);
    return;
  }
  int32_t code = 0;
  std::string message;
  const int32_t result = CheckVehicleFile(path, code, message);
  CheckReport::Show(
      result, message,
      {.fileOk = VehicleTexts.VehicleFileOKMSGTitle, .syntaxError = VehicleTexts.SyntaxErrorTitle});
}

}  // namespace CarManager
