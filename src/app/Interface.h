// The actions behind the menu items and the entries of the choosers. Each hands over to the tool
// that does the work, over the window in use or in its place, and fails as that does.
#pragma once

namespace Interface {

void NewVehicle();
void CheckVehicle();
void PackageVehicle();

void NewTrack();
void RandomTrack();
void CheckTrack();
void PackageTrack();

// The language changer takes the main window's place, unless no language is installed.
void ChangeLanguage();

void SelectServer();
// The viewer of the user's public address takes the main window's place, if the computer is online.
void ViewPersonalIP();

// The package downloader takes the main window's place, if the computer is online.
void DownloadPackages();

// The record viewer takes the main window's place, unless there are no records.
void ViewRecords();
void CheckRecords();

// Looks for a newer version of the pack, and tells what comes of it.
void CheckForUpdates();

// Opens the help file beside the program, or a web site. If that cannot be, the system tells the
// user; the pack reports nothing.
void ViewDocumentation();
void VisitPublisher();
void VisitMaker();
void ShowAbout();

}  // namespace Interface
