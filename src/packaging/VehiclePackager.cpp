#include "packaging/VehiclePackager.h"

#include "base/PerRun.h"
#include "base/RuntimeError.h"
#include "game/Application.h"
#include "game/FileChoice.h"
#include "game/FileDialogs.h"
#include "packaging/Package.h"
#include "packaging/PackagingTexts.h"
#include "packaging/SKFileRecorder.h"
#include "packaging/TrackPackager.h"
#include "packaging/VehicleSounds.h"
#include "packaging/VhcWavOptions.h"
#include "platform/Files.h"
#include "platform/LetterCase.h"
#include "platform/Paths.h"
#include "text/StringTable.h"
#include "ui/Messages.h"

namespace VehiclePackager {

namespace {

struct VehicleBeingPackaged {
  std::string VehiclePath;  // in lower case; empty until one was chosen
};

std::string& VehiclePath() {
  return PerRun<VehicleBeingPackaged>().VehiclePath;
}

void RecordVehicleSound() {
  SKFileRecorder::BeginVehicleRecording(
      SKFileRecorder::NoDeviceYet,
      {.path = Package::DescriptionPathOf(VehiclePath()), .OnKept = [] { PackageVehicle(true); }},
      TrackPackager::TrackDescription());
}

void TellMissing(VehicleVariable sound) {
  const auto tell = [](const LangText& text, const LangText& title) {
    Messages::Show(text, title, Platform::Icon::Critical);
  };
  const auto& texts = PackagingTexts;
  switch (sound) {
    case VehicleVariable::EngineSound:
      return tell(texts.EngineFileNonexistentText, texts.EngineFileNonexistentTitle);
    case VehicleVariable::ThrottleSound:
      return tell(texts.ThrottleFileNonexistentText, texts.ThrottleFileNonexistentTitle);
    case VehicleVariable::StartSound:
      return tell(texts.StartFileNonexistentText, texts.StartFileNonexistentTitle);
    default: return tell(texts.HornFileNonexistentText, texts.HornFileNonexistentTitle);
  }
}

}  // namespace

void PackageVehicle(bool descriptionReady) {
  if (!descriptionReady) {
    const std::string chosen =
        ChooseFile({.dialog = SharedDialogs().OpenVehicle,
                    .folder = Application::VehicleFolder(),
                    .noFileText = PackagingTexts.CPackagerAbortedNoVhcFileSelected,
                    .noFileTitle = PackagingTexts.Aborted,
                    .noFileIcon = Platform::Icon::Information});
    if (chosen.empty()) return;
    // Before the user is asked to describe it.
    if (!Platform::FileExists(chosen)) throw RuntimeError(RuntimeError::FileNotFound, chosen);
    VehiclePath() = Platform::LowerCase(chosen);
    if (!Platform::FileExists(Package::DescriptionPathOf(VehiclePath()))) {
      return PerRun<VhcWavOptions>().Ask(OpenExistingVehicleSound, RecordVehicleSound);
    }
  }
  const std::string vehicle = VehiclePath();
  std::vector<std::string> files{Package::DescriptionPathOf(vehicle), vehicle};
  for (const auto& sound : VehicleSounds::FilesOf(vehicle)) {
    if (!Platform::FileExists(sound.path)) return TellMissing(sound.variable);
    if (!sound.isInside) {
      throw RuntimeError(RuntimeError::InvalidCall, PackagingTexts.SoundOutsideVehicleFolder,
                         sound.path);
    }
    files.push_back(sound.path);
  }
  Package::PackAndDelete(vehicle, files);
  Messages::Show(
      GetLangString(PackagingTexts.CPackagerSuccessfulText) + " " + Package::ArchivePathOf(vehicle),
      PackagingTexts.CPackagerSuccessfulTitle, Platform::Icon::Information);
}

void OpenExistingVehicleSound() {
  const std::string sound = ChooseFile({.dialog = SharedDialogs().OpenWav,
                                        .folder = Platform::FolderOf(VehiclePath()),
                                        .noFileText = PackagingTexts.CPackagerAbortedNoWaveFileText,
                                        .noFileTitle = PackagingTexts.Aborted,
                                        .noFileIcon = Platform::Icon::Critical});
  if (sound.empty()) return;
  const std::string description = Package::DescriptionPathOf(VehiclePath());
  if (!Platform::FileExists(description)) Platform::CopyFileTo(sound, description);
  PackageVehicle(true);
}

}  // namespace VehiclePackager
