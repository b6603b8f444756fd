#include "internet/FileList.h"

#include <utility>

#include "archive/Extraction.h"
#include "base/PerRun.h"
#include "internet/ComponentPlaces.h"
#include "internet/Components.h"
#include "internet/Progress.h"
#include "internet/SK2Downloader.h"
#include "internet/TemporaryFile.h"
#include "text/StringTable.h"
#include "ui/Messages.h"

namespace {

void TellDownloadError(const std::string& fileName) {
  Messages::Show(GetLangString(InternetTexts.FileDownloadErrorText1) + " " + fileName + " " +
                     GetLangString(InternetTexts.FileDownloadErrorText2) + " Orvane-Interactive.",
                 InternetTexts.FileDownloadErrorTitle, Platform::Icon::Critical);
}

// A list with CR LF, or without a last line feed, leaves one there. It would get into the address,
// and into the name of a folder.
std::string WithoutCarriageReturn(std::string fileName) {
  while (fileName.ends_with('\r')) fileName.pop_back();
  return fileName;
}

// False if the archive cannot be had. What was fetched is gone in any case.
bool FetchAndUnpack(int kind, const std::string& fileName, const std::string& folder,
                    Progress& progress) {
  const TemporaryFile archive("temp.zip");
  progress.ShowStep(InternetTexts.DownloadingTitle);
  if (!SK2Downloader::FetchArchive(kind, fileName, archive.path())) return false;
  progress.ShowStep(InternetTexts.UnpackingTitle);
  Archive::Extract(archive.path(), folder, "");
  return true;
}

}  // namespace

FileList::FileList() : Form(InternetTexts.FileListTitle, {.isResizable = true}) {
  Selection.OnDoubleClick = [this] { Submit_Click(); };
  Submit.OnClick = [this] { Submit_Click(); };
  SelectComponent.OnClick = [this] { SelectComponent_Click(); };
  Ccl.OnClick = [this] { Ccl_Click(); };
}

void FileList::ShowFiles(int kind, std::vector<std::string> displayNames,
                         std::function<void()> showComponents) {
  kind_ = kind;
  showComponents_ = std::move(showComponents);
  Selection.SetRows(std::move(displayNames), 0);
  Selection.Focus();
  Show();
}

void FileList::DownloadComponent(const std::string& fileName, int kind) {
  if (!ComponentPlaces::IsKind(kind)) {
    Messages::Show(InternetTexts.InvalidComponentText, InternetTexts.InvalidComponentTitle,
                   Platform::Icon::Critical);
    return Ccl_Click();
  }
  const std::string name = WithoutCarriageReturn(fileName);
  if (!ComponentPlaces::IsInstallable(kind, name)) {
    TellDownloadError(name);
    return BackToComponents();
  }
  // Before anything is fetched, in case that the game is not installed.
  const std::string folder = Components::TargetFolderOf(kind, name);
  auto& progress = PerRun<Progress>();
  Leave();
  try {
    if (FetchAndUnpack(kind, name, folder, progress)) {
      Selection.Clear();
      Messages::Show(InternetTexts.DownloadSuccessfulText, InternetTexts.DownloadSuccessfulTitle,
                     Platform::Icon::Information);
      return progress.Unload();
    }
    TellDownloadError(name);
  } catch (...) {
    // The failure is told over the window that stays.
    progress.Leave();
    BackToComponents();
    throw;
  }
  progress.Leave();
  BackToComponents();
}

void FileList::Submit_Click() {
  if (Selection.selected() < 0) return;
  const std::string displayName = Selection.row(Selection.selected());
  const auto fileName = SK2Downloader::FindComponentFileName(displayName, kind_);
  if (!fileName) return Ccl_Click();
  DownloadComponent(*fileName, kind_);
}

void FileList::SelectComponent_Click() {
  BackToComponents();
}

void FileList::Ccl_Click() {
  Selection.Clear();
  Unload();
}

void FileList::BackToComponents() {
  Selection.Clear();
  // The list has gone, so that the window of kinds is opened by the opener that the list had.
  Leave();
  if (showComponents_) showComponents_();
}
