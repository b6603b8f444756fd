#include "tools/PackageChecker.h"

#include <memory>
#include <string_view>
#include <vector>

#include "archive/Inspection.h"
#include "base/RuntimeError.h"
#include "platform/FileLines.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "text/StringTable.h"
#include "tools/FileKind.h"
#include "tracks/TrackChecker.h"
#include "vehicles/VehicleChecker.h"

namespace {

// What is at fault with the archive itself; a failure of the disk is none.
bool IsOfTheArchive(const RuntimeError& error) {
  const bool isRefused = error.number() == RuntimeError::InvalidCall;
  const std::string_view cause = error.cause().english;
  const bool isNameTooLong = error.number() == RuntimeError::PathFileAccess &&
                             cause == RuntimeErrorTexts.NameNotUsable.english;
  return isRefused || isNameTooLong;
}

// What the failure tells behind the archive's own path: the name of an entry, if any.
std::string EntryOf(const RuntimeError& error, const std::string& archive) {
  const std::string start = archive + ": ";
  if (error.file().starts_with(start)) return error.file().substr(start.size());
  // A path that is too long is told as it would be below the folder.
  const bool isBelow = error.file() != archive && error.file().starts_with('\\');
  return isBelow ? error.file().substr(1) : "";
}

// The archive, if the pack would unpack it; nothing if its fault was told.
std::unique_ptr<Archive::Inspection> Inspect(const std::string& path,
                                             const PackageFaultTaker& take) {
  // Opened here first, so that a name that cannot be used is the archive's own.
  const Platform::FileReader file(path);
  try {
    return std::make_unique<Archive::Inspection>(path);
  } catch (const RuntimeError& error) {
    if (!IsOfTheArchive(error)) throw;
    take(EntryOf(error, path),
         {.code = PackageFault::Refused, .message = GetLangString(CauseOf(error))});
    return nullptr;
  }
}

void FindFaultsOf(const std::string& archive, const std::string& file, FileKind kind,
                  Archive::Inspection& inspection, const PackageFaultTaker& take) {
  const FaultTaker takeOfFile = [&](const Fault& fault) { return take(file, fault); };
  Platform::FileLines lines(inspection.Open(file));
  if (kind == FileKind::Track) {
    FindTrackFaults(lines, takeOfFile);
    return;
  }
  // A message names a sound as if the archive were a folder.
  const std::string start = archive + "\\";
  const std::string below = Platform::FolderOf(file);
  const VehicleSounds sounds{below.empty() ? archive : start + below, [&](const std::string& path) {
                               return inspection.Holds(path.substr(start.size()));
                             }};
  FindVehicleFaults(lines, sounds, takeOfFile);
}

}  // namespace

void FindArchiveFault(const std::string& path, const PackageFaultTaker& take) {
  Inspect(path, take);
}

void FindPackageFaults(const std::string& path, const PackageFaultTaker& take) {
  const auto inspection = Inspect(path, take);
  if (!inspection) return;
  std::vector<std::string> found;
  for (const std::string& file : inspection->files()) {
    const auto kind = KindOf(file);
    if (kind == FileKind::Vehicle || kind == FileKind::Track) found.push_back(file);
  }
  if (found.empty()) {
    take("", {.code = PackageFault::Nothing,
              .message = "The archive holds neither a vehicle (.vhc) nor a track (.trk)."});
    return;
  }
  bool wantsMore = true;
  if (found.size() > 1) {
    wantsMore = take("", {.code = PackageFault::Several,
                          .message = "The archive holds " + std::to_string(found.size()) +
                                     " vehicles and tracks. A package holds one."});
  }
  const PackageFaultTaker takeOn = [&](const std::string& entry, const Fault& fault) {
    return wantsMore = take(entry, fault);
  };
  for (const std::string& file : found) {
    if (!wantsMore) return;
    FindFaultsOf(path, file, *KindOf(file), *inspection, takeOn);
  }
}
