#include "e2e/Openings.h"

namespace E2e {
namespace {

void OpenTrackEditor(Pack& pack) {
  pack.ChooseMenu({"Track", "New"});
  pack.ChooseFile("keyboard");
  pack.WaitForWindow("SK2 Trackmaker by Orvane Interactive");
}

void OpenVehicleEditor(Pack& pack) {
  pack.ChooseMenu({"Vehicle", "New"});
  pack.ChooseFile("keyboard");
  pack.WaitForWindow("Create Vehicle");
}

void OpenTrackOptions(Pack& pack) {
  pack.ChooseMenu({"Track", "Package"});
  pack.ChooseFile("hill.trk");
  pack.WaitForWindow("Track description sound doesn't exist. What to do?");
}

void WaitForMainWindow(Pack& pack) {
  pack.WaitForMain();
}

// Where leaving is told.
void AnswerAborted(Pack& pack) {
  pack.AnswerBox();
  pack.WaitForMain();
}

}  // namespace

void PrintTo(const Opening& opening, std::ostream* out) {
  *out << opening.form;
}

std::vector<Opening> Openings() {
  const auto press = [](const char* keys) { return [keys](Pack& pack) { pack.Press(keys); }; };
  return {
      {"NewWhat", "New what?", press("Ctrl+N"), WaitForMainWindow},
      {"PackageWhat", "Package what?", press("Ctrl+P"), WaitForMainWindow},
      {"CheckWhat", "Check what?", press("Ctrl+C"), WaitForMainWindow},
      {"HighScores", "Record Viewer",
       [](Pack& pack) {
         pack.ChooseMenu({"Game", "Record Viewer"});
       },
       WaitForMainWindow},
      {"LanguageChanger", "Change current language",
       [](Pack& pack) {
         pack.ChooseMenu({"Language", "Change current language"});
       },
       WaitForMainWindow},
      {"ServerManager", "Select Server",
       [](Pack& pack) {
         pack.ChooseMenu({"Internet", "Select Server"});
       },
       WaitForMainWindow},
      {"Trackmaker", "SK2 Trackmaker by Orvane Interactive", OpenTrackEditor, WaitForMainWindow},
      {"TrackParts", "New track part",
       [](Pack& pack) {
         OpenTrackEditor(pack);
         pack.Press("Ctrl+Shift+N");
       },
       [](Pack& pack) {
         pack.WaitForWindow("SK2 Trackmaker by Orvane Interactive");
         pack.Press("Escape");
         pack.WaitForMain();
       }},
      {"NewCar", "Create Vehicle", OpenVehicleEditor, WaitForMainWindow},
      {"InternalCars", "Select Internal Sound:",
       [](Pack& pack) {
         OpenVehicleEditor(pack);
         pack.Press("Alt+S");
         pack.AnswerBox("Y");
       },
       [](Pack& pack) {
         pack.WaitForWindow("Create Vehicle");
         pack.Press("Escape");
         pack.WaitForMain();
       }},
      {"TrkWavOptions", "Track description sound doesn't exist. What to do?", OpenTrackOptions,
       AnswerAborted},
      {"VhcWavOptions", "Vehicle description sound doesn't exist. What to do?",
       [](Pack& pack) {
         pack.ChooseMenu({"Vehicle", "Package"});
         pack.ChooseFile("Hornet\\Hornet.vhc");
       },
       AnswerAborted},
      {"AudioDevice", "Choose recording device",
       [](Pack& pack) {
         OpenTrackOptions(pack);
         pack.Press("Down");
         pack.Press("Enter");
       },
       AnswerAborted},
      {"IPView", "Personal IP Viewer",
       [](Pack& pack) {
         pack.ChooseMenu({"Internet", "Personal IP Viewer"});
       },
       WaitForMainWindow},
      {"PackageDownloader", "SK2 Package Downloader",
       [](Pack& pack) {
         pack.ChooseMenu({"Internet", "Package Downloader"});
       },
       WaitForMainWindow},
      {"FileList", "Download directory",
       [](Pack& pack) {
         pack.ChooseMenu({"Internet", "Package Downloader"});
         pack.WaitForWindow("SK2 Package Downloader");
         pack.Press("Enter");
       },
       WaitForMainWindow},
      {"InputBox", "Parts",
       [](Pack& pack) {
         pack.ChooseMenu({"Track", "Random Track"});
         pack.ChooseFile("keyboard");
         pack.AnswerBox("N");
       },
       AnswerAborted},
  };
}

}  // namespace E2e
