// The update of the pack by its own installer, from the maker's server.
#pragma once

#include <string>

namespace Updater {

// Where an update's installer is stored for its run: "orv", the executable's name and
// "updater.exe" in the program folder, with nothing between the three.
std::string UpdaterPath();

// Deletes an installer that an earlier update has left, and that may just be ending. A missing one
// is no failure. Fails as Platform::RemoveFileOfEndingProgram does.
void RemoveLeftOverUpdater();

// Looks on the maker's server for a newer version of the pack, and if there is one and the user
// wants it, runs its installer and ends the program (see RunUpdater).
//   isSilent  tells only of a newer version: neither that there is none, nor what keeps the pack
//             from knowing.
// An update that the user wants and that fails is told to them, silent or not.
// Fails with Overflow if the published version has a number beyond 32 bits.
void CheckForUpdates(bool isSilent);

// The version that is published for a product, or one of the codes of Versions.h; anything that
// fails unexpectedly is NoVersionFile.
//   url        of the records, as Versions::VersionIn takes them.
//   product    its identifier there.
//   separator  between identifier and version.
std::string GetVersionRecord(const std::string& url, const std::string& product,
                             const std::string& separator);

// Asks the user whether to update. True for Yes.
//   available  what is shown as the available version.
bool ShowUpdatePrompt(const std::string& available);

// Fetches an installer, starts it minimised, and ends the program at once, without the closing of
// its windows, so that the installer can replace it. If there is nothing at the address, tells so
// and comes back.
//   folder            where the installer is stored, as in UpdaterPath, in place of an older one.
//   areSwitchesSilent the installer is told to ask nothing.
// Fails as Platform::RemoveFile does if an older one cannot be removed, and as
// Platform::LaunchMinimised does if what came cannot be started. The program then goes on.
void RunUpdater(const std::string& url, const std::string& folder, bool areSwitchesSilent);

}  // namespace Updater
