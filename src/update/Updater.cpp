#include "update/Updater.h"

#include <exception>

#include "base/SharedTexts.h"
#include "base/Text.h"
#include "game/Addresses.h"
#include "internet/Internet.h"
#include "internet/TemporaryFile.h"
#include "platform/Executable.h"
#include "platform/Files.h"
#include "platform/Launch.h"
#include "text/StringTable.h"
#include "ui/Forms.h"
#include "ui/Messages.h"
#include "update/UpdateTexts.h"
#include "update/Versions.h"

namespace Updater {

namespace {

// Nothing is asked, no box is shown, and it cannot be cancelled.
constexpr const char* SilentSwitches = "/SP- /SILENT /SUPPRESSMSGBOXES /NOCANCEL";

std::string UpdaterPathIn(const std::string& folder) {
  return folder + "\\orv" + Platform::ExecutableName() + "updater.exe";
}

// What is told of a code that stands in place of a version; null for a version.
const LangText* TextOfCode(const std::string& record) {
  if (record == Versions::NotConnected) return &UpdateTexts.GVNotConnected;
  if (record == Versions::NoVersion) return &UpdateTexts.GVNoVersion;
  if (record == Versions::NoVersionFile) return &UpdateTexts.GVNoVersionFile;
  if (record == Versions::InvalidVersionFile) return &UpdateTexts.GVInvalidVersionFile;
  return nullptr;
}

std::string LookUpVersion(const std::string& url, const std::string& product,
                          const std::string& separator) {
  if (!Internet::IsInternetConnected()) return Versions::NotConnected;
  if (!Internet::URLExists(url)) return Versions::NoVersionFile;
  const TemporaryFile records("version.tmp");
  // Whether that went well is seen from the file.
  Internet::DownloadURLToFile(url, records.path(), true);
  return Versions::VersionIn(records.Read(), product, separator);
}

}  // namespace

std::string UpdaterPath() {
  return UpdaterPathIn(Platform::ProgramFolder());
}

void RemoveLeftOverUpdater() {
  // The installer starts the new version as the last thing that it does.
  Platform::RemoveFileOfEndingProgram(UpdaterPath());
}

std::string GetVersionRecord(const std::string& url, const std::string& product,
                             const std::string& separator) {
  try {
    return LookUpVersion(url, product, separator);
  } catch (const std::exception&) {
    return Versions::NoVersionFile;
  }
}

void CheckForUpdates(bool isSilent) {
  using Platform::Icon;
  const auto tell = [isSilent](const LangText& text, const LangText& title, Icon icon) {
    if (!isSilent) Messages::Show(text, title, icon);
  };
  const std::string server = Addresses::MakerServer;
  const std::string version =
      GetVersionRecord(server + Versions::RecordsPath, Versions::Product, Versions::Separator);
  if (const LangText* text = TextOfCode(version)) {
    return tell(*text, SharedTexts.Error, Icon::Critical);
  }
  const Versions::Comparison comparison =
      Versions::Compare(version, Platform::ReadProgramVersion());
  switch (comparison) {
    case Versions::Same:
    case Versions::Older:
      return tell(UpdateTexts.NoUpdateAvailable, UpdateTexts.Information, Icon::Information);
    case Versions::Invalid:
      return tell(UpdateTexts.CVInvalidVersion, SharedTexts.Error, Icon::Critical);
    case Versions::Newer: break;
  }
  // The result of the comparison stands where a version is meant: players have always been told
  // that version 1 is available, and what they are asked reads as they know it.
  if (!ShowUpdatePrompt(std::to_string(comparison))) return;
  try {
    RunUpdater(server + Versions::InstallerPath, Platform::ProgramFolder(), true);
  } catch (const std::exception&) {
    // The user has asked for it and waits: told here, since at the start failures are passed over.
    Platform::TellFailure();
  }
}

bool ShowUpdatePrompt(const std::string& available) {
  const Platform::ProgramVersion own = Platform::ReadProgramVersion();
  const std::string lineEnd(Text::LineEnd);
  std::string text = GetLangString(UpdateTexts.UpdateText1) + " " + own.productName + "." + lineEnd;
  text += GetLangString(UpdateTexts.CurrentVersion) + ": " + std::to_string(own.major) + "." +
          std::to_string(own.minor) + "." + std::to_string(own.revision) + lineEnd;
  text += GetLangString(UpdateTexts.VersionAvailable) + ": " + available + lineEnd;
  text += GetLangString(UpdateTexts.UpdateText2);
  return Messages::Ask(text, UpdateTexts.UpdateTitle, Platform::Buttons::YesNo);
}

void RunUpdater(const std::string& url, const std::string& folder, bool areSwitchesSilent) {
  if (!Internet::URLExists(url)) {
    const std::string text = GetLangString(UpdateTexts.ErrorUpdatingText1) + " " +
                             Platform::ReadProgramVersion().productName + ". " +
                             GetLangString(UpdateTexts.ErrorUpdatingText2);
    return Messages::Show(text, UpdateTexts.ErrorUpdatingTitle, Platform::Icon::Critical);
  }
  const std::string updater = UpdaterPathIn(folder);
  // Only what is fetched now may be started, never what lay there before: if that stays, it ends
  // here.
  Platform::RemoveFile(updater);
  // The result is not looked at. Nothing to start is told by the start, and an installer that came
  // in part sees that for itself.
  Internet::DownloadURLToFile(url, updater, true);
  Platform::LaunchMinimised(updater, areSwitchesSilent ? SilentSwitches : "");
  Platform::EndProgram();
}

}  // namespace Updater
