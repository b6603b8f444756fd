#include "app/SK2UtilityPack.h"

#include <exception>
#include <functional>

#include "app/AppTexts.h"
#include "app/CheckWhat.h"
#include "app/Interface.h"
#include "app/NewWhat.h"
#include "app/PackageWhat.h"
#include "app/Program.h"
#include "base/PerRun.h"
#include "game/FileDialogs.h"
#include "platform/NamedMutex.h"
#include "platform/Sound.h"
#include "update/AutoUpdate.h"
#include "update/Updater.h"

namespace {

// Nothing that fails at the start keeps the user from the rest of the program.
void Try(const std::function<void()>& step) {
  try {
    step();
  } catch (const std::exception&) {
    return;
  }
}

// The three shortcuts stand in the menus of vehicles and of tracks alike: they open a chooser.
constexpr const char* CtrlN = " (CTRL+N)";
constexpr const char* CtrlC = " (CTRL+C)";
constexpr const char* CtrlP = " (CTRL+P)";

}  // namespace

SK2UtilityPack::SK2UtilityPack()
    : Form(FixedText(Program::Name), {.isResizable = true, .isDialog = false}),
      XFile(*this, {.text = AppTexts.XFile}),
      FClose(XFile, {.text = AppTexts.FClose, .suffix = " (Alt+F4)"}),
      XVehicles(*this, {.text = AppTexts.XVehicle}),
      VNew(XVehicles, {.text = AppTexts.VNew, .suffix = CtrlN}),
      VCheck(XVehicles, {.text = AppTexts.VCheck, .suffix = CtrlC}),
      VPackage(XVehicles, {.text = AppTexts.VPackage, .suffix = CtrlP}),
      XTrack(*this, {.text = AppTexts.XTrack}),
      TNew(XTrack, {.text = AppTexts.TNew, .suffix = CtrlN}),
      TRandom(XTrack, {.text = AppTexts.TRandom}),
      TCheck(XTrack, {.text = AppTexts.TCheck, .suffix = CtrlC}),
      TPackage(XTrack, {.text = AppTexts.TPackage, .suffix = CtrlP}),
      XLanguagePack(*this, {.text = AppTexts.XLanguage}),
      LPChangeLang(XLanguagePack, {.text = AppTexts.LChangeLang}),
      XInternet(*this, {.text = AppTexts.XInternet}),
      IServerSelect(XInternet, {.text = AppTexts.IServerSelect}),
      IPersonalIPViewer(XInternet, {.text = AppTexts.IPersonalIPViewer}),
      IPackageDownloader(XInternet, {.text = AppTexts.IPackageDownloader}),
      XGame(*this, {.text = AppTexts.XGame}),
      GHighScores(XGame, {.text = AppTexts.GRecordViewer}),
      GCheckScoreFile(XGame, {.text = AppTexts.GCheckRecordFile}),
      XOptions(*this, {.text = AppTexts.XOptions}),
      OAutoUpdate(XOptions, {.text = AppTexts.OAutoUpdate}),
      XHelp(*this, {.text = AppTexts.XHelp}),
      HViewDocs(XHelp, {.text = AppTexts.HViewDocs}),
      HWebsites(XHelp, {.text = AppTexts.HWebsites}),
      HWGLW(HWebsites, {.text = AppTexts.HWGLW}),
      HWORV(HWebsites, {.text = AppTexts.HWORV}),
      HCheckForUpdates(XHelp, {.text = AppTexts.HCheckForUpdates}),
      HAbout(XHelp, {.text = AppTexts.HAbout}) {
  OnLoad = [this] { Form_Load(); };
  OnKeyDown = [this](Platform::KeyEvent& key) { Form_KeyDown(key); };
  // Of the main window: the program ends with it.
  FClose.OnClick = [this] { Unload(); };
  VNew.OnClick = Interface::NewVehicle;
  VCheck.OnClick = Interface::CheckVehicle;
  VPackage.OnClick = Interface::PackageVehicle;
  TNew.OnClick = Interface::NewTrack;
  TRandom.OnClick = Interface::RandomTrack;
  TCheck.OnClick = Interface::CheckTrack;
  TPackage.OnClick = Interface::PackageTrack;
  LPChangeLang.OnClick = Interface::ChangeLanguage;
  IServerSelect.OnClick = Interface::SelectServer;
  IPersonalIPViewer.OnClick = Interface::ViewPersonalIP;
  IPackageDownloader.OnClick = Interface::DownloadPackages;
  GHighScores.OnClick = Interface::ViewRecords;
  GCheckScoreFile.OnClick = Interface::CheckRecords;
  HViewDocs.OnClick = Interface::ViewDocumentation;
  HWGLW.OnClick = Interface::VisitPublisher;
  HWORV.OnClick = Interface::VisitMaker;
  OAutoUpdate.OnClick = [this] { OAutoUpdate_Click(); };
  HCheckForUpdates.OnClick = Interface::CheckForUpdates;
  HAbout.OnClick = Interface::ShowAbout;
}

void SK2UtilityPack::Form_Load() {
  Try([] { Updater::RemoveLeftOverUpdater(); });
  Try([this] { OAutoUpdate.SetChecked(Updater::ReadAutoUpdateSetting()); });
  // Before anything is shown: a version that is about to be replaced need not begin.
  Try([] {
    if (Updater::IsAutoUpdateOn()) Updater::CheckForUpdates(true);
  });
  if (Platform::HasProgramEnded()) return;
  // Where the version cannot be read, the bare name of the program stays in the title.
  Try([this] { SetTitle(Program::Title(Platform::ReadProgramVersion())); });
  Try([] { Platform::HoldNamedMutex("ORVSK2Pack"); });
  // The device belongs to this window, which is there by now. Without a device there is no sound
  // test, and all else works; the test tells why, so the start need not.
  Try(Platform::OpenSoundDevice);
  Try(TranslateSharedDialogs);
  Try([this] { TranslateMenu(); });
}

void SK2UtilityPack::OAutoUpdate_Click() {
  Updater::ToggleAutoUpdate();
  OAutoUpdate.SetChecked(Updater::IsAutoUpdateOn());
}

void SK2UtilityPack::Form_KeyDown(Platform::KeyEvent& key) {
  // Ctrl alone: with Shift or Alt as well the keys belong to screen readers and other programs.
  if (key.shift != Platform::Shift::Ctrl) return;
  key.isHandled = true;
  switch (key.code) {
    case 'N': return PerRun<NewWhat>().Show();
    case 'P': return PerRun<PackageWhat>().Show();
    case 'C': return PerRun<CheckWhat>().Show();
    default: key.isHandled = false;
  }
}
