#include "app/Interface.h"

#include "app/About.h"
#include "base/PerRun.h"
#include "game/Addresses.h"
#include "internet/IPView.h"
#include "internet/PackageDownloader.h"
#include "internet/ServerManager.h"
#include "language/LanguageChanger.h"
#include "packaging/TrackPackager.h"
#include "packaging/VehiclePackager.h"
#include "platform/Executable.h"
#include "platform/ShellOpen.h"
#include "records/HighScores.h"
#include "records/RecordManager.h"
#include "tracks/RandomTrackmaker.h"
#include "tracks/TrackManager.h"
#include "tracks/Trackmaker.h"
#include "update/Updater.h"
#include "vehicles/CarManager.h"
#include "vehicles/NewCar.h"

namespace Interface {

void NewVehicle() {
  ::NewVehicle();
}
void CheckVehicle() {
  CarManager::CheckVehicleMenu();
}
void PackageVehicle() {
  VehiclePackager::PackageVehicle(false);
}

void NewTrack() {
  ::NewTrack();
}
void RandomTrack() {
  RandomTrackmaker::RandomTrack();
}
void CheckTrack() {
  TrackManager::CheckTrackMenu();
}
void PackageTrack() {
  TrackPackager::PackageTrack(false);
}

void ChangeLanguage() {
  ShowLanguageChanger();
}

void SelectServer() {
  PerRun<ServerManager>().LoadIPList();
}

void ViewPersonalIP() {
  ShowPersonalIPViewer();
}

void DownloadPackages() {
  ShowPackageDownloader();
}

void ViewRecords() {
  ShowRecordViewer();
}
void CheckRecords() {
  RecordManager::CheckRecordsMenu();
}

void CheckForUpdates() {
  Updater::CheckForUpdates(false);
}

void ViewDocumentation() {
  // By its full path: the shell looks for a bare name in the current folder and along the path,
  // where somebody else may have put a file of that name.
  Platform::ShellOpen(Platform::ProgramFolder() + "\\sk2pack.chm");
}
void VisitPublisher() {
  Platform::ShellOpen(Addresses::PublisherSite);
}
void VisitMaker() {
  Platform::ShellOpen(Addresses::MakerSite);
}
void ShowAbout() {
  About::ShowAbout();
}

}  // namespace Interface
