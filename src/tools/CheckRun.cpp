#include "tools/CheckRun.h"

#include <algorithm>
#include <exception>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/Characters.h"
#include "platform/FileLines.h"
#include "platform/Files.h"
#include "platform/LetterCase.h"
#include "platform/Paths.h"
#include "records/RecordChecker.h"
#include "text/FailureText.h"
#include "text/StringTable.h"
#include "tools/CheckOptions.h"
#include "tools/CheckReport.h"
#include "tools/FileKind.h"
#include "tools/LanguageChecker.h"
#include "tools/PackageChecker.h"
#include "tracks/TrackChecker.h"
#include "vehicles/VehicleChecker.h"

namespace Tools {

namespace {

// A file or folder: the user's name of it, and the path by which the services know it.
struct Place {
  std::string name;
  std::string path;
};

// The formats take folders off a path at "\" alone, and a sound beside a file that is named without
// any folder lies in the working folder.
Place PlaceOf(const std::string& argument) {
  std::string path;
  for (size_t i = 0; i < argument.size();) {
    const size_t length = Platform::CharacterLength(std::string_view(argument).substr(i));
    path += argument[i] == '/' ? "\\" : argument.substr(i, length);
    i += length;
  }
  if (Platform::FolderOf(path).empty() && !path.starts_with('\\')) path.insert(0, ".\\");
  return {argument, path};
}

Place Below(const Place& folder, const std::string& name) {
  const auto joined = [&](const std::string& start, char separator) {
    const bool hasSeparator = start.ends_with('/') || start.ends_with('\\');
    return hasSeparator ? start + name : start + separator + name;
  };
  return {joined(folder.name, '/'), joined(folder.path, '\\')};
}

bool IsFolder(const std::string& path) {
  return Platform::FileExists(path) && !Platform::StampOf(path);
}

bool IsReadable(const std::string& path) {
  try {
    const Platform::FileReader file(path);
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

// A file that the pack cannot read either, and what it says then.
struct Unreadable {
  std::string message;
};

class Run {
 public:
  Run(const CheckOptions& options, CheckReport& report) : options_(options), report_(report) {}

  // A file or folder that the user named.
  void Take(const Place& place);
  int Finish();

 private:
  void TakeFolder(const Place& folder);
  void TakeFile(const Place& place, FileKind kind);
  std::string FindFaults(const Place& place, const CheckedFile& file);
  std::string FindFirst(const Place& place, const CheckedFile& file);
  bool Tell(const CheckedFile& file, const std::string& entry, const Fault& fault);
  void CannotLook(const Place& place, const std::string& reason);

  const CheckOptions& options_;
  CheckReport& report_;
  CheckCounts counts_;
};

void Run::Take(const Place& place) {
  try {
    if (IsFolder(place.path)) {
      const int64_t before = counts_.files + counts_.unread;
      TakeFolder(place);
      // Most likely it is not the folder that was meant: no check must pass for want of files.
      if (counts_.files + counts_.unread == before) {
        CannotLook(place, "There is no file in this folder that could be checked.");
      }
      return;
    }
    const auto kind = options_.kind ? options_.kind : KindOf(place.path);
    if (!kind) {
      return CannotLook(place, "The name does not tell what kind of file this is. See --as.");
    }
    TakeFile(place, *kind);
  } catch (const std::exception& error) {
    CannotLook(place, FailureText(error));
  }
}

void Run::TakeFolder(const Place& folder) {
  auto entries = Platform::ListFolder(folder.path);
  // In an order that every system has.
  std::sort(entries.begin(), entries.end(),
            [](const Platform::FolderEntry& a, const Platform::FolderEntry& b) {
              return std::pair(Platform::LowerCase(a.name), a.name) <
                     std::pair(Platform::LowerCase(b.name), b.name);
            });
  for (const Platform::FolderEntry& entry : entries) {
    if (entry.name.starts_with('.')) continue;
    const Place place = Below(folder, entry.name);
    try {
      if (!entry.isFolder) {
        if (const auto kind = KindOf(entry.name)) TakeFile(place, *kind);
      } else if (!entry.isLink) {
        TakeFolder(place);
      }
    } catch (const std::exception& error) {
      CannotLook(place, FailureText(error));
    }
  }
}

void Run::TakeFile(const Place& place, FileKind kind) {
  const CheckedFile file{place.name, kind};
  report_.Begin(file);
  std::string verdict;
  std::string reason;
  try {
    verdict = options_.isFirstOnly ? FindFirst(place, file) : FindFaults(place, file);
    ++counts_.files;
  } catch (const Unreadable& unreadable) {
    reason = unreadable.message;
  } catch (const std::exception& error) {
    reason = FailureText(error);
  }
  report_.End(file, verdict);
  if (!reason.empty()) CannotLook(place, reason);
}

bool Run::Tell(const CheckedFile& file, const std::string& entry, const Fault& fault) {
  ++counts_.faults;
  report_.Tell(file, entry, fault);
  return !options_.isFirstOnly;
}

// Tells all faults of a file. Returns nothing to be told beside them.
std::string Run::FindFaults(const Place& place, const CheckedFile& file) {
  const std::string& path = place.path;
  const FaultTaker take = [&](const Fault& fault) { return Tell(file, "", fault); };
  const PackageFaultTaker takeOfEntry = [&](const std::string& entry, const Fault& fault) {
    return Tell(file, entry, fault);
  };
  switch (file.kind) {
    case FileKind::Vehicle: {
      Platform::FileLines lines(path);
      FindVehicleFaults(lines, SoundsBeside(path), take);
      break;
    }
    case FileKind::Track: {
      Platform::FileLines lines(path);
      FindTrackFaults(lines, take);
      break;
    }
    case FileKind::Records: {
      Platform::FileLines lines(path);
      FindRecordFaults(lines, take);
      break;
    }
    case FileKind::Language: FindLanguageFaults(path, take); break;
    case FileKind::Package: FindPackageFaults(path, takeOfEntry); break;
    case FileKind::Archive: FindArchiveFault(path, takeOfEntry); break;
  }
  return "";
}

// Tells the first fault as the pack does, with its result as the line. Returns what the pack says
// of a file without one. Fails if the file cannot be read.
std::string Run::FindFirst(const Place& place, const CheckedFile& file) {
  Fault fault;
  switch (file.kind) {
    case FileKind::Vehicle:
      fault.line = CheckVehicleFile(place.path, fault.code, fault.message);
      break;
    case FileKind::Track: fault.line = CheckTrackFile(place.path, fault.code, fault.message); break;
    case FileKind::Records:
      fault.line = CheckRecordFile(place.path, fault.message);
      fault.code = static_cast<int32_t>(fault.line != 0);
      break;
    // The pack checks no others.
    default: return FindFaults(place, file);
  }
  if (fault.code == 0) return fault.message;
  // The pack has the same words for a file that it cannot read and for one that it does not
  // understand.
  if (fault.line < 0 && !IsReadable(place.path)) throw Unreadable{fault.message};
  Tell(file, "", fault);
  return "";
}

void Run::CannotLook(const Place& place, const std::string& reason) {
  ++counts_.unread;
  report_.CannotLook(place.name, reason);
}

int Run::Finish() {
  report_.Sum(counts_);
  if (counts_.unread > 0) return NotLooked;
  return counts_.faults > 0 ? Faulty : Clean;
}

}  // namespace

int RunCheck(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& notes,
             const std::string& version) {
  SpeakOnlyFrom("");
  std::string fault;
  const auto options = ParseCheckOptions(arguments, fault);
  if (!options) {
    notes << "sk2check: " << Platform::ToUtf8(fault) << " See sk2check --help.\n";
    return NotLooked;
  }
  if (options->wantsHelp) {
    out << CheckHelp();
  } else if (options->wantsVersion) {
    out << "sk2check " << version << "\n";
  } else {
    const std::string language = options->language.empty() ? "" : PlaceOf(options->language).path;
    if (!language.empty() && !Platform::StampOf(language)) {
      notes << "sk2check: " << Platform::ToUtf8(options->language)
            << ": There is no such language file.\n";
      return NotLooked;
    }
    SpeakOnlyFrom(language);
    const auto report = MakeReport(options->format, out, options->isQuiet ? nullptr : &notes);
    Run run(*options, *report);
    for (const std::string& path : options->paths) run.Take(PlaceOf(path));
    const int status = run.Finish();
    // What did not arrive was not told.
    return out.flush() ? status : NotLooked;
  }
  return out.flush() ? Clean : NotLooked;
}

}  // namespace Tools
