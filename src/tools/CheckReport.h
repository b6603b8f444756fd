// How sk2check tells what it finds.
//
// Texts come in the system code page and are printed as UTF-8. What is quoted of a file may hold
// anything: where lines are printed, control characters become "?".
#pragma once

#include <cstdint>
#include <memory>
#include <ostream>
#include <string>

#include "base/Fault.h"
#include "tools/CheckOptions.h"

namespace Tools {

struct CheckedFile {
  std::string name;  // as the user named it
  FileKind kind = FileKind::Track;
};

struct CheckCounts {
  int64_t files = 0;   // that were judged
  int64_t faults = 0;  // in all of them
  int64_t unread = 0;  // files and folders that could not be looked at
};

class CheckReport {
 public:
  virtual ~CheckReport() = default;

  // Called in this order: Begin, any number of Tell, End; for each file. Or CannotLook, outside of
  // these or instead of End.
  virtual void Begin(const CheckedFile& file) = 0;
  //   entry  the file in the package, if it is one of those.
  virtual void Tell(const CheckedFile& file, const std::string& entry, const Fault& fault) = 0;
  //   verdict  what the pack says of the file as a whole; empty if it was not asked.
  virtual void End(const CheckedFile& file, const std::string& verdict) = 0;
  virtual void CannotLook(const std::string& name, const std::string& reason) = 0;
  // Last of all.
  virtual void Sum(const CheckCounts& counts) = 0;
};

// The report in a format.
//   out    takes what was found.
//   notes  takes how many files were judged, in the plain format; null for nowhere.
std::unique_ptr<CheckReport> MakeReport(CheckOptions::Format format, std::ostream& out,
                                        std::ostream* notes);

}  // namespace Tools
