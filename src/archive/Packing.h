// Packing files into zip archives that every common program unpacks.
#pragma once

#include <string>
#include <vector>

namespace Archive {

// Puts files into an archive, each under its plain name without folders, in the order given and
// behind what the archive holds already; the archive is made if there is none. An entry that has
// the name of one of the files, in whatever letter case, is replaced. A file that is listed twice
// is packed once. No file is deleted.
//
// When it returns, the archive stands whole under its name, and every entry has been read back from
// it: those of the files are byte for byte what a second reading of the files gives, so that they
// may be deleted now; those that were there before have their checksums. Until then, and after any
// failure, what stood under that name stays as it was (Files.h says what a save promises).
//
// Entries are deflated as far as they can be, without a password. They keep the time of their
// file's last write (Times.h). Nothing else goes in: the same files with the same times give the
// same bytes in the same time zone.
//
// Refuses, beside what Directory refuses of the archive that is there: two different files of one
// name (ArchiveNameTwice), and a file that changes meanwhile (ArchiveSourceChanged). Fails with
// PathFileAccess, cause NameNotUsable, for a file name that cannot be put into an archive, and as
// FileReader and FileWriter do. It is a long step, in a fixed amount of memory for the contents.
void Pack(const std::string& archive, const std::vector<std::string>& files);

}  // namespace Archive
