#include "internet/SK2Downloader.h"

#include <algorithm>
#include <exception>

#include "base/SharedTexts.h"
#include "internet/ComponentPlaces.h"
#include "internet/ComponentRecords.h"
#include "internet/Components.h"
#include "internet/Internet.h"
#include "internet/InternetTexts.h"
#include "internet/TemporaryFile.h"
#include "platform/Files.h"
#include "text/StringTable.h"
#include "ui/Messages.h"

namespace SK2Downloader {

namespace {

constexpr int NoListFile = 1;
constexpr int InvalidRecord = 2;

bool IsThereAfter(bool isFetched, const std::string& path) {
  return isFetched && Platform::FileExists(path);
}

}  // namespace

ComponentList ReadComponentList(const std::string& path) {
  std::string file;
  try {
    file = TemporaryFile::Read(path);
  } catch (const std::exception&) {
    return {"", NoListFile, GetLangString(InternetTexts.LstNonexistentListFile)};
  }
  ComponentRecords::Lines lines = ComponentRecords::LinesIn(file);
  if (lines.badLine == 0) return {std::move(lines.text), 0, ""};
  return {"", InvalidRecord,
          GetLangString(SharedTexts.Line) + " " + std::to_string(lines.badLine) + ", " +
              GetLangString(InternetTexts.LstInvalidComponentRecordFormat)};
}

std::optional<std::string> FetchComponentList(int kind) {
  using Platform::Icon;
  ComponentList list;
  {
    const TemporaryFile file("list.tmp");
    const bool isFetched =
        Internet::DownloadURLToFile(Components::ListUrlOf(kind), file.path(), true);
    if (!IsThereAfter(isFetched, file.path())) {
      Messages::Show(GetLangString(InternetTexts.DataRetrievalErrorText1) + " Orvane Interactive " +
                         GetLangString(InternetTexts.DataRetrievalErrorText2),
                     InternetTexts.DataRetrievalErrorTitle, Icon::Critical);
      return std::nullopt;
    }
    list = ReadComponentList(file.path());
  }
  if (list.errorCode == 0) return std::move(list.records);
  Messages::Show(GetLangString(Components::ListErrorTextOf(kind)) + " " + list.errorText,
                 Components::ListErrorTitleOf(kind), Icon::Critical);
  return std::nullopt;
}

std::optional<std::string> FindComponentFileName(const std::string& displayName, int kind) {
  for (int each = std::max(kind, 0); each < ComponentPlaces::Count; ++each) {
    const std::optional<std::string> records = FetchComponentList(each);
    if (!records) return std::nullopt;
    // Anywhere in the list, file names included: only a name of which there is no trace is looked
    // for elsewhere.
    if (records->find(displayName) == std::string::npos) continue;
    return ComponentRecords::FileNameOf(*records, displayName);
  }
  return "";
}

bool FetchArchive(int kind, const std::string& fileName, const std::string& path) {
  const std::string url = Components::ArchiveUrlOf(kind, fileName);
  return IsThereAfter(Internet::DownloadURLToFile(url, path, true), path);
}

}  // namespace SK2Downloader
