// The names of entries: which of them may become files of the user's disk, and how a file's name is
// put into an archive.
//
// A name that says it is UTF-8 is turned into the system code page. So is one of a Unix or a Mac
// that is UTF-8 without saying so, as their programs write it. Any other is taken as it stands, as
// a name of the system code page, in which the game's files name each other. A program that meant
// the code page of the old console gets other letters beyond ASCII, which do no harm.
#pragma once

#include <string>

#include "archive/Directory.h"

namespace Archive {

// The name of an entry in the system code page, with "\" between folders, whatever it holds: to
// be compared and told, not to be used.
std::string ShownName(const Entry& entry);

struct EntryPath {
  std::string path;  // from the destination on, such as "sounds\horn.wav"; empty for itself
  bool isFolder = false;
};

// Where an entry is put. Refuses every name that would lead elsewhere, that is not the very name
// that the file would get, or that Windows takes for something else than a file: with "..", a
// drive, a server, a stream, a leading separator, an empty part, a device, dots or blanks at the
// end of a part, characters that no name holds or the code page lacks, or the shape of the pack's
// own side files. A part that is only "." is left out. Refuses links too.
//   archive  its path, for the failure.
EntryPath PathOf(const Entry& entry, const std::string& archive);

// A file's name as it is put into an archive: in UTF-8, which it says unless it is plain ASCII.
struct StoredName {
  std::string bytes;
  bool isUtf8 = false;
};
// Fails with PathFileAccess, cause NameNotUsable, where that is not a plain file name.
StoredName StoredNameOf(const std::string& name);

}  // namespace Archive
