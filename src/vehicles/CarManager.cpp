#include "vehicles/CarManager.h"

#include "game/Application.h"
#include "game/CheckReport.h"
#include "game/FileChoice.h"
#include "game/FileDialogs.h"
#include "platform/Files.h"
#include "ui/Messages.h"
#include "vehicles/VehicleChecker.h"
#include "vehicles/VehicleInWork.h"
#include "vehicles/VehicleLines.h"
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

std::string ChooseFileOfNewVehicle() {
  // The dialog adds the extension, and so it asks about the very file that would be replaced.
  return ChooseFile({.dialog = SharedDialogs().SaveVehicle,
                     .folder = Application::VehicleFolder(),
                     .noFileText = VehicleTexts.VehicleNoFileErrorText,
                     .noFileTitle = VehicleTexts.VehicleNoFileErrorTitle,
                     .noFileIcon = Platform::Icon::Critical});
}

void SaveVehicleFile(const std::string& path) {
  const std::string bytes = VehicleLines::ForFile(TheVehicle().VehicleData);
  if (bytes.empty()) {
    Messages::Show(VehicleTexts.VehicleNoValuesText, VehicleTexts.VehicleNoFileErrorTitle,
                   Platform::Icon::Critical);
    return;
  }
  Platform::WriteWholeFile(path, bytes);
  Messages::Show(VehicleTexts.VehicleFileSavedText, VehicleTexts.VehicleFileSavedTitle,
                 Platform::Icon::Information);
}

}  // namespace CarManager
