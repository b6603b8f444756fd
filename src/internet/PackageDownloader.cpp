#include "internet/PackageDownloader.h"

#include <optional>
#include <string>
#include <vector>

#include "base/PerRun.h"
#include "internet/ComponentPlaces.h"
#include "internet/ComponentRecords.h"
#include "internet/Components.h"
#include "internet/ConnectionCheck.h"
#include "internet/FileList.h"
#include "internet/SK2Downloader.h"
#include "text/StringTable.h"

PackageDownloader::PackageDownloader()
    : Form(InternetTexts.PackageDownloaderTitle, {.isResizable = true}) {
  OnLoad = [this] { Form_Load(); };
  Selection.OnDoubleClick = [this] { Submit_Click(); };
  Submit.OnClick = [this] { Submit_Click(); };
  Ccl.OnClick = [this] { Ccl_Click(); };
}

void PackageDownloader::Open() {
  // It may have stayed loaded behind the list of files.
  Selection.Select(0);
  Selection.Focus();
  Show();
}

void PackageDownloader::ShowComponentFiles(int kind) {
  const std::optional<std::string> records = SK2Downloader::FetchComponentList(kind);
  if (!records) return Unload();
  // It stays loaded, with the kind selected, for when the user comes back to choose another.
  Leave();
  PerRun<FileList>().ShowFiles(kind, ComponentRecords::DisplayNames(*records), [this] { Show(); });
}

void PackageDownloader::Form_Load() {
  std::vector<std::string> kinds;
  kinds.reserve(ComponentPlaces::Count);
  for (int kind = 0; kind < ComponentPlaces::Count; ++kind) {
    kinds.push_back(GetLangString(Components::NameOf(kind)));
  }
  Selection.SetRows(std::move(kinds), 0);
}

void PackageDownloader::Submit_Click() {
  if (ComponentPlaces::IsKind(Selection.selected())) ShowComponentFiles(Selection.selected());
}

void PackageDownloader::Ccl_Click() {
  Unload();
}

void ShowPackageDownloader() {
  if (IsOnlineOrTold()) PerRun<PackageDownloader>().Open();
}
