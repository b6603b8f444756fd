#include "tools/PackageJudge.h"

#include "archive/ByteSource.h"
#include "archive/Directory.h"
#include "archive/Names.h"
#include "base/SharedTexts.h"
#include "internet/ComponentPlaces.h"
#include "text/StringTable.h"
#include "tools/FileKind.h"
#include "tools/PackageChecker.h"

namespace PackageJudge {

namespace {

// So many are told of one archive; its author finds the others with the checker.
constexpr size_t MostFaults = 10;

std::string Sentence(const std::string& entry, const Fault& fault) {
  std::string where = entry;
  if (fault.line > 0) {
    if (!where.empty()) where += ", ";
    where += GetLangString(SharedTexts.Line) + " " + std::to_string(fault.line);
  }
  return where.empty() ? fault.message : where + ": " + fault.message;
}

// True if an archive that can be unpacked holds a file of that kind.
bool Holds(const std::string& archive, FileKind kind) {
  const Platform::LongStep step;
  Archive::FileSource source(archive);
  const Archive::Directory directory(source, step);
  for (const Archive::Entry& entry : directory.entries()) {
    const Archive::EntryPath path = Archive::PathOf(entry, archive);
    if (!path.isFolder && KindOf(path.path) == kind) return true;
  }
  return false;
}

}  // namespace

std::vector<std::string> FaultsOf(const std::string& archive, int kind) {
  std::vector<std::string> faults;
  const PackageFaultTaker take = [&](const std::string& entry, const Fault& fault) {
    faults.push_back(Sentence(entry, fault));
    return faults.size() < MostFaults;
  };
  if (kind == ComponentPlaces::Language) {
    FindArchiveFault(archive, take);
    return faults;
  }
  FindPackageFaults(archive, take);
  const bool isCar = kind == ComponentPlaces::Car;
  // Good, and in the wrong folder: the game would not find it where the pack puts it.
  if (faults.empty() && !Holds(archive, isCar ? FileKind::Vehicle : FileKind::Track)) {
    faults.push_back(isCar ? "The archive holds a track, not a car."
                           : "The archive holds a car, not a track.");
  }
  return faults;
}

}  // namespace PackageJudge
