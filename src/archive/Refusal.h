// How an archive is refused: the one kind of failure beside those of the disk.
#pragma once

#include <string>

#include "archive/ArchiveTexts.h"
#include "base/RuntimeError.h"

namespace Archive {

// Fails with RuntimeError InvalidCall and a cause from ArchiveTexts.
//   archive  the path of the archive.
//   entry    the name of the entry concerned, told behind the path; empty for the archive as a
//   whole.
[[noreturn]] inline void Refuse(const LangText& cause, const std::string& archive,
                                const std::string& entry = "") {
  throw RuntimeError(RuntimeError::InvalidCall, cause,
                     entry.empty() ? archive : archive + ": " + entry);
}

}  // namespace Archive
