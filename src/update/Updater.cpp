#include "update/Updater.h"

#include <exception>
#include <optional>

#include "base/SharedTexts.h"
#include "base/Text.h"
#include "game/Addresses.h"
#include "internet/Internet.h"
#include "internet/TemporaryFile.h"
#include "platform/Executable.h"
#include "platform/FileGuard.h"
#include "platform/Files.h"
#include "platform/Launch.h"
#include "platform/Web.h"
#include "text/StringTable.h"
#include "ui/Forms.h"
#include "ui/Messages.h"
#include "update/InstallerSignature.h"
#include "update/UpdateKey.h"
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

void TellError(const LangText& what) {
  const std::string text = GetLangString(UpdateTexts.ErrorUpdatingText1) + " " +
                           Platform::ReadProgramVersion().productName + ". " + GetLangString(what);
  Messages::Show(text, UpdateTexts.ErrorUpdatingTitle, Platform::Icon::Critical);
}

void Run(const std::string& updater, const std::string& arguments) {
  Platform::LaunchMinimised(updater, arguments);
  Platform::EndProgram();
}

// What is told of an installer that is not the maker's; null if it is, and has been started.
const LangText* FaultOrRun(const std::string& url, const std::string& updater,
                           const std::string& arguments, const std::string& key) {
  // Held until the program has ended: nobody may change it between the judgement and the start.
  const Platform::FileGuard guard(updater);
  const LangText* const fault = InstallerSignature::FaultOf(url, updater, key);
  if (!fault) Run(updater, arguments);
  return fault;
}

// An installer that is not started does not stay where the user might start it.
void RunIfSigned(const std::string& url, const std::string& updater, const std::string& arguments,
                 const std::string& key) {
  const LangText* fault = nullptr;
  std::exception_ptr failure;
  try {
    fault = FaultOrRun(url, updater, arguments, key);
    if (!fault) return;
  } catch (const std::exception&) {
    failure = std::current_exception();
  }
  try {
    Platform::RemoveFile(updater);
  } catch (const std::exception&) {
    // Why it was not started comes first.
    if (!failure) failure = std::current_exception();
  }
  if (fault) TellError(*fault);
  if (failure) std::rethrow_exception(failure);
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
  const std::optional<std::string> key = UpdateKey();
  // An installer of which the system has kept a copy would not be the one that is signed now.
  if (key) Platform::DropFromWebCache(url);
  if (!Internet::URLExists(url)) return TellError(UpdateTexts.ErrorUpdatingText2);
  const std::string updater = UpdaterPathIn(folder);
  // Only what is fetched now may be started, never what lay there before: if that stays, it ends
  // here.
  Platform::RemoveFile(updater);
  // The result is not looked at. Nothing to start is told by the start, and an installer that came
  // in part sees that for itself, where its signature does not tell.
  Internet::DownloadURLToFile(url, updater, true);
  const std::string arguments = areSwitchesSilent ? SilentSwitches : "";
  if (key) {
    RunIfSigned(url, updater, arguments, *key);
  } else {
    Run(updater, arguments);
  }
}

}  // namespace Updater
