// The texts of the main window, the choosers and the About box.
#pragma once

#include "base/LangText.h"

struct AppTextTable {
  // The menu bar. Some keys differ from the names of the items.
  LangText XFile{"XFile", "&File"};
  LangText FClose{"FClose", "&Close"};
  LangText XVehicle{"XVehicle", "&Vehicle"};
  LangText VNew{"VNew", "&New"};
  LangText VCheck{"VCheck", "&Check .vhc file"};
  LangText VPackage{"VPackage", "&Package"};
  LangText XTrack{"XTrack", "&Track"};
  LangText TNew{"TNew", "&New"};
  LangText TRandom{"TRandom", "&Random Track"};
  LangText TCheck{"TCheck", "&Check .trk file"};
  LangText TPackage{"TPackage", "&Package"};
  LangText XLanguage{"XLanguage", "&Language"};
  LangText LChangeLang{"LChangeLang", "&Change current language"};
  LangText XInternet{"XInternet", "&Internet"};
  LangText IServerSelect{"IServerSelect", "&Select Server"};
  LangText IPersonalIPViewer{"IPersonalIPViewer", "Personal &IP Viewer"};
  LangText IPackageDownloader{"IPackageDownloader", "&Package Downloader"};
  LangText XGame{"XGame", "&Game"};
  LangText GRecordViewer{"GRecordViewer", "&Record Viewer"};
  LangText GCheckRecordFile{"GCheckRecordFile", "&Check Record File"};
  LangText XOptions{"XOptions", "&Options"};
  LangText OAutoUpdate{"OAutoUpdate", "Automatically update on startup"};
  LangText XHelp{"XHelp", "&Help"};
  LangText HViewDocs{"HViewDocs", "View &Documentation"};
  LangText HWebsites{"HWebsites", "&Visit Websites"};
  LangText HWGLW = FixedText("&Gloamworks");
  LangText HWORV = FixedText("&Orvane Interactive");
  LangText HCheckForUpdates{"HCheckForUpdates", "&Check for Updates"};
  LangText HAbout{"HAbout", "&About"};

  // The choosers.
  LangText Vehicle{"Vehicle", "Vehicle"};
  LangText Track{"Track", "Track"};
  LangText NewWhatTitle{"NewWhatTitle", "New what?"};
  LangText NewWhatPrompt{"NewWhatPrompt", "New:"};
  LangText PackageWhatTitle{"PackageWhatTitle", "Package what?"};
  LangText PackageWhatPrompt{"PackageWhatPrompt", "Package:"};
  LangText CheckWhatTitle{"CheckWhatTitle", "Check what?"};
  LangText CheckWhatText{"CheckWhatText", "Check:"};
  LangText RecFile{"RecFile", "Records file"};

  // The About box.
  LangText About{"About", "About"};
  LangText Information{"Information", "information"};
  LangText ExecutableFile{"ExecutableFile", "executable file"};
  LangText InstallationFoundAtLocation{"InstallationFoundAtLocation",
                                       "Installation found at location"};
  LangText Version{"Version", "Version"};
  LangText Publisher{"Publisher", "Publisher"};
  LangText AboutContact1{"AboutContact1", "Please contact"};
  LangText AboutContact2{"AboutContact2", "for queries about the pack and"};
  LangText AboutContact3{"AboutContact3", "for queries about the game."};
};
inline constexpr AppTextTable AppTexts;
