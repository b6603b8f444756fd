#include "app/Interface.h"

#include "app/About.h"
#include "app/Addresses.h"
#include "app/AppTexts.h"
#include "app/CheckWhat.h"
#include "app/NewWhat.h"
#include "app/PackageWhat.h"
#include "base/PerRun.h"
#include "platform/Executable.h"
#include "platform/ShellOpen.h"
#include "records/HighScores.h"
#include "records/RecordManager.h"
#include "text/Messages.h"
#include "tracks/RandomTrackmaker.h"
#include "tracks/TrackManager.h"
#include "vehicles/CarManager.h"

namespace Interface {

void ChooseNew() {
  PerRun<NewWhat>().Show();
}
void ChoosePackage() {
  PerRun<PackageWhat>().Show();
}
void ChooseCheck() {
  PerRun<CheckWhat>().Show();
}

void CheckVehicle() {
  CarManager::CheckVehicleMenu();
}

void NewTrack() {
  TrackManager::NewTrack();
}
void RandomTrack() {
  RandomTrackmaker::RandomTrack();
}
void CheckTrack() {
  TrackManager::CheckTrackMenu();
}

void ViewRecords() {
  ShowRecordViewer();
}
void CheckRecords() {
  RecordManager::CheckRecordsMenu();
}

void ViewDocumentation() {
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

void TellNotAvailable() {
  Messages::Show(AppTexts.NotAvailableText, AppTexts.NotAvailableTitle,
                 Platform::Icon::Information);
}

}  // namespace Interface
