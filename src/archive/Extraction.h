// Unpacking zip archives that may come from anywhere.
#pragma once

#include <string>

namespace Archive {

// Puts all that an archive holds into a folder, with its own folders. What is missing of the folder
// is made, files that are there are replaced as Files.h promises of a save, with their attributes
// kept; each gets the time that the archive tells.
//   password  stands for that of an encrypted archive. None is unpacked, whatever it is.
//
// An archive is judged whole before the first byte is written: first all names, sizes and places,
// and the disk; then all contents, unpacked to nowhere. One that is refused, for any of the reasons
// in ArchiveTexts, has changed nothing. Neither has one that does not fit on the disk (DiskFull),
// that has a folder in place of a file or the other way round, or a file where the disk has one
// that is read-only (PathFileAccess), or whose paths get too long (PathFileAccess, NameNotUsable).
//
// Fails also as FileReader, FileWriter and MakeFolder do. If that happens while files are written,
// the new files and folders are removed again as far as the system lets them; files that were
// replaced stay as new, each of them whole.
//
// It is a long step. Memory: a fixed amount for the contents, and up to 100 MB for the names, of
// which there may be Directory::MostEntries.
void Extract(const std::string& archive, const std::string& folder, const std::string& password);

}  // namespace Archive
