#include "vehicles/CarManager.h"

#include "game/Application.h"
#include "game/CheckReport.h"
#include "game/FileChoice.h"
#include "game/FileDialogs.h"
#include "vehicles/VehicleChecker.h"
#include "vehicles/VehicleTexts.h"

namespace CarManager {

void CheckVehicleMenu() {
  // Without a choice, the box has the texts of where a vehicle is saved, title included.
  const std::string path = ChooseFile({.dialog = SharedDialogs().OpenVehicle,
                                       .folder = Application::VehicleFolder(),
                                       .noFileText = VehicleTexts.VehicleNoFileErrorText,
                                       .noFileTitle = VehicleTexts.VehicleNoFileErrorTitle,
                                       .noFileIcon = Platform::Icon::Critical});
  if (path.empty()) return;
  int32_t code = 0;
  std::string message;
  const int32_t result = CheckVehicleFile(path, code, message);
  CheckReport::Show(
      result, message,
      {.fileOk = VehicleTexts.VehicleFileOKMSGTitle, .syntaxError = VehicleTexts.SyntaxErrorTitle});
}

}  // namespace CarManager
