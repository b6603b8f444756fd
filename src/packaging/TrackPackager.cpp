#include "packaging/TrackPackager.h"

#include "base/PerRun.h"
#include "base/RuntimeError.h"
#include "game/Application.h"
#include "game/FileChoice.h"
#include "game/FileDialogs.h"
#include "packaging/Package.h"
#include "packaging/PackagingTexts.h"
#include "packaging/SKFileRecorder.h"
#include "packaging/TrkWavOptions.h"
#include "platform/Files.h"
#include "platform/LetterCase.h"
#include "platform/Paths.h"
#include "text/StringTable.h"
#include "tracks/TrackInWork.h"
#include "ui/Messages.h"

namespace TrackPackager {

namespace {

void RecordTrackSound() {
  SKFileRecorder::BeginTrackRecording(SKFileRecorder::NoDeviceYet, TrackDescription());
}

}  // namespace

void PackageTrack(bool descriptionReady) {
  if (!descriptionReady) {
    const std::string chosen = ChooseFile({.dialog = SharedDialogs().OpenTrack,
                                           .folder = Application::TrackFolder(),
                                           .noFileText = PackagingTexts.PAbortedNoTrackFileText,
                                           .noFileTitle = PackagingTexts.PAbortedNoTrackFileTitle,
                                           .noFileIcon = Platform::Icon::Information});
    if (chosen.empty()) return;
    // Before the user is asked to describe it.
    if (!Platform::FileExists(chosen)) throw RuntimeError(RuntimeError::FileNotFound, chosen);
    TheTrack().TrackPath = Platform::LowerCase(chosen);
    if (!Platform::FileExists(Package::DescriptionPathOf(TheTrack().TrackPath))) {
      return PerRun<TrkWavOptions>().Ask(OpenExistingTrackSound, RecordTrackSound);
    }
  }
  const std::string track = TheTrack().TrackPath;
  Package::PackAndDelete(track, {Package::DescriptionPathOf(track), track});
  TheTrack().TrackPath.clear();
  Messages::Show(
      GetLangString(PackagingTexts.PackageSuccessfulText) + " " + Package::ArchivePathOf(track),
      PackagingTexts.PackageSuccessfulTitle, Platform::Icon::Information);
}

void OpenExistingTrackSound() {
  const std::string& track = TheTrack().TrackPath;
  const std::string sound = ChooseFile({.dialog = SharedDialogs().OpenWav,
                                        .folder = Platform::FolderOf(track),
                                        .noFileText = PackagingTexts.PAbortedNoAudioFileText,
                                        .noFileTitle = PackagingTexts.PAbortedNoAudioFileTitle,
                                        .noFileIcon = Platform::Icon::Critical});
  if (sound.empty()) return;
  const std::string description = Package::DescriptionPathOf(track);
  // It may have come into its place meanwhile, and be chosen there.
  if (Platform::LowerCase(sound) != description) {
    Platform::CopyFileTo(sound, description, Platform::IfThere::Replace);
  }
  PackageTrack(true);
}

Description TrackDescription() {
  const std::string& track = TheTrack().TrackPath;
  if (track.empty() || !Platform::FileExists(track)) return {};
  return {.path = Package::DescriptionPathOf(track), .OnKept = [] { PackageTrack(true); }};
}

}  // namespace TrackPackager
