// The main window: a menu bar, and the start and the end of the program.
#pragma once

#include "ui/Forms.h"

class SK2UtilityPack final : public Platform::Form {
 public:
  SK2UtilityPack();

 private:
  Platform::MenuItem XFile, FClose;
  Platform::MenuItem XVehicles, VNew, VCheck, VPackage;
  Platform::MenuItem XTrack, TNew, TRandom, TCheck, TPackage;
  Platform::MenuItem XLanguagePack, LPChangeLang;
  Platform::MenuItem XInternet, IServerSelect, IPersonalIPViewer, IPackageDownloader;
  Platform::MenuItem XGame, GHighScores, GCheckScoreFile;
  Platform::MenuItem XOptions, OAutoUpdate;
  Platform::MenuItem XHelp, HViewDocs, HWebsites, HWGLW, HWORV, HCheckForUpdates, HAbout;

  // The whole start-up. A step that fails is skipped.
  void Form_Load();
  void OAutoUpdate_Click();  // the check mark follows the option
  // Ctrl+N, Ctrl+P and Ctrl+C, with Ctrl alone, open the choosers.
  void Form_KeyDown(Platform::KeyEvent& key);
};
